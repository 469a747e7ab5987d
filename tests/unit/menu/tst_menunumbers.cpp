// A number stands for one thing: among the names of a number space, and among the rows of a table. Read from
// the headers, so that what fails is told by its names.

#include "menu/itemindex.h"
#include "menu/tables.h"
#include "tests/testprogram.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

using namespace VASK;

namespace
{
/// A file of the sources without its comments and what it includes.
QString source(const QString &name)
{
    QFile file(qEnvironmentVariable("FPD_SOURCES") + '/' + name);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readAll()).remove(QRegularExpression("//[^\n]*|#[^\n]*\n"));
}

/// The entries "NAME = VALUE" of an enumeration.
QStringList entriesOf(const QString &header, const QString &enumeration)
{
    const QString body =
        QRegularExpression("enum " + enumeration + "[^{]*\\{([^}]*)\\}").match(source(header)).captured(1);
    QStringList entries = body.split(',', Qt::SkipEmptyParts);
    for (QString &entry : entries)
        entry = entry.simplified();
    entries.removeAll(QString());
    return entries;
}

QString nameOf(int item)
{
    for (const QString &entry : entriesOf("menu/itemindex.h", "ENUM_MenuIndex"))
        if (entry.endsWith(" = " + QString::number(item)))
            return entry;
    return QString::number(item);
}

/// The names that share a place with one before them.
template <class Key> class Places
{
public:
    void take(const Key &place, const QString &name)
    {
        if (m_names.contains(place))
            m_doubled << m_names.value(place) + " and " + name;
        m_names[place] = name;
    }
    QString doubled() const { return m_doubled.join('\n'); }
    bool isEmpty() const { return m_names.isEmpty(); }

private:
    QMap<Key, QString> m_names;
    QStringList m_doubled;
};
} // namespace

class TestMenuNumbers : public QObject
{
    Q_OBJECT
private slots:
    void namesHaveNumbersOfTheirOwn_data()
    {
        const DataRows<QString> row{"header"};
        row("ENUM_MenuIndex", "menu/itemindex.h");
        row("ENUM_ObjectIndex", "menu/objectindex.h");
        row("ENUM_ConfigIndex", "menu/pageindex.h");
        row("ENUM_KeyCode", "menu/keycodes.h");
        row("ENUM_LedIndex", "menu/ledindex.h");
        row("RegisterAddress", "framework/protocol/packet/registeraddress.h");
    }
    void namesHaveNumbersOfTheirOwn()
    {
        QFETCH(QString, header);
        static const QRegularExpression otherName("^\\w+ = [A-Z]\\w*( \\+ 1)?$"); // meant to be the same
        Places<int> places;
        for (const QString &entry : entriesOf(header, QTest::currentDataTag())) {
            if (otherName.match(entry).hasMatch())
                continue;
            bool isNumber = false;
            const int number = entry.section(" = ", 1).toInt(&isNumber, 0);
            QVERIFY2(isNumber, qPrintable("no number: " + entry));
            places.take(number, entry);
        }
        QVERIFY(!places.isEmpty());
        QCOMPARE(places.doubled(), QString());
    }

    /// A register's number stands in the catalogue or, with a name of its own, beside it, and nowhere else.
    void registersStandInTheCatalogue()
    {
        static const QRegularExpression number("0x(0[1-9A-F]|1[3-9])[0-9A-F]{6}\\b",
                                               QRegularExpression::CaseInsensitiveOption);
        const QDir sources(qEnvironmentVariable("FPD_SOURCES"));
        QMap<QString, QSet<QString>> files; // by the number
        for (const char *folder : {"framework", "widget", "menu"}) {
            QDirIterator file(sources.filePath(folder), QDir::Files, QDirIterator::Subdirectories);
            while (file.hasNext()) {
                const QString name = sources.relativeFilePath(file.next());
                auto found = number.globalMatch(source(name));
                while (found.hasNext())
                    files[found.next().captured().toUpper()] << name;
            }
        }
        const QString catalogue = "framework/protocol/packet/registercatalogue.def";
        const QString beside = "framework/protocol/packet/registeraddress.h";
        QStringList strays;
        for (auto one = files.cbegin(); one != files.cend(); ++one)
            if (one->size() > 1 || !(one->contains(catalogue) || one->contains(beside)))
                strays << one.key() + " in " + QStringList(one->values()).join(", ");
        QVERIFY(files.size() > 200);
        QCOMPARE(strays.join('\n'), QString());
    }

    void rowsStandOnce()
    {
        Places<int> items, messages;
        for (const ST_ItemInfo &item : menuItemRows()) {
            items.take(item.index, nameOf(item.index) + " \"" + item.tag + '"');
            QVERIFY2(item.index < PARA_CabinetWidth,
                     qPrintable(nameOf(item.index) + " lies among the values that are no items"));
        }
        for (const auto &message : menuDialogRows())
            messages.take(message.first, nameOf(message.first) + " \"" + message.second.text + '"');
        QCOMPARE(items.doubled(), QString());
        QCOMPARE(messages.doubled(), QString());
    }
};

FPD_TEST_GUILESS(TestMenuNumbers)
#include "tst_menunumbers.moc"
