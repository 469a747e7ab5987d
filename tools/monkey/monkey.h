// Plays with a panel at random, by a seed: goes to the rows that it has met least, turns them to both ends,
// leaves them in each way, and lets the device report, lose cables, fail and come back, and a PC take over,
// in between. Behind each step the LCD must be a screen that the model allows; at each rest store, device and
// what a restart finds must agree.
#pragma once

#include "client/panel.h"
#include "tools/monkey/menumodel.h"

#include <QElapsedTimer>
#include <memory>
#include <random>

class Monkey
{
public:
    Monkey(Panel &panel, unsigned int seed);
    ~Monkey();

    /// Empty, or what did not hold.
    QString play(int steps, int stepsToRest);
    /// One more step of a session that was replayed: does the same fault come?
    QString repeat(const QStringList &lastStep);
    /// The step that was made last, as words of the console.
    QStringList lastStep() const { return m_lastStep; }
    /// When that was, in ms since this was made.
    int lastStepMs() const { return m_lastStepMs; }
    /// Rows that were met, and rows that were turned to both ends and left in each way, of how many.
    QString coverage() const;
    int stepsDone() const { return m_steps; }

private:
    int below(int count) { return int(m_random() % unsigned(count)); }
    bool chance(int percent) { return below(100) < percent; }
    QString step();
    QString menuStep();
    QString editStep();
    QString messageStep();
    QString outsideStep();
    QString restartStep();
    QString hostStep();
    QString toLeastMetRow();
    QString turnToEnd(bool left);
    QString leave();
    QString key(MenuModel::Key key);
    QString say(const QStringList &words, const MenuModel::Sequel &sequel = nullptr);
    QString look(const MenuModel::Sequel &sequel);
    QString rest();
    QString atRest();
    QString changedByRestart();
    QString storeFaults(const QMap<QString, QString> &fields) const;
    int deeds(const RowVisit &row) const { return m_deeds.value(row); }

    Panel &m_panel;
    std::unique_ptr<MenuModel> m_model;
    std::mt19937 m_random;
    Sight m_sight;
    QMap<RowVisit, int> m_deeds, m_visits;
    QStringList m_lastStep;
    QStringList m_trail; ///< the last steps, each with what was seen before it
    int m_lastStepMs = 0;
    QElapsedTimer m_clock;
    int m_steps = 0;
};
