#include "platform/host/seqpacket.h"

#include <QFile>
#include <QFileInfo>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace host
{
int connectSeqpacket(const QString &file)
{
    // A socket's name is at most 107 bytes long, a state folder's path may be longer: go by the open folder.
    const QFileInfo info(file);
    const int folder = open(QFile::encodeName(info.path()).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return -1;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path =
        "/proc/self/fd/" + QByteArray::number(folder) + '/' + QFile::encodeName(info.fileName());
    memcpy(address.sun_path, path.constData(), size_t(qMin<int>(path.size(), sizeof address.sun_path - 1)));
    int descriptor = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
    if (descriptor >= 0 && connect(descriptor, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0) {
        close(descriptor);
        descriptor = -1;
    }
    close(folder);
    return descriptor;
}
} // namespace host
