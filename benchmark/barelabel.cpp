// The floor of start-up and memory: one label on the same LCD. Ends itself once it is shown and prints its
// memory in MB; its CPU time is read by who started it.
#include "testkit/procfs.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <cstdio>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QLabel label("Ready");
    label.resize(320, 240);
    label.show();
    QTimer::singleShot(0, &label, [] { QTimer::singleShot(0, qApp, &QCoreApplication::quit); });
    const int result = QApplication::exec();
    printf("%.1f\n", procfs::memoryMb(int(getpid())));
    return result;
}
