// The messages that come up by themselves, from the device or the engine. GUI thread.
#pragma once

#include "menu/itemindex.h"

#include <QDialog>
#include <QPointer>

class HomeMessages
{
public:
    /// How a message is closed that gives way to another one, or to the home screen.
    static constexpr int replaced = 2;

    /// Shows a message until it ends by itself or the user ends it. A log line tells if there is none.
    void run(VASK::ENUM_MenuIndex index);
    void factoryReset();
    /// The steps of a backup of the device and of its return, from 0; others show nothing.
    /// @{
    void deviceBackup(quint8 step);
    void deviceRestore(quint8 step);
    /// @}
    /// 1: calibration from outside began, 0: it ended.
    void calibration(quint8 state);
    /// Mode 0 with hundredths of a per cent or an error code, mode 1 at the end.
    void update(quint8 mode, quint16 count);
    /// The text "4" tells of a problem, once while it lasts, with the signal state of the source beside it;
    /// any other text ends it.
    void syncState(qint8 signalState, const QString &text);

private:
    static QDialog *open(VASK::ENUM_MenuIndex index, const QString &text = {});

    QPointer<QDialog> m_updateDialog;
    bool m_syncProblem = false;
    QPointer<QDialog> m_syncDialog;
    QPointer<QDialog> m_calibrating;
};
