// Reports of the device as tables: a row pushes and names all that it leads to in the running panel. On the
// home screen, with a device that tells nothing by itself, so that every answer is the panel's own. GUI
// thread of the test.
#pragma once

#include "client/names/itemnames.h"
#include "tests/system/systemtest.h"

#include <QMap>
#include <QVector>

/// A number as it stands in a report, in hex; bytes beyond its own are 0.
QString littleEndian(int value, int bytes);

/// A row of such a table; what it does not name does not happen.
class PushRow
{
public:
    /// Reports as the console takes them, "ADDRESS BYTES [--device N] [--ack N]", parted by semicolons.
    PushRow(const QString &name, const QString &reports) : name(name), reports(reports.split(';')) {}

    /// All that changes in config.xml, "MainLayer_{InitialX=100 InputCrop/Enable=true}
    /// OSDChoice/Params1/3=Disable": items, with a field where it is not the value.
    PushRow &stores(const QString &changes)
    {
        stored = changes;
        return *this;
    }
    /// The values that the panel takes over, in order, "PortLink=1 PortLink+1=0": for those that no file
    /// keeps.
    PushRow &tells(const QString &values)
    {
        told = values;
        return *this;
    }
    /// What the LCD shows then and did not show before, as homescreen::sees takes it.
    PushRow &shows(const QStringList &seen)
    {
        sights = seen;
        return *this;
    }
    /// The register writes in answer, in order, as the console prints them.
    PushRow &answers(const QStringList &lines)
    {
        writes = lines;
        return *this;
    }

    QString name;
    QStringList reports;
    QString stored;
    QString told;
    QStringList sights;
    QStringList writes;
};

class Pushes
{
public:
    explicit Pushes(Panel &panel) : m_panel(panel) {}

    /// Waits for the end of the device's start and lets it fall silent.
    bool begin();
    /// Runs the rows in order; gives what went otherwise than they say, a line a finding.
    QString run(const QVector<PushRow> &rows);
    /// Pushes, and waits until the panel has done all that follows from it.
    bool push(const QStringList &reports);
    /// Waits until all changes so far have reached config.xml.
    bool flush();

private:
    using Changes = QMap<QString, QString>;
    bool passBarrier();
    static Changes changesOf(const QString &text);
    static Changes changesOf(const QVector<PushRow> &rows);
    static QVector<PushRow> groupFrom(const QVector<PushRow> &rows, int first);
    void runGroup(const QVector<PushRow> &rows);
    void runRow(const PushRow &row);
    bool flush(const Changes &touched);
    void compareStore(const Changes &before, const QVector<PushRow> &rows);
    void complain(const QString &row, const QString &what);
    QStringList toldValues();

    Panel &m_panel;
    QStringList m_complaints;
    QStringList m_writes; ///< expected so far
    int m_barrier = 0;
};

/// A test program of such tables, one after the other on one panel.
class PushesTest : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        SystemTest::begin();
        QVERIFY(m_pushes.begin());
    }
    void expect(const QVector<PushRow> &rows) { QCOMPARE(m_pushes.run(rows), QString()); }

    Pushes m_pushes{m_panel};
};
