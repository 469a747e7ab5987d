// The floor of what the panel costs: a label in a window on the same LCD.
//   barelabel                  ends itself once it is shown and prints its memory in MB, and what of it
//                              is its own; its CPU time is read
//   by
//                              who started it
//   barelabel --repaint N      draws so many new texts into a row of the window first
//   barelabel --window N       shows another window in its place first, and back again, so many times in all
#include "client/procfs.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <cstdio>

namespace
{
constexpr QSize lcd(320, 240);
constexpr QSize row(320, 36);

void repaint(QLabel &window, int times)
{
    QLabel label(&window);
    label.resize(row);
    label.show();
    for (int i = 0; i < times; ++i) {
        label.setText(QString::number(i));
        QCoreApplication::processEvents();
    }
}

void changeWindows(QLabel &window, int times)
{
    QLabel other("Other");
    other.resize(lcd);
    for (int i = 0; i < times; ++i) {
        (i % 2 ? window : other).show();
        (i % 2 ? other : window).hide();
        QCoreApplication::processEvents();
    }
}
} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLabel label("Ready");
    label.resize(lcd);
    label.show();
    const QStringList words = QApplication::arguments().mid(1);
    QTimer::singleShot(0, &label, [&] {
        if (words.value(0) == "--repaint")
            repaint(label, words.value(1).toInt());
        else if (words.value(0) == "--window")
            changeWindows(label, words.value(1).toInt());
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    });
    const int result = QApplication::exec();
    printf("%.1f %.1f\n", procfs::memoryMb(int(getpid())), procfs::privateMb(int(getpid())));
    return result;
}
