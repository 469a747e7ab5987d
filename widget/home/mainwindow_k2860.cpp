#include "widget/home/mainwindow_k2860.h"

#include "framework/engine/brightnessedit.h"
#include "framework/engine/keyleds.h"
#include "framework/engine/paraprocess.h"
#include "framework/object/transport.h"
#include "framework/productiontest/productiontest.h"
#include "framework/thread/handover.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menu/objectindex.h"
#include "widget/home/homekeys.h"
#include "widget/home/homemessages.h"
#include "widget/home/homeview.h"
#include "widget/home/panellock.h"
#include "widget/home/takeover.h"
#include "widget/page/menudirectoty.h"
#include "widget/page/testwindows.h"
#include "widget/panelui.h"

using namespace VASK;

MainWindow::MainWindow(ENUM_ObjectIndex index)
    : HomeScreen(index), m_view(std::make_unique<HomeView>(*this)),
      m_lock(std::make_unique<PanelLock>(*this, *m_view)), m_messages(std::make_unique<HomeMessages>()),
      m_keys(std::make_unique<HomeKeys>(*this, *m_lock)),
      m_takeOver(std::make_unique<TakeOver>(*this, *m_lock))
{
    enterWidgets();
}

MainWindow::~MainWindow() = default;

bool MainWindow::Init()
{
    setFixedSize(Ui_MainWindow::width, Ui_MainWindow::height);
    setWindowFlags(Qt::FramelessWindowHint);
    if (!m_view->loadPictures())
        return false;
    m_view->showFirstValues();
    tran = poolObject<transport>(ENUM_TRANSPORT);
    if (!tran) {
        qDebug() << "tran get fail";
        return false;
    }
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    const bool signOff = engine && isOff(engine->GetParaFromIndex(MENU_MakerSign));
    SetDevNameState(signOff ? COMMON_OFF : COMMON_ON);
    for (int port = 0; port < NET_PORT_COUNT; ++port)
        SetNetState(ENUM_MainWindowNetIndex(port), NET_DISABLED);
    SetSynMode("DVI");
    SetSynModeState(SYN_OFF);
    SetConnectState(CONNECT_NONE);
    SetTestMode(TESTMODE_TEST);
    qDebug() << "MainWindow get transport start";
    if (!findMenus())
        return false;
    m_view->setStyles();
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

void MainWindow::logMenus() const
{
    qDebug() << "m_pMainMenu" << m_pMainMenu << "m_pUserHideMenu" << m_pUserHideMenu << "m_pProductHideMenu"
             << m_pProductHideMenu;
}

void MainWindow::SetParaEntry(ENUM_MenuIndex, QString, ENUM_MODE_SET_XML)
{
    runOnGui(this, [this] { m_view->translateAgain(); });
}

bool MainWindow::SetWindowName(ENUM_MainWindowWindowIndex window, QString name)
{
    return m_view->setWindowName(window, name);
}

bool MainWindow::SetLayerName(ENUM_MainWindowLayerIndex layer, QString name)
{
    return m_view->setLayerName(layer, name);
}

bool MainWindow::SetLayerRes(ENUM_MainWindowLayerIndex layer, QString resolution)
{
    return m_view->setLayerRes(layer, resolution);
}

bool MainWindow::SetWindowState(ENUM_MainWindowWindowIndex window, ENUM_CommonState state)
{
    return m_view->setWindowState(window, state);
}

bool MainWindow::SetLayerState(ENUM_MainWindowLayerIndex layer, ENUM_MainWindowLayerState state)
{
    return m_view->setLayerState(layer, state);
}

bool MainWindow::SetSynMode(QString source)
{
    return m_view->setSynMode(source);
}

bool MainWindow::SetSynModeState(ENUM_MainWindowSynState state)
{
    return m_view->setSynModeState(state);
}

bool MainWindow::SetConnectState(ENUM_MainWindowConnectState state)
{
    return m_view->setConnectState(state);
}

bool MainWindow::SetTestMode(ENUM_MainWindowTESTMode mode)
{
    return m_view->setTestMode(mode);
}

bool MainWindow::SetNetState(ENUM_MainWindowNetIndex port, ENUM_MainWindowNetState state)
{
    return m_view->setNetState(port, state);
}

bool MainWindow::SetOPTWorkMode(ENUM_MainWindowOPTWorkMode mode)
{
    return m_view->setOptWorkMode(mode);
}

bool MainWindow::SetIp(QString ip)
{
    m_view->address().setAddress(ip);
    return true;
}

bool MainWindow::SetDeviceRename(QString name)
{
    m_view->address().setName(name);
    return true;
}

QString MainWindow::ip() const
{
    return m_view->address().address();
}

QString MainWindow::deviceName() const
{
    return m_view->address().name();
}

bool MainWindow::SetDevNameState(ENUM_CommonState state)
{
    return m_view->setDevNameState(state);
}

bool MainWindow::SetScreenRes(QString resolution)
{
    return m_view->setScreenRes(resolution);
}

bool MainWindow::SetBrightNess(QString brightness)
{
    return m_view->setBrightness(brightness);
}

bool MainWindow::SetLockState(ENUM_MainWindowLockState state, bool showDialog)
{
    return m_lock->set(state, showDialog);
}

bool MainWindow::isLocked() const
{
    return m_lock->isLocked();
}

bool MainWindow::isTakenOver() const
{
    return m_lock->isTakenOver();
}

bool MainWindow::SetdeviceStartComplate()
{
    m_deviceStartComplate = true;
    return true;
}

void MainWindow::keypadLockEvent(KeypadEvent *)
{
    m_lock->toggle();
}

bool MainWindow::event(QEvent *event)
{
    if (!event)
        return false;
    auto *key = dynamic_cast<KeypadEvent *>(event);
    return key ? m_keys->handle(*key) : QWidget::event(event);
}

void MainWindow::slot_SetWinodwState(qint32 window, qint32 state)
{
    SetWindowState(ENUM_MainWindowWindowIndex(window), ENUM_CommonState(state));
}

void MainWindow::slot_SetLayerState(qint32 layer, qint32 state)
{
    SetLayerState(ENUM_MainWindowLayerIndex(layer), ENUM_MainWindowLayerState(state));
}

void MainWindow::slot_SetResState(qint32 layer, QString resolution)
{
    qDebug() << "SetLayerRes enum_MainWindowLayerIndex:" << layer << "layerResStr:" << resolution;
    SetLayerRes(ENUM_MainWindowLayerIndex(layer), resolution);
}

void MainWindow::slot_SetSynModeState(qint32 state)
{
    SetSynModeState(ENUM_MainWindowSynState(state));
}

void MainWindow::slot_SetSynModeState(qint8 signalState, QString text)
{
    m_messages->syncState(signalState, text);
}

void MainWindow::slot_popup_window(quint32 index)
{
    m_messages->run(ENUM_MenuIndex(index));
}

void MainWindow::slot_CreateDialog()
{
    m_messages->run(MSG_Waiting);
}

void MainWindow::slot_FactoryRest()
{
    m_messages->factoryReset();
}

void MainWindow::slot_softDeviceBackup(quint8 step)
{
    m_messages->deviceBackup(step);
}

void MainWindow::slot_softDeviceRestore(quint8 step)
{
    m_messages->deviceRestore(step);
}

void MainWindow::slot_soft_calibrate(quint8 state)
{
    m_messages->calibration(state);
}

void MainWindow::slot_update(quint8 mode, quint16 count)
{
    m_messages->update(mode, count);
}

void MainWindow::slot_ReturnToMainSoft(bool mode)
{
    qDebug() << "slot_ReturnToMain!!!!!!";
    if (ProductionTest::runs())
        return;
    if (mode)
        m_takeOver->end();
    else
        m_takeOver->begin();
    BrightnessEdit::end();
}

void MainWindow::slot_cancelLockDialog()
{
    m_lock->hideWindow();
}

void MainWindow::slot_Twinkledisplay()
{
    m_view->tick();
}

void MainWindow::UpdateSourceLedStatus()
{
    showSourceLeds();
}

void MainWindow::paintEvent(QPaintEvent *)
{
    m_view->paint(*this);
}

void MainWindow::showEvent(QShowEvent *)
{
    TestWindows::closeSelfCheck();
}
