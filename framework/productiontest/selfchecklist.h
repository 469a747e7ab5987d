// The rows of the device's self-check list: filled by the report of a self test, shown by the self-check
// window. Any thread; each access takes a short lock.
#pragma once

#include <QMap>
#include <QMutex>
#include <QString>
#include <QVector>

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
    static constexpr const char *error = "error";
    /// The rows that the panel fills by asking its own board; those before them come from the device.
    enum OwnRow { FpgaStatus = 27, FpgaMemory = 28, McuStatus = 29 };

    /// The rows by their number in decimal.
    static QMap<QString, ListItemInfo> rows();
    /// The rows in the order of their numbers.
    static QVector<ListItemInfo> inOrder();
    /// What a test found; the name of the row stays, a row that is not there yet gets none.
    static void setResult(int number, const QString &text, const QString &status);
    static void setVerdict(OwnRow row, bool good);

private:
    static QMutex m_mutex;
    static QMap<QString, ListItemInfo> m_mapDevChkItems;
};
} // namespace VASK
