// The four resets: what survives, what comes back, what the user is told, and once in a run of the program.

#include "netstatus.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

using namespace VASK;

namespace
{
// What a reset meets, and what is left of it.
const QString before =
    "CommunicationMode=1 Net_{NetMode=1 SubnetMask=255.0.0.0} HDCPMemory=0 FnMode=3 BootLogo=0 "
    "ScreenBrightness=13 MainLayer_InputSource=1";
const QString gone = " RestoreDone=1 BootLogo=0 ScreenBrightness=60 MainLayer_InputSource=2 ";
const QString network = "CommunicationMode=1 Net_{NetMode=1 SubnetMask=255.0.0.0} HDCPMemory=0 ";
const QString noNetwork = "CommunicationMode=0 Net_{NetMode=0 SubnetMask=255.255.255.0} HDCPMemory=1 ";
// What the device did itself is told at home, and neither sent nor probed.
const QString told = "asks IsResting ResetSucceed; priority ", done = "asks IsResting ResetSucceed; sends ";
const CaseLines resetLines{
    {"", before, "user SaveIP=0", done + "SaveIP=; priority 0; leaves" + gone + network + "FnMode=0"},
    {"", before, "device SaveIP=0", told + "0; leaves" + gone + network + "FnMode=0"},
    {"", before, "user SaveUserData=0",
     done + "SaveUserData=; priority 0; leaves" + gone + network + "FnMode=3"},
    {"", before, "device SaveUserData=0", told + "0; leaves" + gone + network + "FnMode=3"},
    {"", before, "user ResetAll=0", done + "ResetAll=; priority 1; leaves" + gone + noNetwork + "FnMode=0"},
    {"", before, "device ResetAll=0", told + "1; leaves" + gone + noNetwork + "FnMode=0"},
    {"", before, "device ClearAllParameters=", told + "1; leaves ScreenBrightness=60"},
    {"the Fn key is marked again", "FnMode=4", "user SaveUserData=0",
     done + "SaveUserData=; leaves Fn_{Synchronization? HDMIOutput? FTB? Freeze? TestPattern!}"},
    {"a sending card ends", "WorkMode=2 PIP1-", "user ResetAll=0",
     done + "ResetAll=; leaves WorkMode=0 MainLayer_InputSource=2 PIP1+ VideoController! SendingCard?"},
};

/// A sending card stays one, with the whole list of its sources.
const QString card = "WorkMode=2 MainLayer_{InputSource=1 InputSource/3-}";
const QString staysCard =
    "leaves WorkMode=2 VideoController? FiberConverter? SendingCard! MainLayer_{InputSource/3- InputSource=1 "
    "Status=1 "
    "ScalingMode=1 Status- ScalingMode- HorWidth- VerHeight- Priority- InputCrop- Opacity-} "
    "MainLayerTransition=1 "
    "OutputFrameRate- PIP1- PIP2- Layout- MosaicInput- PresetSettings- ImageMosaic- MainLayerTransition- "
    "TransitionDuration- Fn_HDMIOutput- Sync_Source- HDMIOutput- Mode3D- InputBackup_Mosaic-";
const CaseLines cardLines{
    {"", card, "user SaveIP=0", done + "SaveIP=; " + staysCard},
    {"", card, "user SaveUserData=0", done + "SaveUserData=; " + staysCard},
};

/// Whoever began the first, no other follows in a run of the program.
CaseLines onceLines()
{
    const QString all =
        "user SaveIP=0; device SaveIP=0; user SaveUserData=0; device SaveUserData=0; user ResetAll=0; "
        "device ResetAll=0; user ClearAllParameters=0; device ClearAllParameters=0";
    CaseLines lines;
    for (const QString &first : all.split("; "))
        lines << CaseLine{first + " was first", first + "; ScreenBrightness=13", all,
                          "leaves ScreenBrightness=13"};
    return lines;
}
} // namespace

class TestApplyReset : public CaseTest
{
    Q_OBJECT
    CaseLines lines() const override
    {
        static const CaseLines all = resetLines + cardLines + onceLines();
        return all;
    }
    void begin() override
    {
        m_rig->reset();
        set_pc_connect_priority(0);
        tool("fpga", "case $1 in -v) echo 'FPGA version is V1.2.3';; r) echo 0x01;; esac");
    }

private slots:
    void clearsPictures_data()
    {
        addColumns<int, bool>({"reset", "cleared"});
        addRow("save IP", MENU_SaveIP, true);
        addRow("save user data", MENU_SaveUserData, false);
        addRow("reset all", MENU_ResetAll, true);
        addRow("clear all", MENU_ClearAllParameters, true);
    }
    void clearsPictures()
    {
        const auto [reset, cleared] = fetched<int, bool>({"reset", "cleared"});
        const QString name = m_rig->path("/usr/vask/etc/osd/one.bmp");
        QFile picture(name);
        QVERIFY(picture.open(QIODevice::WriteOnly));
        m_rig->fromUser(ENUM_MenuIndex(reset), "0");
        QCOMPARE(!QFile::exists(name), cleared);
    }

    void clearAll()
    {
        QFile standard(m_rig->path("/usr/vask/etc/logo/logo_vask.bmp"));
        QVERIFY(standard.open(QIODevice::WriteOnly));
        standard.write("standard");
        standard.close();
        set_pc_connect_priority(0);
        m_rig->set(MENU_ScreenBrightness, "13");
        m_rig->set(MENU_BootLogo, "0");
        m_rig->store->updateActivittyItem();
        // On a slow machine the store's own write would come before the look at the file.
        m_rig->store->findChild<QTimer *>()->stop();
        m_rig->fromUser(MENU_ClearAllParameters, "0");

        auto contents = [this](const char *name) {
            QFile file(m_rig->path(name));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        QCOMPARE(contents("/usr/vask/etc/logo/logo.bmp"), QByteArray("standard"));
        QCOMPARE(contents("/usr/vask/etc/fpd/config/config.xml"),
                 contents("/usr/vask/etc/fpd/config/config_factory.xml"));
        m_rig->store->restartUpdateTimer();
        // A later write does not bring the old values back.
        m_rig->store->updateActivittyItem();
        MenuAnalysis next(ENUM_MENUANALYSIS);
        next.initlize();
        QString brightness;
        next.GetItemCurValue(MENU_ScreenBrightness, brightness);
        QCOMPARE(brightness, QString("60"));
        QCOMPARE(get_pc_connect_priority(), 1);
        QCOMPARE(m_rig->device->sent.take(), QStringList{"ResetAll="});
        QCOMPARE(m_rig->messages, (QStringList{"IsResting", "ResetSucceed"}));
    }

private:
    /// What a shell tool of the board prints.
    void tool(const char *name, const char *script)
    {
        QFile file(m_rig->statePath(QString("/bin/%1").arg(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("#!/bin/sh\n") + script + "\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

FPD_TEST(TestApplyReset)
#include "tst_applyreset.moc"
