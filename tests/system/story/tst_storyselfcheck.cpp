// A user looks at the health of his device: the list from the menu, in both languages, of a healthy device,
// with every fault, without an answer, and while one comes in.
#include "client/lcdtext.h"
#include "client/loglines.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
const QStringList names{"F_VERSION",     "F_CONNECT",  "F_VCCINT",     "F_VCCAUX",      "F_VCCBRAM",
                        "F_TEMP",        "F_D_CLK_ST", "F_DISP_CLK",   "F_M_CLK_ST",    "F_MONIT_CLK",
                        "F_DDR",         "F_MMCM_LK",  "F_GTX_LK_ST0", "F_GTX_LK_FRE0", "F_GTX_LK_ST1",
                        "F_GTX_LK_FRE1", "A_MEM_PER",  "A_CPU_PER",    "A_EMMC_PER",    "M_VERSION",
                        "S_VERSION",     "H_VERSION",  "H_TEMP_BD",    "H_VCC_BD",      "H_TEST_COUNT",
                        "S0_TEMP",       "S1_TEMP",    "FPGA_STATUS",  "FPGA_DDR",      "MCU_STATUS"};
constexpr int ownRows = 3; ///< the last ones, which the panel finds out by itself
constexpr int rowHeight = 36;
constexpr QRect title(0, 0, 320, 24);
constexpr QRect listed(0, 24, 320, 216);
constexpr QRgb good = 0xff17bc1e, bad = 0xffc40f0f;

struct Language {
    const char *file;
    const char *font;
    int pixels;
};
constexpr Language chinese{"fpd_ZH", "宋体", 20}, english{"fpd_EN", "Arial", 16};

/// The thin strokes of a text do not reach its full colour, but nothing else below the title leans to it.
bool hasInk(const QImage &picture, QRgb colour)
{
    constexpr int lean = 60;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            const int toGreen = qGreen(pixel) - qRed(pixel);
            if (colour == good ? toGreen > lean : -toGreen > lean)
                return true;
        }
    }
    return false;
}
} // namespace

class TestStorySelfCheck : public SystemTest
{
    Q_OBJECT
private slots:
    void healthy()
    {
        QVERIFY(open());
        picture("zh-healthy");
        QVERIFY(waitForRow(0, "2.0.11", good) && waitForRow(1, "normal", good));
        QVERIFY(m_panel.turn(Right, names.size() + 5));
        picture("zh-healthy-end");
        for (int row = names.size() - ownRows; row < names.size(); ++row)
            QVERIFY2(waitForRow(row, "normal", good), qPrintable(names[row]));
        QVERIFY(close());
    }

    /// ESC of the list, held or tapped, leaves the list and not the page, and the next one leaves the page.
    void escLeavesTheListAlone()
    {
        QVERIFY(open());
        m_panel.mark();
        QVERIFY(m_panel.hold(keys::Esc));
        QVERIFY(m_panel.waitForLog("KEYSCANCODE_10-退出") && m_walk.showsTitle());
        QVERIFY(m_walk.back());
        QCOMPARE(m_walk.page(), CONFIG_MainMenu);
        QVERIFY(m_walk.showsTitle() && m_walk.home());
    }

    void everyFault()
    {
        for (int row = 0; row < names.size() - ownRows; ++row)
            QVERIFY(m_panel.ask({"selftest", names[row], QString("bad %1").arg(row)}).ok);
        QVERIFY(m_panel.ask({"fault", "tool", "fpga", "FPGA version is 2.0.11"}).ok); // no word of its memory
        QVERIFY(m_panel.ask({"fault", "tool", "stm32", ""}).ok);
        QVERIFY(open());
        picture("zh-faults");
        for (int row = 0; row < names.size(); ++row) {
            const bool fpga = names[row] == "FPGA_STATUS";
            const QString text = row < names.size() - ownRows ? QString("bad %1").arg(row)
                                 : fpga                       ? "normal"
                                                              : "error";
            QVERIFY2(waitForRow(row, text, fpga ? good : bad), qPrintable(names[row]));
            QVERIFY(m_panel.turn(Right));
        }
        picture("zh-faults-end");
        QVERIFY(close());
        // Without an FPGA nothing is asked of its memory.
        QVERIFY(m_panel.ask({"selftest", "healthy"}).ok && m_panel.ask({"fault", "tool", "stm32"}).ok);
        QVERIFY(m_panel.ask({"fault", "tool", "fpga", ""}).ok);
        QVERIFY(open() && m_panel.turn(Right, names.size()));
        QVERIFY(waitForRow(27, "error", bad) && waitForRow(28, "error", bad) &&
                waitForRow(29, "normal", good));
        QVERIFY(close());
    }

    /// Also: the answer comes while the list is scrolled, and the panel goes home from it by itself.
    void withoutAnAnswerInEnglish()
    {
        QVERIFY(m_panel.ask({"fault", "tool", "fpga"}).ok);
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        QVERIFY(m_panel.setStored(MENU_LanguageEn, SELECTED, "Choice") &&
                m_panel.setStored(MENU_LanguageZh, UNSELECTED, "Choice") &&
                m_panel.setStored(MENU_ReturntoHome, "30"));
        QVERIFY(startAgain() && m_walk.speak(english.file));
        m_language = english;
        QVERIFY(m_panel.waitForLog(loglines::servicesUp) && m_panel.ask({"reports", "off"}).ok);
        QVERIFY(open());
        picture("en-empty");
        QVERIFY(waitForRow(0, "", 0) && m_panel.turn(Right, names.size()));
        QVERIFY(waitForRow(28, "normal", good));
        QVERIFY(m_panel.turn(Left, 10));
        QVERIFY(m_panel.settle());
        const QByteArray text = "HEAD;" + QByteArray("A:--:fine:normal;").repeated(19) + "B:--:worse:error;";
        QVERIFY(m_panel.ask({"push", "13800000", text.toHex()}).ok);
        QVERIFY(m_panel.turn(Left, 3) && m_panel.turn(Right, 3));
        QVERIFY(waitForRow(19, "worse", bad) && waitForRow(18, "fine", good));
        picture("en-filled");
        QVERIFY(m_panel.waitForLog(loglines::goesHome));
        QVERIFY(m_panel.waitFor(m_walk.text("Inactive"), QRect(62, 64, 200, 28)));
        QVERIFY(m_walk.isHome() && m_walk.openMenu() && m_walk.showsTitle());
    }

private:
    /// The list, behind its question and the message to wait.
    bool open()
    {
        if (!m_walk.isHome() || !m_walk.go({MENU_SystemSetting, MENU_SelfTest}) || !m_walk.asked())
            return false;
        m_panel.mark();
        return m_walk.answer(true) && m_panel.waitForLog(loglines::messageClosed) &&
               m_panel.waitToDraw(m_walk.text("SelfTest"), 14, title, m_language.font);
    }
    bool close() { return m_panel.press(keys::Esc) && m_walk.showsTitle() && m_walk.home(); }
    QFont fontOf(int pixels) const
    {
        QFont font(QString::fromUtf8(m_language.font));
        font.setPixelSize(pixels);
        return font;
    }

    /// Somewhere on the LCD stands a row with that name, and beside it that text in that colour.
    bool waitForRow(int row, const QString &text, QRgb colour)
    {
        return m_panel.waitUntil([&] {
            const QImage screen = m_panel.screen();
            QRect name;
            for (int pixels = m_language.pixels; name.isEmpty() && pixels > m_language.pixels - 8; --pixels)
                name = lcdtext::find(screen, names[row], fontOf(pixels), listed);
            if (name.isEmpty())
                return false;
            const QRect value(150, name.center().y() - rowHeight / 2, 160, rowHeight);
            if (text.isEmpty())
                return !hasInk(screen.copy(value), good) && !hasInk(screen.copy(value), bad);
            return !lcdtext::find(screen, text, fontOf(m_language.pixels), value).isEmpty() &&
                   hasInk(screen.copy(value & screen.rect()), colour);
        });
    }

    /// For a person to look at.
    void picture(const QString &name)
    {
        const QString folder = qEnvironmentVariable("FPD_PICTURES");
        m_panel.settle();
        if (!folder.isEmpty())
            m_panel.screen().save(folder + "/selfcheck-" + name + ".png");
    }

    Language m_language = chinese;
};

FPD_TEST(TestStorySelfCheck)
#include "tst_storyselfcheck.moc"
