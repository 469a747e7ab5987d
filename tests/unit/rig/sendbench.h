// The send path on a bench: a client that records frames stands at the end, engine and store hold what the
// test says, and the device has six inputs.
#pragma once

#include "client/names/itemnames.h"
#include "framework/engine/paraprocess.h"
#include "framework/protocol/link/communicationclientinterface.h"
#include "framework/protocol/link/proto3rd.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/link/proto3rdsend.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "tests/unit/rig/frames.h"

#include <QtTest>

namespace VASK
{
class RecordingClient : public CommunicationClientInterface
{
public:
    RecordingClient() : CommunicationClientInterface(ENUM_COMMUNICATION_APIPC) {}
    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override { return 0; }
    int SendMsg(void *frame) override
    {
        QMutexLocker lock(&m_mutex);
        ++attempts;
        if (attempts > acceptOnly)
            return 0;
        frames.append(*static_cast<QByteArray *>(frame));
        return 1;
    }
    void clear()
    {
        frames.clear();
        attempts = 0;
        acceptOnly = everything;
    }

    static constexpr int everything = 1 << 30;
    QList<QByteArray> frames;
    int attempts = 0;
    int acceptOnly = everything; ///< so many are accepted, then the bus is full

private:
    QMutex m_mutex;
};

class SendBench
{
public:
    SendBench()
        : store(new MenuAnalysis(ENUM_MENUANALYSIS)), engine(new ParaProcess(ENUM_PARAPROCESS)),
          protocol(new Proto3rd(ENUM_PROTOCOINTERFER_3RD))
    {
        auto *pool = ObjectPool::getInstance();
        pool->InsertData(ENUM_MENUANALYSIS, store.get());
        pool->InsertData(ENUM_PARAPROCESS, engine.get());
        pool->InsertData(ENUM_PROTOCOINTERFER_3RD, protocol.get());
        pool->InsertData(ENUM_COMMUNICATION_APIPC, &client);
        fillInputs();
    }
    ~SendBench()
    {
        Proto3rdSend::deleteInstance();
        for (ENUM_ObjectIndex index :
             {ENUM_MENUANALYSIS, ENUM_PARAPROCESS, ENUM_PROTOCOINTERFER_3RD, ENUM_COMMUNICATION_APIPC})
            ObjectPool::getInstance()->RemoveByIndex(index);
    }

    void set(int index, const QString &value, const QString &perBase = "1920")
    {
        ST_ItemInfo item;
        item.index = ENUM_MenuIndex(index);
        item.value = value;
        item.perBase = perBase;
        store->DeleteMenuItem(item.index);
        store->AddMenuItem(item.index, item);
    }
    void set(int first, const QStringList &values)
    {
        for (int i = 0; i < values.size(); ++i)
            set(first + i, values[i]);
    }
    int change(int index, const QString &value)
    {
        return Proto3rdSend::getInstance()->HandleMenuValueChanged(ENUM_MenuIndex(index), value);
    }
    /// Is that frame the one with this number?
    bool isFrame(int number, int deviceType, quint32 address, const QByteArray &payload) const
    {
        if (number >= client.frames.size())
            return false;
        const QByteArray &frame = client.frames[number];
        frames::Fields fields;
        fields.serial = frame.size() > 3 ? frame[3] : 0; // the one thing that the test does not choose
        fields.deviceType = deviceType;
        fields.address = address;
        fields.payload = payload;
        const QByteArray expected = frames::frame(fields);
        if (frame != expected)
            qWarning() << "frame" << number << frame.toHex(' ') << "expected" << expected.toHex(' ');
        return frame == expected;
    }

    RecordingClient client;
    std::unique_ptr<MenuAnalysis> store;
    std::unique_ptr<ParaProcess> engine;
    std::unique_ptr<Proto3rd> protocol;

private:
    static void fillInputs()
    {
        constexpr unsigned char codes[] = {17, 18, 0, 48, 106, 254};
        for (InputTable *table :
             {&Proto3rdReceiveParse::inputSourceCode, &Proto3rdReceiveParse::EDIDSourceCode,
              &Proto3rdReceiveParse::MosaicSourceCode})
            table->clear();
        for (unsigned char i = 0; i < std::size(codes); ++i)
            Proto3rdReceiveParse::inputSourceCode.insert(i, {i, codes[i]});
        for (unsigned char i = 0; i < 4; ++i)
            Proto3rdReceiveParse::EDIDSourceCode.insert(i, {i, codes[i]});
        for (unsigned char i = 0; i < 5; ++i)
            Proto3rdReceiveParse::MosaicSourceCode.insert(i, {i, codes[i]});
    }
};
} // namespace VASK
