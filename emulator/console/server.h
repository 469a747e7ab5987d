// Listens for clients of the console. Main thread.
#pragma once

#include <QLocalServer>

class Emulator;

class ConsoleServer : public QObject
{
    Q_OBJECT
public:
    explicit ConsoleServer(Emulator &emulator, QObject *parent = nullptr);
    ~ConsoleServer() override;

    bool open();

private:
    Emulator &m_emulator;
    QLocalServer m_server;
};
