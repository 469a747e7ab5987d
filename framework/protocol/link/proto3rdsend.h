// The way of a changed value to the device: finds what the item's register is, puts the value into its form
// and queues the frame. A value that the knob turns is held back, so that at most one packet per 100 ms
// leaves for it. Made on the GUI thread; changes come from there and, while a report is handled, from the
// report thread.
#pragma once

#include "framework/object/vaskobject.h"
#include "framework/protocol/send/gammacurve.h"
#include "framework/table.h"
#include "menu/itemindex.h"

#include <QMutex>
#include <atomic>
#include <memory>

namespace VASK
{
class CommunicationClientInterface;
class PackageRequestProto3rd;
class PackageRequestReadData3rd;
class PackageRequestWriteData;
class ParaProcess;
class Proto3rd;
struct SendChange;
struct SendRow;

/// Results of a change on its way to the device.
enum SendResult : int { SEND_Done = 0, SEND_NoHandler = 1, SEND_BadValue = 2, SEND_Failed = 3 };

enum MosaicType : int { MOSAIC_On = 1, MOSAIC_Off = 2 };

/// What the cards do with a gamma curve; this device model keeps the defaults.
struct GammaSettings {
    int m_sendCardBit = 8; ///< depth of the sending side's table
    int m_chipType = 0;    ///< of the receiving cards
    unsigned char m_grayDepth = 12;
    LowGrayQueryMode m_lowGrayQuery = LOWGRAY_Off;
    GrayRealizeType m_grayRealize = GRAY_Plain;
    HDEnableType m_HDEnableType = HDENABLE_None;
};

class Proto3rdSend : public VaskObject
{
    Q_OBJECT
public:
    /// The singleton, entered into the pool when it is made. The first call must be on the GUI thread.
    static Proto3rdSend *getInstance();
    static void deleteInstance();
    int BuildHandshake(VaskObject const *, QMap<QString, QString>) override { return 0; }

    /// Brings a value to the device. A SendResult: SEND_Done says that the frame was queued.
    int HandleMenuValueChanged(ENUM_MenuIndex index, const QString &value);

    /// Queue the frame of a package and release the package, accepted or not. SEND_Done or SEND_Failed.
    /// @{
    static int SendMsgFromCommunication(std::unique_ptr<PackageRequestWriteData> package);
    static int SendRequstMsgFromCommunication(std::unique_ptr<PackageRequestReadData3rd> package);
    /// @}
    /// The same for a value that the knob can turn: while it turns on one item, the newest package waits for
    /// the send timer or for the next change of another kind.
    static int SendHeldBack(const SendChange &change, std::unique_ptr<PackageRequestWriteData> package);

    /// Loads a preset, 0 to 9. A SendResult.
    static int PresetLoad(unsigned char preset);

    /// Splicing as last sent.
    static MosaicType GetOpenMosaicFlag() { return m_enFlag; }
    static void SetOpenMosaicFlag(MosaicType flag) { m_enFlag = flag; }

    /// Null, with a log line, while the object is not in the pool.
    static ParaProcess *engine();

    /// The package held back, valid while mSendFlg is set. GUI thread only.
    /// @{
    static bool mSendFlg;
    static std::unique_ptr<PackageRequestWriteData> mSendDate;
    /// @}
    /// The change being handled and the one before it, of those that came from the GUI thread.
    /// @{
    static ENUM_MenuIndex mSendIndexCur;
    static ENUM_MenuIndex mSendIndexLast;
    /// @}
    /// The Ethernet port being edited, 1 to 10.
    static std::atomic<unsigned short> m_usNetPortIndex;
    static GammaSettings m_gamma;

private:
    Proto3rdSend();
    ~Proto3rdSend() override;

    static int queueFrame(std::unique_ptr<PackageRequestProto3rd> package);
    static CommunicationClientInterface *communication();
    static Proto3rd *protocol();
    static void lookForPeers();
    static bool onGuiThread();

    static std::atomic<Proto3rdSend *> m_pInstance;
    static QMutex m_mutex;
    static std::atomic<MosaicType> m_enFlag;

    const TableIndex<ENUM_MenuIndex, SendRow> m_mapMenuIndexAndHander;
};
} // namespace VASK
