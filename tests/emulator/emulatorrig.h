// The whole emulator in a folder of its own, with a panel's ends of keypad and bus and clients of its
// console, all in this process.
#pragma once

#include "emulator/console/server.h"
#include "emulator/emulator.h"
#include "panelend.h"

#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

class EmulatorRig
{
public:
    EmulatorRig() : m_state(m_folder.path() + "/state"), m_stateFolder(m_state)
    {
        m_taken = m_stateFolder.take().isEmpty() && m_stateFolder.install().isEmpty();
        emulator = std::make_unique<Emulator>(m_stateFolder);
        m_console = std::make_unique<ConsoleServer>(*emulator);
    }

    bool open()
    {
        emulator->device.setReporting(false);
        if (!m_taken || !emulator->open().isEmpty() || !m_console->open())
            return false;
        panel = std::make_unique<PanelEnd>(m_state);
        return QTest::qWaitFor(
            [this] { return emulator->device.isJoined() && emulator->keypad.hasReader(); });
    }

    std::unique_ptr<QLocalSocket> client() const
    {
        auto socket = std::make_unique<QLocalSocket>();
        const std::string file = (m_state + hostlink::consoleSocket).toStdString();
        socket->setSocketDescriptor(hostlink::connectSocket(file, SOCK_STREAM));
        return socket;
    }

    /// The last line of the answer to a request, "ok" or "error ...".
    QByteArray ask(const QByteArray &request)
    {
        if (!m_client)
            m_client = client();
        m_client->write(request + '\n');
        QByteArray line;
        const bool whole = QTest::qWaitFor([&] {
            while (m_client->canReadLine() && (line.isEmpty() || line.startsWith('+'))) {
                line = m_client->readLine().trimmed();
                if (line.startsWith('+'))
                    m_lines.append(line.mid(1));
            }
            return !line.isEmpty() && !line.startsWith('+');
        });
        return whole ? line : "no whole answer: " + line;
    }
    /// The lines of the answer to a request.
    QList<QByteArray> lines(const QByteArray &request)
    {
        m_lines.clear();
        ask(request);
        return m_lines;
    }
    QString file(const QString &name) const { return m_folder.filePath(name); }
    QString statePath() const { return m_state; }

private:
    QTemporaryDir m_folder;
    QString m_state;
    StateFolder m_stateFolder;
    bool m_taken = false;

public:
    std::unique_ptr<Emulator> emulator;
    std::unique_ptr<PanelEnd> panel;

private:
    std::unique_ptr<ConsoleServer> m_console;
    std::unique_ptr<QLocalSocket> m_client;
    QList<QByteArray> m_lines;
};
