// What the home screen shows: a setter checks its arguments on the caller's thread and draws on the GUI
// thread.

#include "widget/home/mainwindow_k2860.h"

#include "framework/thread/handover.h"
#include "menuconfig_k2860.h"
#include "widget/home/mainwindowui.h"
#include "widget/page/menudirectoty.h"

using namespace VASK;

namespace
{
const QString pictures = imgPath + "mainWindow/";

bool isLayer(int index)
{
    if (index >= 0 && index < LAYER_COUNT)
        return true;
    qDebug() << "index is fault:" << index;
    return false;
}

/// The file of a state, by its number; null, with a log line, for a state that there is not.
template <size_t count> const char *fileOf(const char *const (&files)[count], int state, const char *failure)
{
    if (state >= 0 && size_t(state) < count)
        return files[state];
    qDebug() << failure << state;
    return nullptr;
}
} // namespace

bool MainWindow::setPicture(QLabel *label, const QString &path, const char *failure)
{
    const QPixmap picture(path);
    if (picture.isNull()) {
        qDebug() << failure << path;
        return false;
    }
    label->setPixmap(picture);
    return true;
}

bool MainWindow::SetWindowName(ENUM_MainWindowWindowIndex window, QString name)
{
    if (!isLayer(window))
        return false;
    runOnGui(this, [this, window, name] { ui->labWindow[window]->setText(name); });
    return true;
}

bool MainWindow::SetLayerName(ENUM_MainWindowLayerIndex layer, QString name)
{
    if (!isLayer(layer))
        return false;
    runOnGui(this, [this, layer, name] { Ui_MainWindow::showKey(ui->labLayerSrc_Name[layer], name); });
    return true;
}

bool MainWindow::SetLayerRes(ENUM_MainWindowLayerIndex layer, QString resolution)
{
    if (!isLayer(layer))
        return false;
    runOnGui(this,
             [this, layer, resolution] { Ui_MainWindow::showText(ui->labLayerSrc_Res[layer], resolution); });
    return true;
}

bool MainWindow::SetWindowState(ENUM_MainWindowWindowIndex window, ENUM_CommonState state)
{
    if (!isLayer(window))
        return false;
    if (state != COMMON_ON && state != COMMON_OFF) {
        qDebug() << "State is invalid:" << state;
        return false;
    }
    runOnGui(this, [this, window, state] { showWindowState(window, state == COMMON_ON); });
    return true;
}

void MainWindow::showWindowState(int window, bool on)
{
    Ui_MainWindow::setSwitch(ui->labWindow[window], on);
    ui->labLayerSrc_Name[window]->setVisible(on);
    ui->labLayerSrc_Res[window]->setVisible(on);
    ui->labWindowOffDisplay[window]->setVisible(!on);
    if (m_pMainMenu)
        MenuDirectory::UpdateLayerLedStatus(MenuDirectory::m_currentLayer);
    UpdateSourceLedStatus();
}

bool MainWindow::SetLayerState(ENUM_MainWindowLayerIndex layer, ENUM_MainWindowLayerState state)
{
    if (!isLayer(layer))
        return false;
    if (state != LAYER_ON && state != LAYER_NO_SIGNAL) {
        qDebug() << "layer state is invalid:" << state;
        return false;
    }
    runOnGui(this, [this, layer, state] { showLayerState(layer, state == LAYER_ON); });
    return true;
}

void MainWindow::showLayerState(int layer, bool on)
{
    const QString path = pictures + (on ? "layer_on.png" : "layer_off.png");
    if (QFile::exists(path)) {
        const QString style = Ui_MainWindow::sourceNameStyle(path);
        if (ui->labLayerSrc_Name[layer]->styleSheet() != style)
            ui->labLayerSrc_Name[layer]->setStyleSheet(style);
    } else {
        qDebug() << "load ICON fail, path:" << path;
    }
    if (!on)
        Ui_MainWindow::showKey(ui->labLayerSrc_Res[layer], "No Signal");
    UpdateSourceLedStatus();
}

bool MainWindow::SetSynMode(QString source)
{
    runOnGui(this, [this, source] { ui->labSynName->setText(source); });
    return true;
}

bool MainWindow::SetSynModeState(ENUM_MainWindowSynState state)
{
    qDebug() << "SetSynModeState start!!! == " << state;
    if (state < SYN_ON || state > SYN_FAILED) {
        qDebug() << "SynState is invalid:" << state;
        return false;
    }
    runOnGui(this, [this, state] { showSynState(state); });
    qDebug() << "SetSynModeState end!!!";
    return true;
}

void MainWindow::showSynState(ENUM_MainWindowSynState state)
{
    static const char *const files[] = {"syn_on.png", "syn_off.png", "syn_wait.png", "syn_fail.png"};
    setPicture(ui->labSyn, pictures + files[state], "Set QLabel Icon fail, path:");
    Ui_MainWindow::setSwitch(ui->labSyn, state != SYN_OFF);
    Ui_MainWindow::setSwitch(ui->labSynName, state != SYN_OFF);
}

bool MainWindow::SetConnectState(ENUM_MainWindowConnectState state)
{
    static const char *const files[] = {"2960-Net_connected.png", "2960-USBLoop.png",
                                        "2960-Net_unconnected.png", "2960-USB.png"};
    const char *file = fileOf(files, state, "connect state is invalid:");
    if (!file)
        return false;
    runOnGui(this,
             [this, file] { setPicture(ui->labConnectState, pictures + file, "load ICON fail, path:"); });
    return true;
}

bool MainWindow::SetTestMode(ENUM_MainWindowTESTMode mode)
{
    static const char *const files[] = {"2960-Test_Normal.png", "2960-Test_Test.png", "2960-Test_FRZ.png",
                                        "2960-Test_Black.png"};
    const char *file = fileOf(files, mode, "No this test mode:");
    if (!file)
        return false;
    runOnGui(this, [this, file] { setPicture(ui->labTestMode, pictures + file, "load ICON fail, path:"); });
    return true;
}

bool MainWindow::SetNetState(ENUM_MainWindowNetIndex port, ENUM_MainWindowNetState state)
{
    if (port < NET_PORT1 || port >= NET_PORT_COUNT || state < NET_DISABLED || state >= NET_STATE_NONE) {
        qDebug() << "net state is invalid:" << port << state;
        return false;
    }
    runOnGui(this, [this, port, state] { showNetState(port, state); });
    return true;
}

void MainWindow::showNetState(int port, ENUM_MainWindowNetState state)
{
    if (m_netStates[port] == state)
        return;
    static const char *const files[] = {"port%1_disable.png", "port%1_enable.png",
                                        "hotbackupport%1_enable.png", "hotbackupport%1_enable.png"};
    // A picture that is missing leaves the state, so that the next call tries again.
    if (showNetPicture(port, files[state]))
        m_netStates[port] = state;
}

bool MainWindow::showNetPicture(int port, const QString &name)
{
    return setPicture(m_netLabels[port], pictures + QString(name).replace("%1", QString::number(port + 1)),
                      "set net State faild,path:");
}

bool MainWindow::SetOPTWorkMode(ENUM_MainWindowOPTWorkMode mode)
{
    static const char *const files[] = {"opt_copy.png", "opt_backup.png"};
    const char *file = fileOf(files, mode, "opt work mode is invalid:");
    if (!file)
        return false;
    // The screen of this model has no label for it.
    runOnGui(this, [this, file] { m_optPicture = pictures + file; });
    return true;
}

bool MainWindow::SetIp(QString ip)
{
    {
        QMutexLocker lock(&m_mutex);
        m_strIp = ip;
    }
    runOnGui(this, [this, ip] { Ui_MainWindow::showKey(ui->labIp, ip); });
    return true;
}

bool MainWindow::SetDeviceRename(QString name)
{
    QString ip;
    {
        QMutexLocker lock(&m_mutex);
        m_strDeviceRename = name;
        ip = m_strIp;
    }
    // Without a name the address must not stay hidden behind the last one.
    if (name.isEmpty())
        runOnGui(this, [this, ip] { Ui_MainWindow::showKey(ui->labIp, ip); });
    return true;
}

bool MainWindow::SetDevNameState(ENUM_CommonState state)
{
    runOnGui(this, [this, state] { ui->labDeviceName->setVisible(state != COMMON_OFF); });
    return true;
}

bool MainWindow::SetScreenRes(QString resolution)
{
    runOnGui(this, [this, resolution] { ui->labScreenRes->setText(resolution); });
    return true;
}

bool MainWindow::SetBrightNess(QString brightness)
{
    runOnGui(this, [this, brightness] { ui->labBright->setText(brightness); });
    return true;
}

bool MainWindow::SetdeviceStartComplate()
{
    m_deviceStartComplate = true;
    return true;
}

/// Once a second: the address in turn with the device's name, and the ports that run on their backup.
void MainWindow::slot_Twinkledisplay()
{
    static unsigned ticks = 0;
    if (++ticks % 2 == 0) {
        QMutexLocker lock(&m_mutex);
        if (!m_strDeviceRename.isEmpty()) {
            if (m_namePhase)
                Ui_MainWindow::showText(ui->labIp, m_strDeviceRename);
            else
                Ui_MainWindow::showKey(ui->labIp, m_strIp);
            m_namePhase = !m_namePhase;
        }
    }
    bool blinking = false;
    for (int port = 0; port < m_netStates.size(); ++port) {
        if (m_netStates[port] != NET_BACKUP_BLINKING)
            continue;
        blinking = true;
        showNetPicture(port, m_blinkPhase ? "hotbackupport%1_enable.png" : "port%1_enable.png");
    }
    if (blinking)
        m_blinkPhase = !m_blinkPhase;
}

void MainWindow::UpdateSourceLedStatus()
{
    MenuDirectory::UpdateSourceLedStatus();
}
