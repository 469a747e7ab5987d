#include "initialize.h"

#include "boardio.h"
#include "framework/communication/http/httpservice.h"
#include "framework/engine/device.h"
#include "framework/engine/paraprocess.h"
#include "framework/input/keyevent.h"
#include "framework/object/globaltimer.h"
#include "framework/object/transport.h"
#include "framework/protocol/bus/apipcservice.h"
#include "framework/protocol/link/proto3rd.h"
#include "framework/protocol/link/proto4rd.h"
#include "framework/protocol/snapshot/protomemory20m.h"
#include "framework/store/menuanalysis.h"
#include "framework/ui/language.h"
#include "framework/ui/textfile.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/home/mainwindow_k2860.h"
#include "widget/page/directoryengineer.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <new>

using namespace VASK;

QTime runTime1;

namespace
{
/// This program has come so far that the device side may go on.
const QString panelFlag = "/etc/init.d/flag_fpdspi";
/// The FPGA link is up.
const QString deviceFlag = "/etc/init.d/flag_fpgaspi";
constexpr unsigned long deviceFlagPollUs = 50000;

/// The service objects and the state that one step leaves to a later one. The objects live until the process
/// ends.
class StartUp
{
public:
    void run();

private:
    struct Step {
        bool (StartUp::*work)();
        /// Logged when the step ends the start-up.
        const char *failure;
    };
    static const Step steps[];

    bool createProto3rd();
    bool createApipc();
    bool createMemory();
    bool createStore();
    bool createParaProcess();
    bool createTransport();
    bool createHttp();
    bool createProto4rd();
    bool fillPool();
    bool initializeMemory();
    bool initializeStore();
    bool loadTranslation();
    bool createHomeScreen();
    bool initializeParaProcess();
    bool readSnapshot();
    bool raisePanelFlag();
    bool buildMenus();
    bool initializeHomeScreen();
    bool waitForDevice();
    bool showStartValues();
    bool readStartState();
    bool showHomeScreen();
    bool connectApipc();
    bool startProto3rd();
    bool startProto4rd();
    bool finish();

    Proto3rd *m_proto3rd = nullptr;
    APiPCService *m_apipc = nullptr;
    ProtoMemory20M *m_memory = nullptr;
    MenuAnalysis *m_store = nullptr;
    ParaProcess *m_paraProcess = nullptr;
    transport *m_transport = nullptr;
    httpService *m_http = nullptr;
    Proto4rd *m_proto4rd = nullptr;
    MainWindow *m_mainWindow = nullptr;
    ST_ItemInfo m_screenLock;
    WorkMode m_workMode = WORK_CONTROLLER;
};

// The order is fixed: each step leans on those before it.
const StartUp::Step StartUp::steps[] = {
    {&StartUp::createProto3rd, "ProtocolInterface init fail!"},
    {&StartUp::createApipc, ""},
    {&StartUp::createMemory, ""},
    {&StartUp::createStore, ""},
    {&StartUp::createParaProcess, ""},
    {&StartUp::createTransport, "transport init fail!"},
    {&StartUp::createHttp, ""},
    {&StartUp::createProto4rd, ""},
    {&StartUp::fillPool, ""},
    {&StartUp::initializeMemory, "protoMemory20M init fail!"},
    {&StartUp::initializeStore, "MenuAnalysis init fail!"},
    {&StartUp::loadTranslation, ""},
    {&StartUp::createHomeScreen, ""},
    {&StartUp::initializeParaProcess, "process init fail!"},
    {&StartUp::readSnapshot, ""},
    {&StartUp::raisePanelFlag, ""},
    {&StartUp::buildMenus, ""},
    {&StartUp::initializeHomeScreen, ""},
    {&StartUp::waitForDevice, ""},
    {&StartUp::showStartValues, ""},
    {&StartUp::readStartState, ""},
    {&StartUp::showHomeScreen, ""},
    {&StartUp::connectApipc, "APiPCService init fail!"},
    {&StartUp::startProto3rd, "PROTOCOINTERFER_3RD init fail!"},
    {&StartUp::startProto4rd, "PROTOCOINTERFER_4RD init fail!"},
    {&StartUp::finish, ""},
};

void logMark(int step)
{
    qDebug() << "start-up time ->" << QTime::currentTime().toString("hh:mm:ss.zzz")
             << runTime1.msecsTo(QTime::currentTime()) << "<- main 55555555 ,line:" << step;
}

void StartUp::run()
{
    int number = 0;
    for (const Step &step : steps) {
        logMark(++number);
        if (!(this->*step.work)()) {
            qDebug() << step.failure;
            return;
        }
    }
    logMark(++number);
}

bool StartUp::createProto3rd()
{
    m_proto3rd = new (std::nothrow) Proto3rd(ENUM_PROTOCOINTERFER_3RD);
    return m_proto3rd;
}

bool StartUp::createApipc()
{
    m_apipc = new APiPCService(ENUM_COMMUNICATION_APIPC);
    return true;
}

bool StartUp::createMemory()
{
    m_memory = new ProtoMemory20M(ENUM_PROTOMEMORY_20M);
    return true;
}

bool StartUp::createStore()
{
    m_store = new MenuAnalysis(ENUM_MENUANALYSIS);
    return true;
}

bool StartUp::createParaProcess()
{
    m_paraProcess = new ParaProcess(ENUM_PARAPROCESS);
    return true;
}

bool StartUp::createTransport()
{
    m_transport = new (std::nothrow) transport(ENUM_TRANSPORT);
    return m_transport;
}

bool StartUp::createHttp()
{
    m_http = new httpService(ENUM_COMMUNICATION_HTTP);
    return true;
}

bool StartUp::createProto4rd()
{
    m_proto4rd = new (std::nothrow) Proto4rd(ENUM_PROTOCOINTERFER_4RD);
    return true;
}

bool StartUp::fillPool()
{
    m_transport->InsertObject(ENUM_PROTOCOINTERFER_3RD, m_proto3rd);
    m_transport->InsertObject(ENUM_PROTOCOINTERFER_4RD, m_proto4rd);
    m_transport->InsertObject(ENUM_COMMUNICATION_APIPC, m_apipc);
    m_transport->InsertObject(ENUM_PARAPROCESS, m_paraProcess);
    m_transport->InsertObject(ENUM_PROTOMEMORY_20M, m_memory);
    m_transport->InsertObject(ENUM_MENUANALYSIS, m_store);
    m_transport->InsertObject(ENUM_COMMUNICATION_HTTP, m_http);
    m_transport->InsertObject(ENUM_TRANSPORT, m_transport);
    return true;
}

bool StartUp::initializeMemory()
{
    return m_memory->initialize();
}

bool StartUp::initializeStore()
{
    return m_store->initlize();
}

/// Without a translation the texts of the tables are shown.
bool StartUp::loadTranslation()
{
    auto *translator = new TextFile(QCoreApplication::instance());
    if (translator->loadFile(board::filePath(languageFile(false)))) {
        if (!QCoreApplication::installTranslator(translator))
            qDebug() << "install qm failed!";
        qDebug() << "######Install qm ok!";
    } else {
        qWarning() << "main:load qm failed!";
        delete translator;
    }
    // The store's choice already rules the styles, and what is shown must be in the same language.
    if (englishChosen())
        installLanguage(m_paraProcess, true);
    return true;
}

/// The object alone; what it shows is made once the pages are there.
bool StartUp::createHomeScreen()
{
    m_mainWindow = new MainWindow(ENUM_MAIN_WINDOW);
    m_transport->InsertObject(ENUM_MAIN_WINDOW, m_mainWindow);
    return true;
}

bool StartUp::initializeParaProcess()
{
    return m_paraProcess->Initialize();
}

bool StartUp::readSnapshot()
{
    m_paraProcess->InitReadParaFrom20M();
    return true;
}

/// Opening creates the file and leaves the contents of an older one alone.
bool StartUp::raisePanelFlag()
{
    QFile flag(board::filePath(panelFlag));
    if (!flag.open(QIODevice::ReadWrite | QIODevice::Text))
        qDebug() << "start-up: cannot open" << panelFlag << flag.errorString();
    return true;
}

bool StartUp::buildMenus()
{
    DirectoryEngineer engineer(ENUM_DIRECTORY_ENGINEER);
    const bool built = engineer.CreateAllMenu();
    qDebug() << (built ? "CreateAllMenu Successful!" : "CreateAllMenu fail!");
    return true;
}

bool StartUp::initializeHomeScreen()
{
    qDebug() << "init mainWindow!";
    m_mainWindow->Init(); // logs what it misses
    return true;
}

/// Without limit: there is nothing to show and nothing to do without the device.
bool StartUp::waitForDevice()
{
    while (!QFileInfo(board::filePath(deviceFlag)).isFile()) {
        qDebug() << "sleep start!";
        QThread::usleep(deviceFlagPollUs);
        qDebug() << "sleep end!";
    }
    return true;
}

bool StartUp::showStartValues()
{
    m_paraProcess->InitializeMainWindow();
    m_paraProcess->InitdefaultValue();
    return true;
}

bool StartUp::readStartState()
{
    m_store->GetMenuItem(MENU_ScreenLock, m_screenLock);
    m_workMode = DeviceView(*m_paraProcess).workMode();
    return true;
}

/// A fiber converter shows no home screen, so it has no way home and no lock either.
bool StartUp::showHomeScreen()
{
    if (m_workMode == WORK_FIBER)
        return true;
    m_mainWindow->show();
    if (m_screenLock.value == SELECTED)
        m_mainWindow->SetLockState(PANEL_LOCK, false);
    GlobalTimer::getInstance()->Initialize(m_mainWindow);
    return true;
}

bool StartUp::connectApipc()
{
    m_apipc->ApipcInit();
    return m_apipc->Initalize();
}

bool StartUp::startProto3rd()
{
    return m_proto3rd->initialize();
}

bool StartUp::startProto4rd()
{
    return m_proto4rd && m_proto4rd->initialize();
}

bool StartUp::finish()
{
    qDebug() << "init OK!";
    if (m_workMode == WORK_FIBER)
        KeyEvent::LightFiber(true);
    return true;
}
} // namespace

void Initialize()
{
    StartUp().run();
}
