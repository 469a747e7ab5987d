// The doors of the engine. Behind each stands the class or the table of its subject.

#include "framework/engine/paraprocess.h"

#include "framework/engine/device.h"
#include "framework/engine/displaymode.h"
#include "framework/engine/homeupdater.h"
#include "framework/engine/keyleds.h"
#include "framework/engine/limits/limits.h"
#include "framework/engine/parachange.h"
#include "framework/engine/portstates.h"
#include "framework/engine/presets.h"
#include "framework/engine/processdata.h"
#include "framework/engine/sdichoice.h"
#include "framework/engine/sourcenames.h"
#include "framework/engine/start/servicestart.h"
#include "framework/engine/start/snapshotstart.h"
#include "framework/engine/start/startvalues.h"
#include "framework/store/menuanalysis.h"
#include "framework/ui/dialogs.h"

#include <QCoreApplication>
#include <QThread>

namespace VASK
{
std::atomic<bool> ParaProcess::init_20m_flg{false};
std::atomic<bool> ParaProcess::bHaveSDI{false};
std::atomic<bool> ParaProcess::bRelOnloadRegionStart{false};
std::atomic<bool> ParaProcess::m_ResetFlg{false};
int ParaProcess::m_CopySceneNum = -1;

namespace
{
/// What a row would make of a reported value.
QString insideItsLimits(const ST_ItemInfo &item, const QString &value)
{
    if (!item.params.isEmpty())
        return knownOption(item, value);
    return item.min == item.max || value.isEmpty() ? value : withinLimits(item, value);
}
} // namespace

struct ParaProcess::Parts {
    explicit Parts(ParaProcess &engine)
        : home(engine), ports(engine, home), presets(engine), services(engine), snapshot(engine)
    {
    }

    ProcessData data;
    HomeUpdater home;
    PortStates ports;
    Presets presets;
    ServiceStart services;
    SnapshotStart snapshot;
};

ParaProcess::ParaProcess(ENUM_ObjectIndex index) : VaskObject(index), m_parts(std::make_unique<Parts>(*this))
{
}

ParaProcess::~ParaProcess() = default;

const ProcessData &ParaProcess::processData() const
{
    return m_parts->data;
}

HomeUpdater &ParaProcess::home()
{
    return m_parts->home;
}

Presets &ParaProcess::presets()
{
    return m_parts->presets;
}

ServiceStart &ParaProcess::services()
{
    return m_parts->services;
}

MenuAnalysis *ParaProcess::neededStore()
{
    auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    if (!store)
        qDebug() << "pmenu is null";
    return store;
}

bool ParaProcess::Initialize()
{
    qDebug() << "<- ParaProcess::Initialize start";
    m_parts->home.find();
    MenuAnalysis *store = neededStore();
    if (!store)
        return false;
    askBeforeOtherConfiguration(*this);
    m_parts->services.readRootVersion();
    setStartValues(*this, *store);
    m_parts->home.connectSignals();
    m_parts->data.clear();
    qDebug() << "<- ParaProcess::Initialize end";
    return true;
}

void ParaProcess::InitReadParaFrom20M()
{
    m_parts->snapshot.read();
}

void ParaProcess::InitParaFrom20M()
{
    if (MenuAnalysis *store = neededStore())
        m_parts->snapshot.push(*store);
}

void ParaProcess::InitializeMainWindow()
{
    if (!m_parts->home.needed() || !neededStore())
        return;
    InitParaFrom20M();
    UpdataDevRename();
    m_parts->home.showAll();
    SaveProcessData(QString::number(GetLowLayerNum()), PARA_LowestLayer);
    init_20m_flg = true;
}

void ParaProcess::InitdefaultValue()
{
    m_parts->home.showNothing();
}

QString ParaProcess::GetParaFromIndex(ENUM_MenuIndex index) const
{
    if (index >= PARA_CabinetWidth && index < PARA_TextEnd)
        return m_parts->data.text(index);
    QString value;
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->GetItemCurValue(index, value);
    return value;
}

bool ParaProcess::GetInfoFromIndex(ENUM_MenuIndex index, ST_ItemInfo &item) const
{
    // Behind them stand process data and messages, which are no items.
    if (index < PARA_CabinetWidth)
        if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
            store->GetMenuItem(index, item);
    return true;
}

bool ParaProcess::GetPortLinkStatus() const
{
    return m_parts->ports.anyLink();
}

unsigned char ParaProcess::GetLowLayerNum()
{
    return showScaleLed(*this);
}

QString ParaProcess::GetInputNameByIndex(const QString &key) const
{
    return inputName(key);
}

QString ParaProcess::GetSourceNameByCode(unsigned char code) const
{
    return sourceName(code);
}

void ParaProcess::SetParaToXml(QString value, ENUM_MenuIndex index, ENUM_MODE_SET_XML mode)
{
    MenuAnalysis *store = neededStore();
    if (!store)
        return;
    ParaChange change(*this, *store, value, index, mode);
    if (change.fromDevice() && change.hasNoRow())
        change.value = value = insideItsLimits(change.info(index), value);
    if (index >= PARA_CabinetWidth && index < PARA_TextEnd)
        SaveProcessData(value, index);
    else
        store->UpdataItemCurValue(index, value);
    if (mode == SET_XML_STORE)
        return;
    qDebug() << "index ==" << int(index);
    if (!m_parts->home.needed())
        return;
    const TableEntry<ApplyCase> found = findApplyCase(index);
    change.member = found.member;
    if (found.row)
        found.row->apply(change);
    else
        change.tail();
}

QString ParaProcess::CalParaLimit(QString value, ENUM_MenuIndex index)
{
    qDebug() << "CalParaLimit index ==" << int(index);
    const TableEntry<LimitCase> found = findLimitCase(index);
    return found.row ? found.row->apply({*this, value, index, found.member}) : value;
}

int ParaProcess::OutputFrameAdj(int rate, int outputRate) const
{
    return DeviceView(*this).followedRate(rate, outputRate);
}

void ParaProcess::SaveProcessData(QString value, ENUM_MenuIndex index)
{
    m_parts->data.set(index, value.toInt());
    if (index == PARA_DisplayMode)
        m_parts->home.showDisplayMode(value.toInt());
}

QDialog *ParaProcess::CreateDialog(ENUM_MenuIndex index, QString text)
{
    return createMessage(this, index, text);
}

int ParaProcess::runMessage(ENUM_MenuIndex index)
{
    if (QThread::currentThread() == QCoreApplication::instance()->thread())
        return VASK::runMessage(this, index).value_or(0);
    emit signal_popup_window(quint32(index));
    return 0;
}

void ParaProcess::UpdateIp()
{
    m_parts->snapshot.reloadAddress();
}

void ParaProcess::UpdataDevRename()
{
    m_parts->home.showName();
}

void ParaProcess::QuickLoadScene(int preset)
{
    if (MenuAnalysis *store = neededStore())
        quickLoadPreset(*this, *store, preset);
}

void ParaProcess::DeviceStartComplateHandle()
{
    m_parts->services.startComplete();
}

void ParaProcess::HdcpPoweronHandle()
{
    m_parts->services.switchHdcp();
}

void ParaProcess::SyncInit()
{
    m_parts->services.checkSync();
}

void ParaProcess::DhcpInit()
{
    m_parts->services.askForAddress();
}

void ParaProcess::UpdataDispMode(int code)
{
    if (MenuAnalysis *store = neededStore())
        followDisplayMode(*this, *store, code);
}

void ParaProcess::HideSdiMenu(bool bHave)
{
    bHaveSDI = bHave;
    if (MenuAnalysis *store = neededStore())
        offerSdi(*this, *store, bHave);
}

void ParaProcess::SetLayerSrc_Res(int layer)
{
    m_parts->home.showSignalOf(layer);
}

void ParaProcess::ChangeLayerSrc()
{
    m_parts->home.showSources();
}

int ParaProcess::FindKeyByValue(int code) const
{
    return DeviceView(*this).inputOfCode(code);
}

void ParaProcess::UpdatePortState(int port)
{
    m_parts->ports.show(port);
}

void ParaProcess::UpdataOPT1PortState(int port)
{
    m_parts->ports.showOfOpt1(port);
}

void ParaProcess::UpdateOPT1_PortLinkState()
{
    m_parts->ports.showAllOfOpt1();
}

void ParaProcess::UpdateOPTLinkState(int link)
{
    m_parts->ports.followLink(link);
}

void ParaProcess::UpdateOPT2PortBackUPState(int port)
{
    m_parts->ports.workOutOpt2Backup(port);
}
} // namespace VASK
