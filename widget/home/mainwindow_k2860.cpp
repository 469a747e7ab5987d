// The home screen from its making to its first picture.

#include "widget/home/mainwindow_k2860.h"

#include "framework/engine/paraprocess.h"
#include "framework/object/transport.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/home/mainwindowui.h"
#include "widget/page/menudirectoty.h"

#include <QPainter>

using namespace VASK;

MenuDirectory *MainWindow::m_pMainMenu = nullptr;
MenuDirectory *MainWindow::m_pUserHideMenu = nullptr;
MenuDirectory *MainWindow::m_pProductHideMenu = nullptr;
transport *MainWindow::tran = nullptr;
std::atomic<bool> MainWindow::m_bLockFlag{false};
bool MainWindow::lock_mode = false;
QString MainWindow::m_strIp;
QString MainWindow::m_strDeviceRename;
std::atomic<bool> MainWindow::m_deviceStartComplate{false};
QTimer *MainWindow::m_pTwinkledisplayTimer = nullptr;
QPointer<QDialog> MainWindow::CalibratingDialog;
QMutex MainWindow::m_mutex;

namespace
{
const QString firstAddress = QStringLiteral("192.168.0.10");
const QString firstResolution = QStringLiteral("1920x1080@29.99");

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
} // namespace

MainWindow::MainWindow(ENUM_ObjectIndex index) : VaskUiObject(index), ui(new Ui_MainWindow)
{
    // The labels stand before Init: setters may come as soon as the object is in the pool.
    ui->setupUi(this);
    ui->labLock->hide();
    for (QLabel *label : ui->labNet) {
        m_netLabels.append(label);
        m_netStates.append(NET_STATE_NONE);
    }
}

MainWindow::~MainWindow() = default;

bool MainWindow::Init()
{
    setFixedSize(Ui_MainWindow::width, Ui_MainWindow::height);
    setWindowFlags(Qt::FramelessWindowHint);
    const QString background = imgPath + "mainWindow/K2860-bg.png";
    if (!m_background.load(background))
        qDebug() << "Set MainWindowBackGround image fail:" << background;
    if (!setPicture(ui->labLock, imgPath + "mainWindow/lock.png", "image load faild! imagePath:")) {
        qDebug() << "setLockState image fail";
        return false;
    }
    SetIp(firstAddress);
    SetDeviceRename(QString());
    InitLayer();
    InitWindow();
    SetScreenRes(firstResolution);
    tran = poolObject<transport>(ENUM_TRANSPORT);
    if (!tran) {
        qDebug() << "tran get fail";
        return false;
    }
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    const bool signOff = engine && engine->GetParaFromIndex(MENU_MakerSign) == QLatin1String("0");
    SetDevNameState(signOff ? COMMON_OFF : COMMON_ON);
    InitNetState();
    InitSynMode();
    SetConnectState(CONNECT_NONE);
    SetTestMode(TESTMODE_TEST);
    qDebug() << "MainWindow get transport start";
    if (!findMenus())
        return false;
    ui->setStyles();
    m_pTwinkledisplayTimer = new QTimer(this);
    m_pTwinkledisplayTimer->setObjectName("home blink");
    connect(m_pTwinkledisplayTimer, &QTimer::timeout, this, &MainWindow::slot_Twinkledisplay);
    m_pTwinkledisplayTimer->start(m_TwinkledisplayTimer);
    return true;
}

bool MainWindow::findMenus()
{
    struct Root {
        MenuDirectory *&page;
        ENUM_ObjectIndex object;
        const char *failure;
    };
    const Root roots[] = {
        {m_pMainMenu, ENUM_MAIN_MENU, "MainWindow Menu Directory init fail!"},
        {m_pUserHideMenu, ENUM_USER_HIDE_MENU, "User Hide Menu Directory init fail!"},
        {m_pProductHideMenu, ENUM_PRODUCT_HIDE_MENU, "Product Hide Menu Directory init fail!"},
    };
    for (const Root &root : roots) {
        root.page = poolObject<MenuDirectory>(root.object);
        if (!root.page) {
            qDebug() << root.failure;
            return false;
        }
    }
    return true;
}

void MainWindow::InitLayer()
{
    for (int layer = 0; layer < LAYER_COUNT; ++layer) {
        const auto index = ENUM_MainWindowLayerIndex(layer);
        SetLayerName(index, firstLayers[layer].source);
        SetLayerRes(index, firstLayers[layer].resolution);
        SetLayerState(index, firstLayers[layer].signal);
    }
}

void MainWindow::InitWindow()
{
    for (int layer = 0; layer < LAYER_COUNT; ++layer) {
        Ui_MainWindow::showKey(ui->labWindowOffDisplay[layer], "Inactive");
        SetWindowState(ENUM_MainWindowWindowIndex(layer), firstLayers[layer].window);
    }
}

void MainWindow::InitSynMode()
{
    SetSynMode("DVI");
    SetSynModeState(SYN_OFF);
}

void MainWindow::InitNetState()
{
    for (int port = 0; port < NET_PORT_COUNT; ++port)
        SetNetState(ENUM_MainWindowNetIndex(port), NET_DISABLED);
}

void MainWindow::paintEvent(QPaintEvent *)
{
    QPainter(this).drawPixmap(0, 0, m_background);
}

void MainWindow::showEvent(QShowEvent *)
{
    MenuDirectory::closeSelfCheck();
}
