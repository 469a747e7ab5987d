// Walks the panel's menu as a user does: home, then from page to page by the names of the rows. Main thread.
#pragma once

#include <QElapsedTimer>
#include <QJsonArray>
#include <QObject>
#include <QStringList>

class Emulator;

class MenuWalker : public QObject
{
    Q_OBJECT
public:
    /// The names of the rows as the panel shows them, in upper or lower case; of the last the page is opened
    /// only if told so.
    MenuWalker(Emulator &emulator, QStringList path, bool openLast, QObject *parent = nullptr);

    void start();

signals:
    /// The cursor has arrived; or, with a reason, it has not.
    void ended(const QString &fault);

private:
    using Step = void (MenuWalker::*)();

    void goHome();
    void enterMenu();
    void findRow();
    void arrive();
    void enterPage();

    /// A key or a step of the knob; the next step follows when the LCD shows what it has done.
    void press(int key, Step next);
    void turn(Step next);
    void awaitChange(Step next);
    void read(Step next);
    void fail(const QString &fault) { emit ended(fault); }
    void succeed() { emit ended(QString()); }

    /// The first text of that role and, if one is asked for, state.
    QString find(const QString &role, const QString &state = QString()) const;

    Emulator &m_emulator;
    const QStringList m_path;
    const bool m_openLast;
    int m_at = 0;        ///< of the path
    int m_presses = 0;   ///< of ESC
    bool m_left = false; ///< which way the knob is turned
    QString m_before;    ///< the row under the cursor before the last step of the knob
    QStringList m_rows;  ///< of this page, as far as the cursor has seen them
    QJsonArray m_texts, m_textsBefore, m_textsOnce;
    QElapsedTimer m_passed;
};
