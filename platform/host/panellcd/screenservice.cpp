#include "platform/host/panellcd/screenservice.h"

#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"
#include "platform/host/panellcd/screen.h"
#include "platform/host/panellcd/screentext.h"
#include "platform/host/statefile.h"

#include <QFile>
#include <QJsonDocument>
#include <QSocketNotifier>

ScreenService::ScreenService(const PanelLcdScreen &screen)
    : m_screen(screen),
      m_socket(hostlink::connectSocket(
          QFile::encodeName(host::stateFile(hostlink::screenSocket)).toStdString(), SOCK_SEQPACKET))
{
    if (m_socket < 0)
        return; // nobody who would ask
    auto *notifier = new QSocketNotifier(m_socket, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &ScreenService::answer);
}

ScreenService::~ScreenService()
{
    if (m_socket >= 0)
        close(m_socket);
}

void ScreenService::answer()
{
    char request;
    const ssize_t size = recv(m_socket, &request, sizeof request, MSG_DONTWAIT);
    if (size < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (size <= 0)
        return findChild<QSocketNotifier *>()->setEnabled(false);
    QByteArray answer = "[]";
    if (request == hostlink::screenTextRequest)
        answer = QJsonDocument(screenTexts(m_screen.windows())).toJson(QJsonDocument::Compact);
    (void)!send(m_socket, answer.constData(), size_t(answer.size()), MSG_NOSIGNAL | MSG_DONTWAIT);
}
