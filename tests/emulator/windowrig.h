// The emulator's window with a running panel in a real X server of its own, and the hands of a user on mouse
// and keyboard. GUI thread of the test.
#pragma once

#include "emulator/window/lcdview.h"
#include "emulator/window/window.h"
#include "emulatorrig.h"

#include <QProcess>
#include <QScreen>
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace xserver
{
/// Before the application is made, which then opens its windows there. The server ends with the test.
inline void start()
{
    int ends[2];
    if (pipe(ends) != 0)
        return;
    if (fork() == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        const std::string end = std::to_string(ends[1]);
        execlp("Xvfb", "Xvfb", "-displayfd", end.c_str(), "-screen", "0", "1900x1500x24", "-nolisten", "tcp",
               "-noreset", nullptr);
        _exit(1);
    }
    close(ends[1]);
    QByteArray display = ":";
    for (char c; read(ends[0], &c, 1) == 1 && c != '\n';)
        display += c;
    close(ends[0]);
    qputenv("DISPLAY", display);
    qputenv("QT_QPA_PLATFORM", "xcb");
    EmulatorWindow::prepareApplication();
}

inline bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    return QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 30000) &&
           process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}
} // namespace xserver

class WindowRig : public EmulatorRig
{
public:
    bool openWindow()
    {
        if (!open())
            return false;
        window = std::make_unique<EmulatorWindow>(*emulator);
        window->show();
        emulator->startPanel();
        return QTest::qWaitForWindowExposed(window.get()) && waitReady() &&
               act(QString("windowfocus %1").arg(window->winId())) &&
               QTest::qWaitFor([this] { return window->isActiveWindow(); });
    }
    bool waitReady()
    {
        return QTest::qWaitFor([this] { return emulator->isReady(); }, 60000);
    }

    /// What the user does, in the words of xdotool: "key ctrl+q", "mousemove 10 20 click 1".
    bool act(const QString &words) { return xserver::run("xdotool", words.split(' ')); }
    /// The words that bring the mouse to the middle of a part of the window.
    static QString over(const QWidget *part)
    {
        const QPointF middle = QPointF(part->mapToGlobal(part->rect().center())) * part->devicePixelRatioF();
        return QString("mousemove %1 %2").arg(int(middle.x())).arg(int(middle.y()));
    }
    /// The LCD as the screen shows it, where each of its pixels takes so many; a little elsewhere than in the
    /// middle of its view.
    QImage lcdOnScreen(int pixels, const QPoint &off = QPoint()) const
    {
        const auto *view = window->findChild<LcdView *>();
        const QImage screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
        const QSize size = emulator->lcd.picture().size() * pixels;
        const QPointF centre = view->mapToGlobal(QPoint()) + QRectF(view->rect()).center();
        const QPointF corner = centre * view->devicePixelRatioF() - QPointF(size.width(), size.height()) / 2;
        return screen.copy(QRect(corner.toPoint() + off, size)).convertToFormat(QImage::Format_RGB32);
    }
    /// Name and address take turns on the LCD while it is compared.
    bool showsLcd(int pixels) const
    {
        constexpr int around = 1; // where the edge of a view lies between two pixels
        return QTest::qWaitFor([&] {
            const QImage picture = emulator->lcd.picture();
            const QImage wanted =
                picture.scaled(picture.size() * pixels).convertToFormat(QImage::Format_RGB32);
            for (int x = -around; x <= around; ++x)
                for (int y = -around; y <= around; ++y)
                    if (lcdOnScreen(pixels, {x, y}) == wanted)
                        return true;
            return false;
        });
    }

    std::unique_ptr<EmulatorWindow> window;
};
