// Sockets of the state folder that keep the borders of messages.
#pragma once

#include <QString>

namespace host
{
/// Connects to a SOCK_SEQPACKET Unix socket. A descriptor, or -1 if nobody listens there.
int connectSeqpacket(const QString &file);
} // namespace host
