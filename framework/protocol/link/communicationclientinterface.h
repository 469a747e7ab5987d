// What a transport offers to the protocol objects above it: taking a finished packet. Reached through the
// pool; SendMsg may be called from any thread.
#pragma once

#include "framework/object/vaskobject.h"

namespace VASK
{
class CommunicationClientInterface : public VaskGeneralObject
{
    Q_OBJECT
public:
    using VaskGeneralObject::VaskGeneralObject;

    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override = 0;
    /// The argument points at a QByteArray with one finished packet. Non-zero when it was accepted.
    virtual int SendMsg(void *packet) = 0;
};
} // namespace VASK
