// What the EDID of the inputs sends, and how its two pages take turns: the standard modes and a custom one.
#include "client/loglines.h"
#include "tests/system/frames/framedrive.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestFramesEdid : public FramesTest
{
    Q_OBJECT
    QVector<NamedFrames> table() const override
    {
        struct Input {
            const char *name;
            ENUM_MenuIndex page;
            ENUM_MenuIndex edid;
            int distance;
            QString code;
        };
        const Input inputs[] = {
            {"HDMI 1: ", MENU_HDMI1, MENU_HDMI1_EDID, 0, "1100"},
            {"HDMI 2: ", MENU_HDMI2, MENU_HDMI2_EDID, STRIDE_InputPicture, "1201"},
            {"DVI: ", MENU_DVI, MENU_DVI_EDID, 2 * STRIDE_InputPicture, "0002"},
        };
        QVector<NamedFrames> lines;
        for (const Input &input : inputs) {
            const auto add = [&](const char *what, ENUM_MenuIndex row, const QString &keys,
                                 const QStringList &frames) {
                lines.append(
                    {input.name + QByteArray(what),
                     {MENU_InputSettings, input.page, input.edid, ENUM_MenuIndex(row + input.distance)},
                     keys,
                     frames});
            };
            add("size", MENU_HDMI1_EDIDResolution, "r1 ok", {});
            add("rate", MENU_HDMI1_EDIDFrameRate, "l1 ok", {});
            // The input by its code and number, then 1920x1200 at 59.94 Hz.
            add("applied", MENU_HDMI1_EDIDApply, "closed", {"13014200 00 " + input.code + "8007b0046a17"});
        }
        return lines;
    }

private slots:
    void pagesTakeTurns()
    {
        // The cursor comes onto each page where it was left.
        QVERIFY(m_walk.home());
        QVERIFY(m_walk.go({MENU_InputSettings, MENU_HDMI1, MENU_HDMI1_EDID}));
        QVERIFY(chooseOther(CONFIG_HDMI1_EDIDCustom));
        QVERIFY(m_walk.moveTo(MENU_HDMI1_EDIDWidth) && m_walk.press(keys::Ok));
        QVERIFY(m_walk.turn(Left, 1, 5) && m_walk.press(keys::Ok));
        QVERIFY(shows("1910"));
        QCOMPARE(applied(), QStringList{"13014200 00 1100760738047017"});

        // ESC leads to the input's page, and from there the custom page opens again.
        QVERIFY(m_walk.back() && m_walk.showsTitle());
        QCOMPARE(m_walk.page(), CONFIG_HDMI1);
        QVERIFY(m_walk.enter(MENU_HDMI1_EDID) && shows("1910"));
        m_walk.replaced(CONFIG_HDMI1_EDIDCustom);
        QVERIFY(shows(m_walk.text("Custom")));

        QVERIFY(chooseOther(CONFIG_HDMI1_EDIDStandard) && shows(m_walk.text("EDIDStandard")));
        QCOMPARE(applied(), QStringList{"13014200 00 11008007b0046a17"});
        QVERIFY(chooseOther(CONFIG_HDMI1_EDIDCustom) && shows(m_walk.text("Custom")) && shows("1910"));
        QVERIFY(m_walk.back() && m_walk.showsTitle());
        QVERIFY(m_walk.back() && m_walk.showsTitle());
        QVERIFY(m_walk.home());
    }

private:
    /// Chooses the other kind of EDID; its page is open then.
    bool chooseOther(ENUM_ConfigIndex other)
    {
        if (!m_walk.moveTo(MENU_HDMI1_EDIDChoice) || !m_walk.press(keys::Ok) || !m_walk.turn(Right, 1) ||
            !m_walk.press(keys::Ok))
            return false;
        m_walk.replaced(other);
        return m_walk.showsTitle();
    }

    bool shows(const QString &text) { return m_panel.waitFor(text); }

    /// OK on the apply row of the open page, and all that is sent.
    QStringList applied()
    {
        m_panel.ask({"writes", "--clear"});
        if (!m_walk.moveTo(MENU_HDMI1_EDIDApply) || !m_walk.press(keys::Ok) ||
            !m_panel.waitForLog(loglines::messageClosed))
            return {"the row does not follow"};
        return m_drive.sent(1);
    }
};

FPD_TEST(TestFramesEdid)
#include "tst_framesedid.moc"
