#include "widget/home/homemessages.h"

#include "framework/engine/paraprocess.h"
#include "framework/engine/processdata.h"
#include "framework/productiontest/productiontest.h"
#include "framework/ui/dialogs.h"
#include "menu/objectindex.h"

using namespace VASK;

namespace
{
/// Error codes in the place of a progress, in hundredths of a per cent.
struct UpdateError {
    quint16 code;
    ENUM_MenuIndex message;
};
constexpr UpdateError updateErrors[] = {
    {25300, MSG_UpdateErrorNotMatch},
    {25400, MSG_UpdateErrorNotComplete},
    {25500, MSG_UpdateErrorNotSupported},
};
constexpr int perCent = 100;

constexpr quint8 updateRuns = 0;
constexpr quint8 updateEnds = 1;

constexpr int backupSteps = 4;

} // namespace

void HomeMessages::run(ENUM_MenuIndex index)
{
    runMessage(poolObject<ParaProcess>(ENUM_PARAPROCESS), index);
}

/// A message that stays until its owner or the user closes it.
QDialog *HomeMessages::open(ENUM_MenuIndex index, const QString &text)
{
    QDialog *message = createMessage(poolObject<ParaProcess>(ENUM_PARAPROCESS), index, text);
    if (!message) {
        qDebug() << "qDialog create faild! index:" << int(index);
        return nullptr;
    }
    message->setAttribute(Qt::WA_DeleteOnClose);
    message->show();
    return message;
}

void HomeMessages::syncState(qint8 signalState, const QString &text)
{
    constexpr int outOfStep = 4; ///< state of the genlock
    const bool problem = text.toInt() == outOfStep;
    if (problem && !m_syncProblem && !m_syncDialog)
        m_syncDialog = open(signalState == stableSignal ? MSG_SyncMismatchTip : MSG_SyncNoSignalTip);
    if (!problem && m_syncDialog) {
        m_syncDialog->done(replaced);
        m_syncDialog.clear(); // it dies later only
    }
    m_syncProblem = problem;
}

void HomeMessages::factoryReset()
{
    run(MSG_IsResetting);
    run(MSG_ResetSucceed);
}

void HomeMessages::deviceBackup(quint8 step)
{
    qDebug() << "qDialog->exex()";
    if (step < backupSteps)
        run(nth(MSG_DeviceBackupFirst, step));
}

void HomeMessages::deviceRestore(quint8 step)
{
    qDebug() << "qDialog->exex()";
    if (step < backupSteps)
        run(nth(MSG_DeviceRestoreFirst, step));
}

void HomeMessages::calibration(quint8 state)
{
    qDebug() << "========calibrateing========";
    if (state == 1) {
        if (!m_calibrating)
            m_calibrating = open(MSG_SoftCalibrating);
    } else if (state == 0 && m_calibrating) {
        delete m_calibrating;
        run(MSG_SoftCalibrateExit);
    }
}

void HomeMessages::update(quint8 mode, quint16 count)
{
    if (!ObjectPool::getInstance()->IsExist(ENUM_MAIN_MENU) || ProductionTest::runs())
        return;
    qDebug() << "slot_update == " << mode << count;
    if (mode != updateRuns && mode != updateEnds)
        return;

    ENUM_MenuIndex message = mode == updateEnds ? MSG_UpdateEnd : MSG_UpdateStart;
    QString progress;
    if (mode == updateRuns) {
        progress = QString::number(count / perCent) + " %";
        for (const UpdateError &error : updateErrors) {
            if (error.code == count) {
                message = error.message;
                progress.clear();
            }
        }
    }
    // The next message comes up before the last one goes: no flash of what lies below.
    const QPointer<QDialog> last = m_updateDialog;
    m_updateDialog = open(message, progress);
    if (last)
        last->done(replaced);
}
