// What a user's value becomes, from the engine on, with the routing of fpd-rest: its request to the device
// service, or the message bus as ever.

#include "framework/protocol/link/proto4rd.h"
#include "tests/testprogram.h"
#include "tests/unit/framework/protocol/restclient.h"
#include "tests/unit/rig/enginerig.h"

using namespace VASK;

class TestRestRouting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_rig = std::make_unique<EngineRig>();
        m_rig->addRows({CONFIG_TestPureColor, CONFIG_TestGradient, CONFIG_TestGrid});
        m_client = new RestClient;
        ObjectPool::getInstance()->InsertData(ENUM_COMMUNICATION_HTTP, m_client);
        auto *protocol = new Proto4rd(ENUM_PROTOCOINTERFER_4RD);
        ObjectPool::getInstance()->InsertData(ENUM_PROTOCOINTERFER_4RD, protocol);
        m_rig->reset();
        QCOMPARE(protocol->initialize(), 1);
        m_rig->set(MENU_Test_Spacing, "40");
        m_rig->set(MENU_Test_Speed, "5");
        m_rig->set(MENU_Test_Brightness, "2");
    }

    void values_data()
    {
        QTest::addColumn<int>("item");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("request"); // empty: none
        QTest::addColumn<QString>("overTheBus");
        const auto row = [](ENUM_MenuIndex item, const QString &value, const QString &request,
                            const QString &overTheBus = {}) {
            QTest::addRow("%d=%s", item, qPrintable(value)) << int(item) << value << request << overTheBus;
        };
        for (const char *sent : {"100 255", "50 127", "0 0"})
            row(MENU_ScreenBrightness, QString(sent).section(' ', 0, 0),
                QString(R"(PUT cabinets/16777215/brightness {"value":%1})")
                    .arg(QString(sent).section(' ', 1)));
        for (const char *sent : {"2.25 2.3", "2.85 2.8", "2.86 2.9"})
            row(MENU_Color_Gamma, QString(sent).section(' ', 0, 0),
                QString(R"(PUT cabinets/16777215/gamma {"type":3,"value":%1})")
                    .arg(QString(sent).section(' ', 1)));
        row(MENU_Test_PureColor, "7", pattern(10, 255, 255, 255, 1));
        row(MENU_Test_PureColor, "8", "");
        row(MENU_Test_Gradient, "7", pattern(2, 255, 255, 255, 0));
        row(MENU_Test_Gradient, "8", "");
        row(MENU_Test_Grid, "6", "");
        row(MENU_Test_Grid, "5", pattern(9, 255, 255, 255, 1));
        // They belong to the family that was chosen last.
        row(MENU_Test_Spacing, "40", pattern(9, 255, 255, 255, 1));
        row(MENU_Test_Gradient, "0", pattern(3, 255, 0, 0, 0));
        row(MENU_Test_Speed, "5", pattern(3, 255, 0, 0, 0));
        row(MENU_Test_PureColor, "1", pattern(1, 255, 0, 0, 0));
        row(MENU_Test_Brightness, "4", pattern(1, 255, 0, 0, 0, 195));
        row(MENU_Audio_Volume, "7", "", "Audio_Volume=7");
    }
    void values()
    {
        QFETCH(int, item);
        QFETCH(QString, value);
        m_rig->fromUser(ENUM_MenuIndex(item), value);
        QTEST(m_client->take(), "request");
        QTEST(m_rig->device->sent.take().join('|'), "overTheBus");
    }

private:
    std::unique_ptr<EngineRig> m_rig;
    RestClient *m_client = nullptr;
};

FPD_TEST(TestRestRouting)
#include "tst_restrouting.moc"
