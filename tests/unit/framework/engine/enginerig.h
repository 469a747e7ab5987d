// The engine with all that it talks to: a store with the factory items, the home screen, a row for every row
// of the pages that the model builds, which notes what it is told, and a protocol object that notes what it
// is handed. Messages are noted by their key and answered at once.
#pragma once

#include "boardio.h"
#include "fpd_hostlink.h"
#include "framework/engine/paraprocess.h"
#include "framework/object/transport.h"
#include "framework/protocol/link/protocolinterface.h"
#include "framework/store/menuanalysis.h"
#include "framework/store/menushown.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "testkit/names/itemnames.h"
#include "tests/unit/framework/protocol/datarows.h"
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

class RecordingRow : public VaskUiObject
{
public:
    RecordingRow(ENUM_ObjectIndex object, Notes &reported, Notes &reloaded, Notes &redrawn,
                 QStringList &looks)
        : VaskUiObject(object), m_reported(reported), m_reloaded(reloaded), m_redrawn(redrawn), m_looks(looks)
    {
    }
    void UpdateALLUI(ENUM_MenuIndex index) override
    {
        ENUM_ObjectIndex object = ENUM_OBJECT_END;
        GetObectIndex(object);
        m_redrawn.add(index, QString::number(object));
    }
    void SetParaEntry(ENUM_MenuIndex index, QString value, ENUM_MODE_SET_XML mode) override
    {
        (mode == SET_XML_DEVICE ? m_reported : m_reloaded).add(index, value);
    }
    void setTwoArrow(bool on) override { m_looks << (on ? "arrows" : "plain"); }
    void updateSplite(QString value) override { m_looks << "layout" + value; }
    void updatePixValue(QString text) override { m_looks << text; }

private:
    Notes &m_reported;
    Notes &m_reloaded;
    Notes &m_redrawn;
    QStringList &m_looks;
};

class EngineRig : public QObject
{
public:
    EngineRig()
    {
        qputenv("FPD_STATE", m_state.path().toLocal8Bit());
        for (const char *folder : {"/usr/vask/etc/fpd/config", "/usr/vask/etc/osd", "/usr/vask/etc/logo",
                                   "/etc/init.d", "/bin", "/fault", "/run"})
            QDir().mkpath(m_state.path() + folder);
        store = new MenuAnalysis(ENUM_MENUANALYSIS);
        enter(ENUM_MENUANALYSIS, store);
        store->initlize();
        enter(ENUM_TRANSPORT, new transport(ENUM_TRANSPORT));
        enter(ENUM_PROTOCOINTERFER_3RD, device = new RecordingProtocol);
        enter(ENUM_PARAPROCESS, engine = new ParaProcess(ENUM_PARAPROCESS));
        enter(ENUM_MAIN_WINDOW, home = new MainWindow(ENUM_MAIN_WINDOW));
        DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).CreateAllMenu();
        home->Init();
        addRows(builtPages());
        connect(&m_closer, &QTimer::timeout, this, [this] { answerMessages(); });
        m_closer.start(0);
    }

    /// The rows of pages that are built only when they open, or on another model.
    void addRows(const QList<ENUM_ConfigIndex> &pages)
    {
        for (ENUM_ConfigIndex page : pages)
            for (const st_MenuItemInfo &row : qAsConst(g_config[page].rowsMap))
                addRow(row.itemObject);
    }
    void addRow(ENUM_ObjectIndex object)
    {
        enter(object, new RecordingRow(object, reported, reloaded, redrawn, looks));
    }
    /// Everything as on the first start; the home screen is reached at once.
    void reset()
    {
        for (auto item = g_MenuXmlConfig.cbegin(); item != g_MenuXmlConfig.cend(); ++item) {
            ST_ItemInfo factory = item.value();
            store->updataMenuItem(item.key(), factory);
        }
        ParaProcess *last = engine;
        enter(ENUM_PARAPROCESS, engine = new ParaProcess(ENUM_PARAPROCESS));
        delete last;
        ParaProcess::init_20m_flg = false;
        ParaProcess::m_ResetFlg = false;
        engine->Initialize();
        answer = 1;
        forget();
    }
    void forget()
    {
        settle();
        device->sent.take();
        reported.take();
        reloaded.take();
        redrawn.take();
        looks.clear();
        messages.clear();
    }
    /// Lets queued work run.
    void settle() { QCoreApplication::processEvents(); }

    void fromUser(ENUM_MenuIndex index, const QString &value) { apply(index, value, SET_XML_USER); }
    void fromDevice(ENUM_MenuIndex index, const QString &value) { apply(index, value, SET_XML_DEVICE); }
    void process(ENUM_MenuIndex index, int value) { engine->SaveProcessData(QString::number(value), index); }
    /// An input as the device reports it.
    void input(int number, int code, int signalState, int width, int height, int periodUs)
    {
        const int values[] = {code, 0, signalState, width, height, periodUs};
        for (int field = 0; field < int(std::size(values)); ++field)
            process(ENUM_MenuIndex(PARA_InputRecordFirst + STRIDE_InputRecord * number + field),
                    values[field]);
    }
    void set(ENUM_MenuIndex index, const QString &value) { store->UpdataItemCurValue(index, value); }

    QString value(ENUM_MenuIndex index) const { return engine->GetParaFromIndex(index); }
    QString choice(ENUM_MenuIndex index) const
    {
        QString text;
        store->GetItemCurChoice(index, text);
        return text;
    }
    bool enabled(ENUM_MenuIndex index) const
    {
        bool on = false;
        store->GetItemEnable(index, on);
        return on;
    }
    ST_ItemInfo info(ENUM_MenuIndex index) const
    {
        ST_ItemInfo item;
        store->GetMenuItem(index, item);
        return item;
    }
    bool rowEnabled(ENUM_MenuIndex list, int row) const
    {
        return info(list).params1.value(QString::number(row)) == optionEnable;
    }
    /// A text of the home screen; of labels that share a name, all of them.
    QString shown(const char *label) const
    {
        const auto found = home->findChildren<QLabel *>(label);
        QString text = found.isEmpty() ? QString("no label %1").arg(label) : QString();
        for (const QLabel *shownLabel : found)
            text += shownLabel->text();
        return text;
    }
    QString path(const QString &boardPath) const { return board::filePath(boardPath); }
    QString statePath(const QString &name) const { return m_state.path() + name; }

    MenuAnalysis *store = nullptr;
    MainWindow *home = nullptr;
    ParaProcess *engine = nullptr;
    RecordingProtocol *device = nullptr;
    Notes reported;    ///< values that rows got as the device's
    Notes reloaded;    ///< values that rows got to show; empty to reload
    Notes redrawn;     ///< objects of the rows that were told to load all of their item again
    QStringList looks; ///< what rows were told beside values: their layout, arrows
    QStringList messages;
    int answer = 1; ///< of every message
    /// Plays the user of the dialogs that are no messages.
    std::function<void(QDialog &)> operate;

private:
    void enter(ENUM_ObjectIndex index, VaskObject *object)
    {
        ObjectPool::getInstance()->InsertData(index, object);
    }
    void apply(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode)
    {
        engine->SetParaToXml(value, index, mode);
        settle();
    }
    void answerMessages()
    {
        auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!box)
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
