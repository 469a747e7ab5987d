// The parameter engine: owns every parameter of the device. A changed value, from the user or from a report,
// goes through CalParaLimit and SetParaToXml, which store it, move what depends on it and hand it to the
// protocol. Entered on the GUI thread by rows and pages, and on the report thread for device values.
#pragma once

#include "framework/processdata.h"
#include "framework/vaskobject.h"
#include "menuconfig_k2860.h"

#include <QByteArray>
#include <QDialog>
#include <QMap>

class MainWindow;

namespace VASK
{
class ParaProcess : public VaskObject
{
    Q_OBJECT
public:
    explicit ParaProcess(ENUM_ObjectIndex index);
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

    /// Applies a value: stores it, moves what depends on it, shows it and, in user mode, sends it.
    bool SetParaToXml(QString value, ENUM_MenuIndex index, ENUM_MODE_SET_XML mode);
    /// The value that may be used instead of the given one.
    QString CalParaLimit(QString value, ENUM_MenuIndex index);
    /// Writes one process-data field; an index outside the block is ignored.
    void SaveProcessData(QString value, ENUM_MenuIndex index);
    /// The message of an item, or null if it has none. The caller runs and deletes it. GUI thread.
    QDialog *CreateDialog(ENUM_MenuIndex index, QString text);

    static bool init_20m_flg;
    static bool bHaveSDI;
    static bool bRelOnloadRegionStart;
    static bool m_ResetFlg;
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

private:
    MainWindow *m_pMainWindow = nullptr;
    ProcessData m_processData;
    QMap<QString, QString> m_inputNames;
    QMap<unsigned char, QString> m_sourceNames;
};
} // namespace VASK
