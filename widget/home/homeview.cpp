#include "widget/home/homeview.h"

#include "framework/engine/keyleds.h"
#include "framework/object/objectpool.h"
#include "menu/objectindex.h"
#include "widget/home/homepicture.h"
#include "widget/page/openpage.h"

#include <QFile>
#include <QPainter>

using namespace VASK;

namespace
{
/// What the layers show before the device has told anything.
struct FirstLayer {
    const char *source;
    const char *resolution;
    ENUM_MainWindowLayerState signal;
    ENUM_CommonState window;
};
constexpr FirstLayer firstLayers[] = {
    {"HDMI1", "1920x1080@29.99", LAYER_ON, COMMON_ON},
    {"SDI", "1920x1080@29.9", LAYER_ON, COMMON_OFF},
    {"MOSAIC", "1920x1080@29", LAYER_NO_SIGNAL, COMMON_ON},
};

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

/// The labels stand before all else: setters may come as soon as the home screen is in the pool.
Ui_MainWindow setUp(QWidget &window)
{
    Ui_MainWindow ui;
    ui.setupUi(&window);
    ui.labLock->hide();
    return ui;
}
} // namespace

HomeView::HomeView(QWidget &window) : m_ui(setUp(window)), m_address(*m_ui.labIp), m_ports(m_ui.labNet) {}

bool HomeView::loadPictures()
{
    const QString background = homePicturePath("K2860-bg.png");
    if (!m_background.load(background))
        qDebug() << "Set MainWindowBackGround image fail:" << background;
    if (showHomePicture(m_ui.labLock, "lock.png", "image load faild! imagePath:"))
        return true;
    qDebug() << "setLockState image fail";
    return false;
}

void HomeView::showFirstValues()
{
    m_address.setAddress("192.168.0.10");
    m_address.setName(QString());
    for (int layer = 0; layer < LAYER_COUNT; ++layer) {
        setLayerName(layer, firstLayers[layer].source);
        setLayerRes(layer, firstLayers[layer].resolution);
        setLayerState(layer, firstLayers[layer].signal);
    }
    for (int layer = 0; layer < LAYER_COUNT; ++layer) {
        Ui_MainWindow::showKey(m_ui.labWindowOffDisplay[layer], "Inactive");
        setWindowState(layer, firstLayers[layer].window);
    }
    setScreenRes("1920x1080@29.99");
}

void HomeView::paint(QWidget &window) const
{
    QPainter(&window).drawPixmap(0, 0, m_background);
}

void HomeView::tick()
{
    m_address.tick();
    m_ports.tick();
}

bool HomeView::setWindowName(int window, const QString &name)
{
    if (!isLayer(window))
        return false;
    m_ui.labWindow[window]->setText(name);
    return true;
}

bool HomeView::setLayerName(int layer, const QString &name)
{
    if (!isLayer(layer))
        return false;
    Ui_MainWindow::showKey(m_ui.labLayerSrc_Name[layer], name);
    return true;
}

bool HomeView::setLayerRes(int layer, const QString &resolution)
{
    if (!isLayer(layer))
        return false;
    Ui_MainWindow::showText(m_ui.labLayerSrc_Res[layer], resolution);
    return true;
}

bool HomeView::setWindowState(int window, ENUM_CommonState state)
{
    if (!isLayer(window))
        return false;
    if (state != COMMON_ON && state != COMMON_OFF) {
        qDebug() << "State is invalid:" << state;
        return false;
    }
    showWindowState(window, state == COMMON_ON);
    return true;
}

void HomeView::showWindowState(int window, bool on)
{
    Ui_MainWindow::setSwitch(m_ui.labWindow[window], on);
    m_ui.labLayerSrc_Name[window]->setVisible(on);
    m_ui.labLayerSrc_Res[window]->setVisible(on);
    m_ui.labWindowOffDisplay[window]->setVisible(!on);
    if (ObjectPool::getInstance()->IsExist(ENUM_MAIN_MENU))
        showLayerLeds(OpenPage::layer());
    showSourceLeds();
}

bool HomeView::setLayerState(int layer, ENUM_MainWindowLayerState state)
{
    if (!isLayer(layer))
        return false;
    if (state != LAYER_ON && state != LAYER_NO_SIGNAL) {
        qDebug() << "layer state is invalid:" << state;
        return false;
    }
    showLayerState(layer, state == LAYER_ON);
    return true;
}

void HomeView::showLayerState(int layer, bool on)
{
    const QString path = homePicturePath(on ? "layer_on.png" : "layer_off.png");
    if (QFile::exists(path)) {
        const QString style = Ui_MainWindow::sourceNameStyle(path);
        if (m_ui.labLayerSrc_Name[layer]->styleSheet() != style)
            m_ui.labLayerSrc_Name[layer]->setStyleSheet(style);
    } else {
        qDebug() << "load ICON fail, path:" << path;
    }
    if (!on)
        Ui_MainWindow::showKey(m_ui.labLayerSrc_Res[layer], "No Signal");
    showSourceLeds();
}

bool HomeView::setSynMode(const QString &source)
{
    m_ui.labSynName->setText(source);
    return true;
}

bool HomeView::setSynModeState(ENUM_MainWindowSynState state)
{
    qDebug() << "SetSynModeState start!!! == " << state;
    if (state < SYN_ON || state > SYN_FAILED) {
        qDebug() << "SynState is invalid:" << state;
        return false;
    }
    showSynState(state);
    qDebug() << "SetSynModeState end!!!";
    return true;
}

void HomeView::showSynState(ENUM_MainWindowSynState state)
{
    static const char *const files[] = {"syn_on.png", "syn_off.png", "syn_wait.png", "syn_fail.png"};
    showHomePicture(m_ui.labSyn, files[state], "Set QLabel Icon fail, path:");
    Ui_MainWindow::setSwitch(m_ui.labSyn, state != SYN_OFF);
    Ui_MainWindow::setSwitch(m_ui.labSynName, state != SYN_OFF);
}

bool HomeView::setConnectState(ENUM_MainWindowConnectState state)
{
    static const char *const files[] = {"2960-Net_connected.png", "2960-USBLoop.png",
                                        "2960-Net_unconnected.png", "2960-USB.png"};
    const char *file = fileOf(files, state, "connect state is invalid:");
    if (!file)
        return false;
    showHomePicture(m_ui.labConnectState, file, "load ICON fail, path:");
    return true;
}

bool HomeView::setTestMode(ENUM_MainWindowTESTMode mode)
{
    static const char *const files[] = {"2960-Test_Normal.png", "2960-Test_Test.png", "2960-Test_FRZ.png",
                                        "2960-Test_Black.png"};
    const char *file = fileOf(files, mode, "No this test mode:");
    if (!file)
        return false;
    showHomePicture(m_ui.labTestMode, file, "load ICON fail, path:");
    return true;
}

bool HomeView::setNetState(ENUM_MainWindowNetIndex port, ENUM_MainWindowNetState state)
{
    if (port < NET_PORT1 || port >= NET_PORT_COUNT || state < NET_DISABLED || state >= NET_STATE_NONE) {
        qDebug() << "net state is invalid:" << port << state;
        return false;
    }
    m_ports.show(port, state);
    return true;
}

/// The screen of this model has no label for it.
bool HomeView::setOptWorkMode(ENUM_MainWindowOPTWorkMode mode) const
{
    static const char *const files[] = {"opt_copy.png", "opt_backup.png"};
    return fileOf(files, mode, "opt work mode is invalid:");
}

bool HomeView::setDevNameState(ENUM_CommonState state)
{
    m_ui.labDeviceName->setVisible(state != COMMON_OFF);
    return true;
}

bool HomeView::setScreenRes(const QString &resolution)
{
    m_ui.labScreenRes->setText(resolution);
    return true;
}

bool HomeView::setBrightness(const QString &brightness)
{
    m_ui.labBright->setText(brightness);
    return true;
}
