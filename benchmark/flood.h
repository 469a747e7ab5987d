// A device that talks without a break, on some ninety registers, and the proof that nothing of it was lost:
// of a register that folds the last report was read, of one that does not fold every single one, in its
// order. The reports go out on a thread and a console connection of their own.
#pragma once

#include "client/consoleclient.h"

#include <QFile>
#include <QMap>
#include <QVector>
#include <atomic>
#include <functional>
#include <thread>

class Panel;

/// A register, what it reports for a number that grows, and what the panel then reads out of it.
struct FloodRegister {
    quint32 address;
    int deviceType;
    std::function<QByteArray(int number)> bytes;
    /// Items and their values.
    std::function<QMap<int, QString>(int number)> items;
};

/// Registers of which only the newest waiting report counts; no two of them report the same item.
const QVector<FloodRegister> &foldingRegisters();
/// The records of the inputs: every one is read. The number comes back in the record's period.
const QVector<FloodRegister> &inputRegisters();
/// Pieces of pictures that the panel has no use for: every one is looked at.
const QVector<quint32> &pictureRegisters();

class Flood
{
public:
    explicit Flood(Panel &panel);
    ~Flood();

    bool start(int reportsPerSecond);
    /// Ends the reports and waits until the panel has read the last one. False if it does not come to that.
    bool stop();
    int pushed() const { return m_pushed; }
    double perSecond() const { return m_seconds > 0 ? m_pushed / m_seconds : 0; }
    /// Reads what the panel has logged; called now and then during a long flood. False at a line that tells
    /// of a crash.
    bool readLog();
    /// What was lost, empty if nothing.
    QString lost() const;
    /// Reports that the panel read, less than pushed by those that were folded.
    int handled() const { return m_handled; }
    /// What the panel has read last for each item that a folding register reports.
    QMap<int, QString> expected() const;

private:
    void run();
    QStringList next();
    void take(const QByteArray &line);

    Panel &m_panel;
    QFile m_log;
    ConsoleClient m_console;
    std::thread m_thread;
    std::atomic<bool> m_ends{false};
    std::atomic<int> m_pushed{0};
    int m_rate = 0;
    double m_seconds = 0;
    bool m_refused = false;
    int m_turn = 0;
    QVector<int> m_numbers; ///< of each folding register, the one that was pushed last
    QVector<int> m_inputCounts, m_pictureCounts;
    int m_handled = 0;
    QMap<int, QString> m_last; ///< value of each item, as read last
    QVector<int> m_inputsRead, m_picturesRead;
    QString m_fault;
};
