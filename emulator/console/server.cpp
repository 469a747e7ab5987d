#include "emulator/console/server.h"

#include "emulator/console/socketsession.h"
#include "emulator/emulator.h"
#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"

ConsoleServer::ConsoleServer(Emulator &emulator, QObject *parent) : QObject(parent), m_emulator(emulator)
{
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = m_server.nextPendingConnection())
            new SocketSession(m_emulator, socket, this);
    });
}

ConsoleServer::~ConsoleServer()
{
    QFile::remove(m_emulator.folder.file(hostlink::consoleSocket));
}

bool ConsoleServer::open()
{
    const QString file = m_emulator.folder.file(hostlink::consoleSocket);
    const int descriptor = hostlink::listenSocket(QFile::encodeName(file).toStdString(), SOCK_STREAM);
    return descriptor >= 0 && m_server.listen(descriptor);
}
