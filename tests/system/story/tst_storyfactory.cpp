// A worker on the line checks a finished unit from the panel alone: self test, keys, inputs and outputs, and
// the count of passed runs. Nothing from outside takes the test from him.
#include "client/loglines.h"
#include "client/productionline.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
const QString keysUntested = "MAIN PIP1 PIP2 SCALE HDMI1 HDMI2 DVI1 SDI DOWN UP ESC PRESET FN";
const QRect message(34, 17, 250, 206);
} // namespace

class TestStoryFactory : public SystemTest
{
    Q_OBJECT
protected:
    /// Every case has a unit of its own: the test ends with its power.
    void begin() override {}
    Panel &panel() override { return m_unit ? *m_unit : m_panel; }
    void leave() override { m_unit.reset(); }

private slots:
    void init()
    {
        m_unit = std::make_unique<Panel>();
        m_line = std::make_unique<ProductionLine>(*m_unit);
        QVERIFY(m_unit->startReady());
        QVERIFY(m_unit->waitForLog(loglines::servicesUp));
    }

    /// With some cables in before it begins and the others plugged on the way.
    void aHealthyUnitPasses()
    {
        QVERIFY(!m_unit->ask({"env", "get", "FACTORY_TEST_COUNT"}).ok);
        QVERIFY(m_unit->ask({"link", "usb", "1"}).ok);
        QVERIFY(m_line->begin());
        QVERIFY(m_line->waitFor(ProductionLine::Keys));

        // One key is missing, OK comes early.
        QVERIFY(m_line->pressKeys("scale"));
        const QString oneMissing =
            "MAIN+ PIP1+ PIP2+ SCALE HDMI1+ HDMI2+ DVI1+ SDI+ DOWN+ UP+ ESC+ PRESET+ FN+";
        QVERIFY(m_line->waitForTable(ProductionLine::Keys, oneMissing));
        picture("2-one-missing");
        QCOMPARE(m_unit->leds(), QString("1110111100010001"));
        m_unit->mark();
        QVERIFY(m_line->ok() && m_unit->waitForLog("Factory::KeyTest =  34 1"));
        QVERIFY(m_line->waitForTable(ProductionLine::Keys, oneMissing));
        QVERIFY(m_unit->press("scale"));
        QVERIFY(m_unit->waitUntil([this] { return m_unit->leds() == "1111111100010001"; }));
        picture("2-complete");
        QVERIFY(m_line->ok());
        QVERIFY(m_line->waitForTable(ProductionLine::Keys, keysUntested));
        QCOMPARE(m_unit->leds(), QString(16, '0'));
        QVERIFY(m_line->keyRounds(1));

        QVERIFY(seesInOut("HDMI1 HDMI2 DVI NET1+ NET2+ NET3+ NET4+ NET5 NET6 USB-IN+ ETHRNET"));
        picture("3-begun");
        // The first has its signal; the others get it while they are waited for.
        QVERIFY(m_line->ok());
        QVERIFY(m_unit->ask({"port", "5", "link", "on"}).ok && m_unit->ask({"port", "6", "link", "on"}).ok);
        QVERIFY(m_unit->ask({"link", "eth", "1"}).ok);
        QVERIFY(seesInOut("HDMI1+ HDMI2 DVI NET1+ NET2+ NET3+ NET4+ NET5+ NET6+ USB-IN+ ETHRNET+"));
        QVERIFY(m_line->ok() && m_unit->ask({"signal", "hdmi2", "on"}).ok);
        QVERIFY(seesInOut("HDMI1+ HDMI2+ DVI NET1+ NET2+ NET3+ NET4+ NET5+ NET6+ USB-IN+ ETHRNET+"));
        m_unit->mark();
        QVERIFY(m_line->ok() && m_unit->ask({"signal", "dvi", "on"}).ok);
        // In its one font, as it is gone before all fonts are tried.
        QVERIFY(m_unit->waitToDraw("测试全部通过，", 18, message));
        picture("3-message");
        QVERIFY(m_unit->waitForLog(loglines::messageClosed));
        QVERIFY(seesInOut("HDMI1+ HDMI2+ DVI+ NET1+ NET2+ NET3+ NET4+ NET5+ NET6+ USB-IN+ ETHRNET+"));
        picture("3-passed");
        QVERIFY(m_unit->waitUntil([this] {
            return m_unit->ask({"env", "get", "FACTORY_TEST_COUNT"}).lines.value(0) == "1";
        }));
        // There is no way back.
        QVERIFY(m_line->ok() && m_unit->press(keys::Esc) && m_line->waitFor(ProductionLine::InOut));
    }

    void anInputThatIsLostFails()
    {
        QVERIFY(m_line->begin() && m_line->waitFor(ProductionLine::Keys) && m_line->keyRounds());
        const QString others = " NET1+ NET2+ NET3+ NET4+ NET5 NET6 USB-IN ETHRNET";
        m_unit->mark();
        QVERIFY(m_line->ok() && m_unit->waitForLog("InputTestNumCur 0"));
        QTest::qWait(3000); // two seconds to be stable, and into the eight
        QVERIFY(m_unit->ask({"signal", "hdmi1", "off"}).ok);
        QVERIFY(seesInOut("HDMI1- HDMI2 DVI" + others));
        picture("3-failed");
        // Without a signal the next one is waited for, and no other begins.
        m_unit->mark();
        QVERIFY(m_line->ok() && m_unit->waitForLog("InputTestNumCur 1"));
        QVERIFY(m_line->ok() && m_line->ok());
        QVERIFY(
            m_unit->waitUntil([this] { return m_unit->logLines("Factory::InOutTest =  34 1").size() == 3; }));
        QCOMPARE(m_unit->logLines(loglines::inputUnderTest).size(), 1);
    }

    void aFaultStopsTheTest()
    {
        QVERIFY(m_unit->ask({"selftest", "F_TEMP", "97"}).ok);
        QVERIFY(m_unit->ask({"fault", "tool", "stm32", ""}).ok);
        QVERIFY(m_line->begin());
        QVERIFY(m_unit->waitFor("F_VERSION"));
        picture("1-failed");
        // All that can be done is to look.
        QVERIFY(m_unit->press(keys::Esc) && m_unit->press(keys::Ok) && m_unit->hold(keys::Esc));
        QVERIFY(m_unit->turn(Right, 40));
        QVERIFY(m_unit->waitFor("MCU_STATUS"));
        picture("1-failed-end");
        QVERIFY(m_unit->turn(Left, 40));
        QVERIFY(m_unit->waitFor("F_VERSION") && m_unit->waitFor("97"));
    }

    void nothingTakesTheTestFromTheWorker_data()
    {
        QTest::addColumn<int>("step");
        for (int step : {ProductionLine::SelfTest, ProductionLine::Keys, ProductionLine::InOut})
            QTest::addRow("step %d", step) << step;
    }
    void nothingTakesTheTestFromTheWorker()
    {
        QFETCH(int, step);
        // One second without a key is enough to go home.
        QVERIFY(m_unit->ask({"panel", "stop"}).ok && m_unit->setStored(MENU_ReturntoHome, "1"));
        QVERIFY(m_unit->start() && m_unit->ask({"wait", "ready"}).ok);
        QVERIFY(m_unit->waitForLog(loglines::servicesUp) && m_unit->settle());
        if (step == ProductionLine::SelfTest)
            QVERIFY(m_unit->ask({"reports", "off"}).ok); // the answer stays out
        QVERIFY(m_line->begin() && m_line->waitFor(ProductionLine::Step(qMin(step, 2))));
        if (step == ProductionLine::InOut)
            QVERIFY(m_line->keyRounds());
        if (step == ProductionLine::Keys)
            QVERIFY(m_unit->press("pip1"));
        QVERIFY(m_unit->settle());
        const QImage before = m_unit->screen();

        m_unit->mark();
        for (const QStringList &words : QList<QStringList>{{"heartbeat", "on"},
                                                           {"update", "50"},
                                                           {"calibrate", "on"},
                                                           {"push", "13000004", "04"},
                                                           {"push", "0ff00001", "01"},
                                                           {"push", "1300002c", "10"},
                                                           {"push", "1300002c", "00"},
                                                           {"push", "01000002", "00"},
                                                           {"signal", "sdi", "on"}})
            QVERIFY2(m_unit->ask(words).ok, qPrintable(words.join(' ')));
        // Neither does a key that has no part in the step, nor a held one.
        QVERIFY(m_unit->press(keys::Test) && m_unit->press("in5") && m_unit->hold("esc+ok"));
        QVERIFY(m_unit->waitUntil([this] { return m_unit->logLines(loglines::timeToGoHome).size() > 2; }));
        QVERIFY(m_unit->waitForLog(loglines::messageRefused));
        QVERIFY(m_unit->settle());
        QCOMPARE(m_unit->screen(), before);
    }

private:
    bool seesInOut(const QString &wanted) { return m_line->waitForTable(ProductionLine::InOut, wanted); }

    /// For a person to look at.
    void picture(const QString &name)
    {
        const QString folder = qEnvironmentVariable("FPD_PICTURES");
        m_unit->settle();
        if (!folder.isEmpty())
            m_unit->screen().save(folder + "/factory-" + name + ".png");
    }

    std::unique_ptr<Panel> m_unit;
    std::unique_ptr<ProductionLine> m_line;
};

FPD_TEST(TestStoryFactory)
#include "tst_storyfactory.moc"
