#include "framework/keyevent.h"
#include "initialize.h"

#include <QApplication>
#include <QDebug>

int main(int argc, char *argv[])
{
    runTime1 = QTime::currentTime();
    QApplication application(argc, argv);
    VASK::KeyEvent *keys = VASK::KeyEvent::getInstance();
    if (!keys->InitKeyDriver(&application))
        qDebug() << "Init key failed";
    keys->start(QThread::InheritPriority);
    Initialize();
    return application.exec();
}
