// The surroundings of a row under test: a store and an engine in the pool, and a record of what reaches the
// engine. The engine stands without a home screen, so it stores values and moves nothing else.
#pragma once

#include "boardio.h"
#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QDir>
#include <QLabel>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

/// A row as it is once it has been seen.
template <class Row> class Seen : public Row
{
public:
    template <class... Arguments> explicit Seen(Arguments... arguments) : Row(arguments...)
    {
        this->ensurePolished();
    }
};

/// One of the labels of a row has that text.
inline bool shows(const QWidget &row, const QString &text)
{
    for (const QLabel *label : row.findChildren<QLabel *>())
        if (label->text() == text)
            return true;
    return false;
}

class RowBench
{
public:
    RowBench()
    {
        qputenv("FPD_STATE", m_state.path().toUtf8());
        QDir().mkpath(board::filePath("/usr/vask/etc/fpd/config"));
        auto *pool = VASK::ObjectPool::getInstance();
        m_store.initlize();
        pool->InsertData(VASK::ENUM_MENUANALYSIS, &m_store);
        pool->InsertData(VASK::ENUM_PARAPROCESS, &m_engine);
        applied().clear();
        m_previous = qInstallMessageHandler(record);
    }
    ~RowBench()
    {
        qInstallMessageHandler(m_previous);
        VASK::ObjectPool::getInstance()->RemoveByIndex(VASK::ENUM_PARAPROCESS);
        VASK::ObjectPool::getInstance()->RemoveByIndex(VASK::ENUM_MENUANALYSIS);
    }

    VASK::MenuAnalysis &store() { return m_store; }
    VASK::ParaProcess &engine() { return m_engine; }

    VASK::ST_ItemInfo item(VASK::ENUM_MenuIndex index) const
    {
        VASK::ST_ItemInfo item;
        m_store.GetMenuItem(index, item);
        return item;
    }
    template <class Change> void edit(VASK::ENUM_MenuIndex index, Change change)
    {
        VASK::ST_ItemInfo changed = item(index);
        change(changed);
        m_store.updataMenuItem(index, changed);
    }
    QString value(VASK::ENUM_MenuIndex index) const { return item(index).value; }

    /// The items that were applied for the user or the device since the last call, in order.
    static QList<int> takeApplied()
    {
        QList<int> taken;
        taken.swap(applied());
        return taken;
    }

private:
    static QList<int> &applied()
    {
        static QList<int> indexes;
        return indexes;
    }
    static void record(QtMsgType, const QMessageLogContext &, const QString &text)
    {
        static const QRegularExpression line("^index == (\\d+)");
        const QRegularExpressionMatch match = line.match(text);
        if (match.hasMatch())
            applied() << match.captured(1).toInt();
    }

    QTemporaryDir m_state;
    VASK::MenuAnalysis m_store{VASK::ENUM_MENUANALYSIS};
    VASK::ParaProcess m_engine{VASK::ENUM_PARAPROCESS};
    QtMessageHandler m_previous = nullptr;
};

/// Each test has a bench of its own.
class RowTest : public QObject
{
    Q_OBJECT
protected:
    std::unique_ptr<RowBench> m_bench;

private slots:
    void init() { m_bench = std::make_unique<RowBench>(); }
    void cleanup() { m_bench.reset(); }
};
