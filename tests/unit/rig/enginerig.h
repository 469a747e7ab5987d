// The panel with a row for every row of the pages that the model builds, which notes what it is told.
#pragma once

#include "fpd_hostlink.h"
#include "tests/unit/rig/panelrig.h"

namespace VASK
{
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

class EngineRig : public PanelRig
{
public:
    EngineRig()
    {
        DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).CreateAllMenu();
        home->Init();
        addRows(builtPages());
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
        resetItems();
        ParaProcess *last = engine;
        enter(ENUM_PARAPROCESS, engine = new ParaProcess(ENUM_PARAPROCESS));
        delete last;
        ParaProcess::init_20m_flg = false;
        ParaProcess::m_ResetFlg = false;
        engine->Initialize();
        QFile::remove(statePath(hostlink::flashFile));
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
    /// The device's flash is empty but for what has been written since the last reset.
    void writeFlash(int address, const QByteArray &bytes)
    {
        QFile flash(statePath(hostlink::flashFile));
        QVERIFY(flash.open(QIODevice::ReadWrite));
        if (flash.size() == 0)
            flash.resize(0xD14140);
        QVERIFY(flash.seek(address) && flash.write(bytes) == bytes.size());
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

    Notes reported;    ///< values that rows got as the device's
    Notes reloaded;    ///< values that rows got to show; empty to reload
    Notes redrawn;     ///< objects of the rows that were told to load all of their item again
    QStringList looks; ///< what rows were told beside values: their layout, arrows

private:
    void apply(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode)
    {
        engine->SetParaToXml(value, index, mode);
        settle();
    }
};
} // namespace VASK
