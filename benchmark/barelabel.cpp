// The floor of the start-up: one label on the same LCD. Ends itself once it is shown; its CPU time is read by
// who started it.
#include <QApplication>
#include <QLabel>
#include <QTimer>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QLabel label("Ready");
    label.resize(320, 240);
    label.show();
    QTimer::singleShot(0, &label, [] { QTimer::singleShot(0, qApp, &QCoreApplication::quit); });
    return QApplication::exec();
}
