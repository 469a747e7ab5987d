// What every protocol object offers to rows, engine and clients: a value to send, a value to ask for, a
// datagram that has arrived. One object a protocol, reached through the pool.
#pragma once

#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"

#include <QByteArray>

namespace VASK
{
class ProtocolInterface : public VaskGeneralObject
{
    Q_OBJECT
public:
    using VaskGeneralObject::VaskGeneralObject;

    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override { return 1; }
    /// Asks for the value of an item and waits for it; a string that nothing is known for stays as it is.
    /// Returns 1.
    virtual int GetValueByIndexSYN(ENUM_MenuIndex, QString *) { return 1; }
    /// Datagrams that it has been given and has not worked on yet. Any thread.
    virtual int waiting() const { return 0; }

public slots:
    /// An item has a new value: bring it to the device. Thread of the caller of SetParaToXml.
    virtual void slot_ValueChanged(QString, ENUM_MenuIndex) {}
    /// A datagram of the client has arrived. Called with the client's receive lock held.
    virtual void slot_ReceivePackHandle(QByteArray) {}
};
} // namespace VASK
