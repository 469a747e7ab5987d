// The panel's ends of keypad and bus, on plain sockets: what comes out of the emulator, and writes that go
// in.
#pragma once

#include "emulator/bus/wire.h"
#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"

#include <QList>
#include <QString>

class PanelEnd
{
public:
    explicit PanelEnd(const QString &stateFolder)
    {
        const std::string base = stateFolder.toStdString();
        m_keypad = hostlink::connectSocket(base + hostlink::keypadSocket, SOCK_SEQPACKET);
        m_bus = hostlink::connectSocket(base + hostlink::busSocket, SOCK_SEQPACKET);
        (void)!send(m_keypad, "r", 1, MSG_NOSIGNAL);
    }
    ~PanelEnd()
    {
        close(m_keypad);
        close(m_bus);
    }

    bool write(quint32 address, const QByteArray &hex)
    {
        wire::Frame frame;
        frame.operation = wire::Write;
        frame.address = address;
        frame.data = QByteArray::fromHex(hex);
        frame.length = quint16(frame.data.size());
        wire::Message message;
        message.payload = wire::encode(frame);
        const QByteArray bytes = wire::encode(message);
        return send(m_bus, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL) == bytes.size();
    }

    /// Key words since the last call.
    QList<QByteArray> keys() const { return packets(m_keypad); }
    /// "ADDRESS BYTES" in hex of the reports since the last call; answers to writes carry no bytes and are
    /// left out.
    QList<QByteArray> reports() const
    {
        QList<QByteArray> list;
        for (const QByteArray &packet : packets(m_bus)) {
            const auto message = wire::decodeMessage(packet);
            const auto frame = message ? wire::decodeFrame(message->payload) : std::nullopt;
            if (frame && frame->operation == wire::Read)
                list.append(QByteArray::number(frame->address, 16) + ' ' + frame->data.toHex());
        }
        return list;
    }

private:
    static QList<QByteArray> packets(int descriptor)
    {
        QList<QByteArray> list;
        char buffer[hostlink::longestBusMessage];
        for (ssize_t size; (size = recv(descriptor, buffer, sizeof buffer, MSG_DONTWAIT)) > 0;)
            list.append(QByteArray(buffer, int(size)));
        return list;
    }

    int m_keypad;
    int m_bus;
};
