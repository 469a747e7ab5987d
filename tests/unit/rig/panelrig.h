// The panel in the object pool without its threads, in a state folder of its own: a store with the factory
// items, the engine, the home screen, and a protocol object that notes what it is handed. Messages are noted
// by their text and answered at once.
#pragma once

#include "boardio.h"
#include "client/names/itemnames.h"
#include "framework/engine/paraprocess.h"
#include "framework/object/transport.h"
#include "framework/protocol/link/protocolinterface.h"
#include "framework/store/menuanalysis.h"
#include "framework/store/menushown.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/home/mainwindow_k2860.h"
#include "widget/page/directoryengineer.h"
#include "widget/page/menudirectoty.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMutex>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <functional>

namespace VASK
{
/// Lines of "ITEM=value", noted from any thread.
class Notes
{
public:
    void add(ENUM_MenuIndex index, const QString &value)
    {
        QMutexLocker lock(&m_mutex);
        m_lines << itemnames::line(index, value);
    }
    /// All lines since the last take.
    QStringList take()
    {
        QMutexLocker lock(&m_mutex);
        QStringList lines;
        lines.swap(m_lines);
        return lines;
    }

private:
    QMutex m_mutex;
    QStringList m_lines;
};

class RecordingProtocol : public ProtocolInterface
{
public:
    RecordingProtocol() : ProtocolInterface(ENUM_PROTOCOINTERFER_3RD) {}
    void slot_ValueChanged(QString value, ENUM_MenuIndex index) override { sent.add(index, value); }
    Notes sent;
};

class PanelRig : public QObject
{
public:
    PanelRig()
    {
        qputenv("FPD_STATE", m_state.path().toLocal8Bit());
        for (const char *folder : {"/usr/vask/etc/fpd/config", "/usr/vask/etc/osd", "/usr/vask/etc/logo",
                                   "/etc/init.d", "/bin", "/fault", "/run"})
            QDir().mkpath(m_state.path() + folder);
        enter(ENUM_MENUANALYSIS, store = new MenuAnalysis(ENUM_MENUANALYSIS));
        store->initlize();
        enter(ENUM_TRANSPORT, new transport(ENUM_TRANSPORT));
        enter(ENUM_PROTOCOINTERFER_3RD, device = new RecordingProtocol);
        enter(ENUM_PARAPROCESS, engine = new ParaProcess(ENUM_PARAPROCESS));
        enter(ENUM_MAIN_WINDOW, home = new MainWindow(ENUM_MAIN_WINDOW));
        connect(&m_closer, &QTimer::timeout, this, [this] { answerMessages(); });
        m_closer.start(0);
    }

    /// What the store still brings to the disk has its folder until then.
    ~PanelRig() override { store->endSync(); }

    QString statePath(const QString &name) const { return m_state.path() + name; }

    MenuAnalysis *store = nullptr;
    MainWindow *home = nullptr;
    ParaProcess *engine = nullptr;
    RecordingProtocol *device = nullptr;
    QStringList messages;
    int answer = 1;        ///< of every message
    bool answering = true; ///< false: messages stay
    /// Plays the user of the dialogs that are no messages.
    std::function<void(QDialog &)> operate;

protected:
    static void enter(ENUM_ObjectIndex index, VaskObject *object)
    {
        ObjectPool::getInstance()->InsertData(index, object);
    }
    void resetItems()
    {
        for (auto item = g_MenuXmlConfig.cbegin(); item != g_MenuXmlConfig.cend(); ++item) {
            ST_ItemInfo factory = item.value();
            store->updataMenuItem(item.key(), factory);
        }
    }

private:
    void answerMessages()
    {
        auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!box || !answering)
            return;
        const auto *text = box->findChild<QLabel *>("lab_Info");
        if (!text && operate)
            return operate(*box);
        messages << (text ? text->text() : QString());
        box->done(answer);
    }

    QTemporaryDir m_state;
    QTimer m_closer;
};
} // namespace VASK
