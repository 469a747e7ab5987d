// The Unix sockets of the state folder, for the host platform, the emulator and its tools. A socket's name is
// at most 107 bytes long while a state folder's path may be longer, so the folder is opened and the socket is
// reached by way of that.
#pragma once

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace hostlink
{
/// Calls bind or connect on a socket, with the address of that file. The call's result.
template <class Call> int withSocketAddress(const std::string &file, Call call)
{
    const size_t slash = file.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : file.substr(0, slash + 1);
    const int folderDescriptor = open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (folderDescriptor < 0)
        return -1;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    snprintf(address.sun_path, sizeof address.sun_path, "/proc/self/fd/%d/%s", folderDescriptor,
             file.c_str() + (slash == std::string::npos ? 0 : slash + 1));
    const int result = call(reinterpret_cast<const sockaddr *>(&address), socklen_t(sizeof address));
    close(folderDescriptor);
    return result;
}

/// Connects to a socket of type SOCK_SEQPACKET or SOCK_STREAM. A descriptor, -1 if nobody listens there.
inline int connectSocket(const std::string &file, int type)
{
    const int descriptor = socket(AF_UNIX, type | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return -1;
    const auto call = [descriptor](const sockaddr *address, socklen_t size) {
        return connect(descriptor, address, size);
    };
    if (withSocketAddress(file, call) == 0)
        return descriptor;
    close(descriptor);
    return -1;
}

/// Listens on a socket file, in place of an older one. A descriptor, -1 on failure.
inline int listenSocket(const std::string &file, int type)
{
    const int descriptor = socket(AF_UNIX, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (descriptor < 0)
        return -1;
    unlink(file.c_str());
    const auto call = [descriptor](const sockaddr *address, socklen_t size) {
        return bind(descriptor, address, size);
    };
    if (withSocketAddress(file, call) == 0 && listen(descriptor, 16) == 0)
        return descriptor;
    close(descriptor);
    return -1;
}
} // namespace hostlink
