// Plain items, language, boot logo, services and inputs, and reports that come from another thread.

#include "framework/engine/parachange.h"
#include "framework/protocol/send/sendrow.h"
#include "netstatus.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/enginerig.h"

#include <QThread>
#include <QTranslator>

using namespace VASK;

namespace
{
/// Rows on which the user sets a value.
bool changesItsItem(ENUM_ControlType type)
{
    return type == TYPE_STRINGCOMBOX || type == TYPE_ICOCOMBOX || type == TYPE_INTADJUST ||
           type == TYPE_FLOATADJUST || type == TYPE_IPADJUST || type == TYPE_CHECKITEM || type == TYPE_MOSAIC;
}
} // namespace

class TestApplySystem : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->reset(); }

    void noItemHasTwoCases()
    {
        QMap<int, int> seen;
        for (const Table<ApplyCase> &family : applyFamilies())
            for (const ApplyCase &row : family) {
                QVERIFY(row.span.first <= row.span.last);
                row.span.forEach([&seen](int index, int, int) {
                    QVERIFY2(++seen[index] == 1, QByteArray::number(index));
                });
            }
    }

    /// An item without a case goes through as it is; one that must not is among the kept.
    void plainItemsPassThrough()
    {
        const auto isKept = [](const ApplyCase *found) {
            return found && found >= keptCases().begin() && found < keptCases().end();
        };
        int plain = 0;
        for (ENUM_MenuIndex index : itemsOfBuiltPages()) {
            const ApplyCase *found = findApplyCase(index).row;
            if (found && !isKept(found))
                continue;
            plain += found ? 0 : 1;
            const QString value = m_rig->value(index);
            const QStringList line = found ? QStringList() : QStringList(itemnames::line(index, value));
            m_rig->forget();
            m_rig->fromUser(index, value);
            QCOMPARE(m_rig->device->sent.take(), line);
            QCOMPARE(m_rig->reported.take(), QStringList());
            m_rig->fromDevice(index, value);
            QCOMPARE(m_rig->device->sent.take(), QStringList());
            QStringList reported = m_rig->reported.take(); // by each of its rows
            reported.removeDuplicates();
            QCOMPARE(reported, line);
            QCOMPARE(m_rig->value(index), value);
            QCOMPARE(m_rig->reloaded.take() + m_rig->messages, QStringList());
        }
        QVERIFY(plain > 0);
    }

    /// What a row changes goes somewhere: to a case, to a register, or stays with a reason.
    void changedItemsGoSomewhere()
    {
        // These go out with their apply row, though the device tells them one by one.
        QSet<int> sent{MENU_Output_FrameRate, MENU_Net_SubnetMask, MENU_Net_Gateway};
        for (const Table<SendRow> &family : sendFamilies())
            for (const SendRow &row : family)
                row.span.forEach([&sent](int index, int, int) { sent << index; });
        QStringList lost;
        for (const ST_MenuConfig &page : qAsConst(g_config))
            for (const st_MenuItemInfo &row : page.rowsMap)
                if (changesItsItem(row.controlType) && !sent.contains(row.menuIndex) &&
                    !findApplyCase(row.menuIndex).row)
                    lost << QString("%1 on %2").arg(row.menuIndex).arg(page.title);
        QCOMPARE(lost.join(", "), QString());
    }

    void storingAloneDoesNothingElse()
    {
        m_rig->engine->SetParaToXml("1", MENU_Freeze, SET_XML_STORE);
        m_rig->engine->SetParaToXml("7", PARA_PortLink, SET_XML_STORE);
        m_rig->engine->SetParaToXml("44", MENU_ScreenBrightness, SET_XML_STORE);
        QCOMPARE(m_rig->value(PARA_DisplayMode), QString("0"));
        QCOMPARE(m_rig->value(PARA_PortLink), QString("7"));
        QCOMPARE(m_rig->value(MENU_ScreenBrightness), QString("44"));
        QVERIFY(m_rig->shown("labBright") != "44%");
        QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take() + m_rig->reloaded.take(), QStringList());
    }

    void equalReportStillRuns()
    {
        m_rig->fromDevice(MENU_Audio_Volume, "50");
        m_rig->fromDevice(MENU_Audio_Volume, "50");
        QCOMPARE(m_rig->reported.take(), (QStringList{"Audio_Volume=50", "Audio_Volume=50"}));
    }

    void languageSwitch()
    {
        m_rig->store->UpdataItemCurChoice(MENU_LanguageEn, SELECTED);
        m_rig->store->UpdataItemCurChoice(MENU_LanguageZh, UNSELECTED);
        m_rig->fromUser(MENU_LanguageEn, "1");
        QCOMPARE(m_rig->reported.take(), QStringList());
        m_rig->fromUser(MENU_LanguageZh, "1");
        QCOMPARE(m_rig->choice(MENU_LanguageZh) + m_rig->choice(MENU_LanguageEn), SELECTED + UNSELECTED);
        // Every row has been told to translate itself again. There are no texts here: nothing stays of them.
        QVERIFY(m_rig->reported.take().count("-1=") > 200);
        QCOMPARE(m_rig->engine->findChildren<QTranslator *>().size(), 0);
    }

    void bootLogo()
    {
        for (const char *logo : {"logo_vask", "logo_hide"}) {
            QFile file(m_rig->path(QString("/usr/vask/etc/logo/%1.bmp").arg(logo)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(logo);
        }
        auto logo = [this] {
            QFile file(m_rig->path("/usr/vask/etc/logo/logo.bmp"));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
        };
        m_rig->set(MENU_BootLogo, "1");
        m_rig->fromUser(MENU_BootLogo, "1");
        QCOMPARE(logo(), QByteArray("none"));
        m_rig->fromUser(MENU_BootLogo, "0");
        QCOMPARE(logo(), QByteArray("logo_hide"));
        m_rig->fromUser(MENU_BootLogo, "1");
        QCOMPARE(logo(), QByteArray("logo_vask"));
    }

    void softCalibrationWaitsForTheStart()
    {
        QSignalSpy calibrates(m_rig->engine, &ParaProcess::signal_soft_calibrate);
        QSignalSpy returns(m_rig->engine, &ParaProcess::signal_return_main);
        m_rig->engine->SetParaToXml("1", EVENT_SoftCalibrate, SET_XML_DEVICE);
        QCOMPARE(calibrates.count() + returns.count(), 0);
    }

    void syncIsCheckedAtStart()
    {
        const struct {
            const char *sync;
            int signalState, periodUs;
            int problem; ///< the signal state that is told, -1 for none
        } rows[] = {
            {"0", 0, 0, -1}, {"1", 3, 16667, -1}, {"1", 3, 20000, 3}, {"1", 0, 16667, 0}, {"1", 1, 0, 1}};
        for (const auto &row : rows) {
            m_rig->reset();
            m_rig->input(1, 98, row.signalState, 1920, 1080, row.periodUs);
            m_rig->set(MENU_Sync_Status, row.sync);
            m_rig->set(MENU_Sync_Source, "1");
            QSignalSpy problems(m_rig->engine, SIGNAL(signal_sync_state(qint8, QString)));
            disconnect(m_rig->engine, nullptr, m_rig->home, nullptr);
            m_rig->engine->SetParaToXml("1", EVENT_VideoServiceStarted, SET_XML_DEVICE);
            QCOMPARE(problems.count(), row.problem < 0 ? 0 : 1);
            if (row.problem < 0)
                continue;
            QCOMPARE(problems.first().first().value<qint8>(), qint8(row.problem));
            QCOMPARE(problems.first().last().toString(), QString("4"));
        }
    }

    void inputsOfEitherFamily()
    {
        QCOMPARE(m_rig->engine->GetSourceNameByCode(0x61) + m_rig->engine->GetSourceNameByCode(0x34) +
                     m_rig->engine->GetSourceNameByCode(0xC0),
                 QString("HDMI1.42SDI 5"));
        QCOMPARE(m_rig->engine->GetInputNameByIndex("2") + m_rig->engine->GetInputNameByIndex("4"),
                 QString("DVI"));
        const auto check = [this](const QMap<int, int> &wanted) {
            for (auto code = wanted.cbegin(); code != wanted.cend(); ++code)
                QCOMPARE(m_rig->engine->FindKeyByValue(code.key()), code.value());
        };
        check({{97, 255}, {17, 255}, {105, 255}, {0, 255}, {254, 255}}); // nothing has been listed yet
        const int listed[] = {17, 18, 0, 48, 106, 233, 234, 224, 254};
        for (int number = 0; number < 9; ++number)
            m_rig->input(number, listed[number], 0, 0, 0, 0);
        check({{17, 0}, {97, 0}, {18, 1}, {98, 1}, {0, 2}, {105, 2}, {48, 3}, {106, 4}, {254, 8}, {49, 255}});
        const int others[] = {97, 98, 105, 106};
        for (int number = 0; number < 4; ++number)
            m_rig->input(number, others[number], 0, 0, 0, 0);
        check({{17, 0}, {0, 2}, {106, 3}});
    }

    void messageOfTheTableOnly() { QCOMPARE(m_rig->engine->runMessage(MSG_SyncNeedsLowLatencyOff), 0); }

    void reportsFromAnotherThreadKeepTheirOrder()
    {
        ParaProcess::init_20m_flg = true;
        std::unique_ptr<QThread> reports(QThread::create([engine = m_rig->engine] {
            for (int round = 1; round <= 200; ++round) {
                engine->SetParaToXml(QString::number(round % 100), MENU_ScreenBrightness, SET_XML_DEVICE);
                engine->SetParaToXml(QString("10.0.0.%1").arg(round), MENU_Net_IPAddress, SET_XML_DEVICE);
                engine->SetParaToXml("1", MENU_Freeze, SET_XML_DEVICE);
                engine->SetParaToXml("1", MENU_Normal, SET_XML_DEVICE);
                engine->HideSdiMenu(round % 2);
                engine->SetParaToXml("1", EVENT_VideoServiceStarted, SET_XML_DEVICE);
            }
            engine->SetParaToXml("77", MENU_ScreenBrightness, SET_XML_DEVICE);
        }));
        reports->start();
        // The user turns the knob meanwhile.
        int value = 0;
        while (!reports->isFinished()) {
            m_rig->fromUser(MENU_Audio_Volume, QString::number(++value % 100));
            m_rig->engine->CalParaLimit("9", MENU_OutputFrameRate);
        }
        m_rig->settle();
        QCOMPARE(m_rig->value(MENU_ScreenBrightness), QString("77"));
        QTRY_COMPARE(m_rig->shown("labBright"), QString("77%"));
        QCOMPARE(m_rig->shown("labIp"), QString("10.0.0.200"));
        QCOMPARE(m_rig->value(MENU_Audio_Volume).toInt(), value % 100);
        QStringList brightness;
        for (const QString &line : m_rig->reported.take())
            if (line.startsWith("ScreenBrightness="))
                brightness << line.section('=', 1);
        QCOMPARE(brightness.size(), 201);
        QCOMPARE(brightness.mid(97, 3), (QStringList{"98", "99", "0"}));
    }

private:
    EngineRig *m_rig = nullptr;
};

FPD_TEST(TestApplySystem)
#include "tst_applysystem.moc"
