// The parameter engine: owns every parameter of the device. A changed value, from the user or from a report,
// goes through CalParaLimit and SetParaToXml, which store it, move what depends on it and hand it to the
// protocol. Entered on the GUI thread by rows and pages, and on the report thread for device values.
#pragma once

#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <QDialog>
#include <atomic>
#include <memory>

enum en_inout_test_index : int;
enum en_item_state : int;

namespace VASK
{
class HomeUpdater;
class MenuAnalysis;
class Presets;
class ProcessData;
class ServiceStart;
struct ST_ItemInfo;

class ParaProcess : public VaskObject
{
    Q_OBJECT
public:
    explicit ParaProcess(ENUM_ObjectIndex index);
    ~ParaProcess() override;
    int BuildHandshake(VaskObject const *, QMap<QString, QString>) override { return 0; }

    /// Fills the name maps, resets the display-only items and connects the home screen. False without a
    /// store.
    bool Initialize();
    /// Reads the blocks of the flash snapshot into the mirror.
    void InitReadParaFrom20M();
    /// Pushes the mirror into the menu, then sets everything on the home screen.
    void InitializeMainWindow();
    void InitdefaultValue();

    /// The value of an item or of a process-data field as text; empty if there is none. Any thread.
    QString GetParaFromIndex(ENUM_MenuIndex index) const;
    /// The whole item from the store. True in every case; an unknown item leaves the target as it was. Any
    /// thread.
    bool GetInfoFromIndex(ENUM_MenuIndex index, ST_ItemInfo &item) const;
    /// True when at least one Ethernet or optical port has a link.
    bool GetPortLinkStatus() const;
    /// The lowest layer that is on: 0 main, 1 PIP 1, 2 PIP 2, 255 none. Sets the scale LED.
    unsigned char GetLowLayerNum();
    /// The name of an input by the key of the source items; empty if there is none.
    QString GetInputNameByIndex(const QString &key) const;
    /// The name of a source code with its number, such as "HDMI1.42"; empty for an unknown code.
    QString GetSourceNameByCode(unsigned char code) const;

    /// Applies a value: stores it, moves what depends on it, shows it and, in user mode, sends it. Any
    /// thread.
    void SetParaToXml(QString value, ENUM_MenuIndex index, ENUM_MODE_SET_XML mode);
    /// The value that may be used instead of the given one.
    QString CalParaLimit(QString value, ENUM_MenuIndex index);
    /// The rate that the output takes for a source: the source's where it can follow, else its own.
    /// Hundredths of a hertz.
    int OutputFrameAdj(int rate, int outputRate) const;
    /// Writes one process-data field; an index outside the block is ignored.
    void SaveProcessData(QString value, ENUM_MenuIndex index);
    /// The message of an item, or null if it has none. The caller runs and deletes it. GUI thread.
    QDialog *CreateDialog(ENUM_MenuIndex index, QString text);
    /// Runs the message of an item and gives its result; 0 if it has none. From another thread than the GUI's
    /// the home screen shows the message later, and the result is 0.
    int runMessage(ENUM_MenuIndex index);

    /// Writes the network items from the snapshot again, unless the address comes from DHCP.
    void UpdateIp();
    /// Reads the device's own name from the snapshot and shows it.
    void UpdataDevRename();
    /// Loads a preset, from 0, without its dialog; tells if it is empty. GUI thread.
    void QuickLoadScene(int preset);
    /// When both services of the device run, the start sequence does; its steps.
    /// @{
    void DeviceStartComplateHandle();
    void HdcpPoweronHandle();
    void SyncInit();
    void DhcpInit();
    /// @}

    /// The device reports its display mode: 3 normal, 4 freeze, 5 black, 6 test pattern. Any thread.
    void UpdataDispMode(int code);
    /// The input list of the device is complete: the SDI input can be chosen or not. Any thread.
    void HideSdiMenu(bool bHave);
    /// The input that a layer shows has a signal or not. Any thread.
    void SetLayerSrc_Res(int layer);
    /// The names of the layers' sources and, for the layers that are on, what those carry. Any thread.
    void ChangeLayerSrc();
    /// The number of the input with a source code, 255 if there is none. Any thread.
    int FindKeyByValue(int code) const;

    /// The home screen shows the state of an Ethernet port, from 0, as its own or as the first optical link
    /// tells it; a port without an optical link shows its own. Any thread.
    /// @{
    void UpdatePortState(int port);
    void UpdataOPT1PortState(int port);
    void UpdateOPT1_PortLinkState();
    /// @}
    /// An optical link, from 0, came or went. Any thread.
    void UpdateOPTLinkState(int link);
    /// Works out whether the backup of a port of the second optical link is in use. Any thread.
    void UpdateOPT2PortBackUPState(int port);

    // The parts that do the work, for the cases of the engine.
    const ProcessData &processData() const;
    HomeUpdater &home();
    Presets &presets();
    ServiceStart &services();

    /// Set at the end of the first InitializeMainWindow: from then on the home screen is reached by queued
    /// signals.
    static std::atomic<bool> init_20m_flg;
    static std::atomic<bool> bHaveSDI;
    static std::atomic<bool> bRelOnloadRegionStart;
    /// A reset has run: there is one in a run of the program.
    static std::atomic<bool> m_ResetFlg;
    /// The preset that is being copied, 0 to 9; -1 for none.
    static int m_CopySceneNum;

signals:
    void signal_sync_state(qint8 state, QString text);
    void signal_sync_state(qint32 state);
    void signal_window_state(qint32 window, qint32 state);
    void signal_factory_reset();
    void signal_soft_calibrate(quint8 state);
    void signal_createdialog();
    void signal_popup_window(quint32 index);
    void signal_return_main(bool mode);
    void signal_Update_LedState();
    void signal_Layer_state(qint32 layer, qint32 state);
    void signal_SetRes_state(qint32 layer, QString text);
    /// Connected by the production test: an input or output of the last step has passed or failed, and the
    /// input under test has a stable signal.
    void signal_update_menuitem(en_inout_test_index index, en_item_state state);
    void signal_Source_Stable();
    /// The device has told the result of a self test.
    void signal_selfcheck_filled();

private:
    struct Parts;

    /// Null, with a log line, while there is none.
    static MenuAnalysis *neededStore();
    void InitParaFrom20M();

    std::unique_ptr<Parts> m_parts;
};
} // namespace VASK
