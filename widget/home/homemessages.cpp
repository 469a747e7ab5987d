// Messages that come up by themselves, and the way back to the home screen from outside.

#include "widget/home/mainwindow_k2860.h"

#include "framework/engine/paraprocess.h"
#include "framework/productiontest/productiontest.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "menu/objectindex.h"
#include "widget/page/menudirectoty.h"

#include <memory>

using namespace VASK;

namespace
{
/// How a message is closed that another one replaces.
constexpr int replaced = 2;

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
constexpr qint8 stableSignal = 3;
} // namespace

int MainWindow::runMessage(ENUM_MenuIndex index)
{
    auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    const std::unique_ptr<QDialog> message(engine ? engine->CreateDialog(index, QString()) : nullptr);
    if (!message) {
        qDebug() << "qDialog create faild! index:" << int(index);
        return -1;
    }
    return message->exec();
}

QDialog *MainWindow::openMessage(ENUM_MenuIndex index, const QString &text)
{
    auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    QDialog *message = engine ? engine->CreateDialog(index, text) : nullptr;
    if (!message) {
        qDebug() << "qDialog create faild! index:" << int(index);
        return nullptr;
    }
    message->setAttribute(Qt::WA_DeleteOnClose);
    message->show();
    return message;
}

void MainWindow::slot_SetWinodwState(qint32 window, qint32 state)
{
    SetWindowState(ENUM_MainWindowWindowIndex(window), ENUM_CommonState(state));
}

void MainWindow::slot_SetLayerState(qint32 layer, qint32 state)
{
    SetLayerState(ENUM_MainWindowLayerIndex(layer), ENUM_MainWindowLayerState(state));
}

void MainWindow::slot_SetResState(qint32 layer, QString resolution)
{
    qDebug() << "SetLayerRes enum_MainWindowLayerIndex:" << layer << "layerResStr:" << resolution;
    SetLayerRes(ENUM_MainWindowLayerIndex(layer), resolution);
}

void MainWindow::slot_SetSynModeState(qint32 state)
{
    SetSynModeState(ENUM_MainWindowSynState(state));
}

void MainWindow::slot_SetSynModeState(qint8 signalState, QString text)
{
    const bool problem = text == QLatin1String("4");
    if (problem && !m_syncProblem && !m_syncDialog)
        m_syncDialog = openMessage(signalState == stableSignal ? MSG_SyncMismatchTip : MSG_SyncNoSignalTip);
    if (!problem && m_syncDialog) {
        m_syncDialog->done(replaced);
        m_syncDialog.clear(); // it dies later only
    }
    m_syncProblem = problem;
}

void MainWindow::slot_popup_window(quint32 index)
{
    runMessage(ENUM_MenuIndex(index));
}

void MainWindow::slot_CreateDialog()
{
    runMessage(MSG_Waiting);
}

void MainWindow::slot_FactoryRest()
{
    runMessage(MSG_IsResetting);
    runMessage(MSG_ResetSucceed);
}

void MainWindow::slot_softDeviceBackup(quint8 step)
{
    qDebug() << "qDialog->exex()";
    if (step < backupSteps)
        runMessage(ENUM_MenuIndex(MSG_DeviceBackupFirst + step));
}

void MainWindow::slot_softDeviceRestore(quint8 step)
{
    qDebug() << "qDialog->exex()";
    if (step < backupSteps)
        runMessage(ENUM_MenuIndex(MSG_DeviceRestoreFirst + step));
}

void MainWindow::slot_soft_calibrate(quint8 state)
{
    qDebug() << "========calibrateing========";
    if (state == 1) {
        if (!CalibratingDialog)
            CalibratingDialog = openMessage(MSG_SoftCalibrating);
    } else if (state == 0 && CalibratingDialog) {
        delete CalibratingDialog;
        runMessage(MSG_SoftCalibrateExit);
    }
}

void MainWindow::slot_update(quint8 mode, quint16 count)
{
    if (!poolObject<MenuDirectory>(ENUM_MAIN_MENU) || ProductionTest::runs())
        return;
    m_updateRunning = true;
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
    m_updateDialog = openMessage(message, progress);
    if (last)
        last->done(replaced);
}

void MainWindow::slot_ReturnToMainSoft(bool mode)
{
    qDebug() << "slot_ReturnToMain!!!!!!";
    if (ProductionTest::runs())
        return;
    if (m_bLockFlag) {
        if (!mode)
            lock_mode = true;
        else if (lock_mode)
            SetLockState(PANEL_UNLOCK, true);
    } else if (!mode) {
        if (!isVisible() || QApplication::activeModalWidget())
            leaveForHome();
        SetLockState(PANEL_LOCK, true);
        lock_mode = true;
    }
    endBrightnessEdit();
}

void MainWindow::leaveForHome()
{
    qDebug() << "slot_ReturnToMain start!!!!!!";
    endDialogs();
    QTimer::singleShot(0, this, &MainWindow::endDialogs); // also one that the ESC brings up
    KeypadEvent esc(KEY_RELEASED, KEY_ESC, 1, false);
    if (MenuDirectory *page = MenuDirectory::shownPage())
        page->keypadEScEvent(&esc);
    MenuDirectory::setNoPage();
    MenuDirectory::hideAllPages();
    qDebug() << "slot_ReturnToMain end!!!!!!";
    show();
}

/// What a dialog has interrupted goes on when it is gone, and may have more to ask or to tell: until the last
/// of them has come back from its event loop.
void MainWindow::endDialogs()
{
    constexpr int programsOwnLoop = 1;
    while (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
        qDebug() << "now in pDialog";
        dialog->done(replaced);
    }
    if (QThread::currentThread()->loopLevel() > programsOwnLoop)
        QTimer::singleShot(0, this, &MainWindow::endDialogs);
}

void MainWindow::endBrightnessEdit()
{
    if (!MenuDirectory::bSetScreenBrightness)
        return;
    if (auto *save = poolObject<VaskUiObject>(ENUM_ROW_SavetoRVCard))
        save->CallProtocol(QString(), MENU_SavetoRVCard);
    MenuDirectory::bSetScreenBrightness = false;
}
