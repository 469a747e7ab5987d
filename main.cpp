#include "framework/input/keyevent.h"
#include "initialize.h"
#include "supervisor.h"
#include "widget/plaintext.h"

#include <QApplication>
#include <QDebug>
#include <csignal>

int main(int argc, char *argv[])
{
    runTime1 = QTime::currentTime();
    // A file that may not grow any more fails the write that would make it, and not the panel.
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication application(argc, argv);
    QApplication::setStyle(new VASK::PlainTextStyle);
    // A fiber converter has no window but a message now and then: its end is not the panel's.
    QApplication::setQuitOnLastWindowClosed(false);
    VASK::KeyEvent *keys = VASK::KeyEvent::getInstance();
    if (!keys->InitKeyDriver(&application))
        qDebug() << "Init key failed";
    keys->start(QThread::InheritPriority);
    Initialize();
    board::tellSupervisor();
    return application.exec();
}
