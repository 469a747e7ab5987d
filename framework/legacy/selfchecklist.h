// The rows of the device's self-check list: filled by the report of a self test, shown by the self-check
// window. Any thread; each access takes a short lock.
#pragma once

#include <QMap>
#include <QMutex>
#include <QString>

namespace VASK
{
/// One row. A status other than "normal" is shown as a fault.
struct ListItemInfo {
    QString name;
    QString status;
    QString text;
};

class SelfCheckList
{
public:
    static constexpr const char *normal = "normal";

    /// The rows by their number in decimal.
    static QMap<QString, ListItemInfo> rows();
    static void setRow(const QString &number, const ListItemInfo &row);
    /// What a test found; the name of a row that is there stays.
    static void setResult(int number, const QString &text, const QString &status);

private:
    static QMutex m_mutex;
    static QMap<QString, ListItemInfo> m_mapDevChkItems;
};
} // namespace VASK
