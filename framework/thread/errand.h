// Work that may take long and is not waited for, on a thread that lives while there is some. Asked for while
// it is being done, it is done once more: what was asked for last is always done from its beginning.
#pragma once

#include <QMutex>
#include <QString>
#include <QThread>
#include <functional>
#include <memory>

namespace VASK
{
class Errand
{
public:
    /// The work is done on the errand's own thread, which bears the name.
    Errand(QString name, std::function<void()> work) : m_name(std::move(name)), m_work(std::move(work)) {}
    /// Waits as finish does.
    ~Errand() { finish(); }
    Errand(const Errand &) = delete;
    Errand &operator=(const Errand &) = delete;

    /// Never waits for the work. Not at the same time as another call.
    void ask();
    /// Waits until nothing is asked for any more. Not at the same time as another call.
    void finish();

private:
    bool isAsked();
    void run();

    const QString m_name;
    const std::function<void()> m_work;
    std::unique_ptr<QThread> m_thread;
    QMutex m_mutex; ///< guards the next two
    bool m_isAsked = false;
    bool m_isRunning = false;
};
} // namespace VASK
