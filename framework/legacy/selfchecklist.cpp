#include "framework/legacy/selfchecklist.h"

namespace VASK
{
QMutex SelfCheckList::m_mutex;
QMap<QString, ListItemInfo> SelfCheckList::m_mapDevChkItems;

QMap<QString, ListItemInfo> SelfCheckList::rows()
{
    QMutexLocker lock(&m_mutex);
    return m_mapDevChkItems;
}

void SelfCheckList::setRow(const QString &number, const ListItemInfo &row)
{
    QMutexLocker lock(&m_mutex);
    m_mapDevChkItems.insert(number, row);
}

void SelfCheckList::setResult(int number, const QString &text, const QString &status)
{
    QMutexLocker lock(&m_mutex);
    ListItemInfo &row = m_mapDevChkItems[QString::number(number)];
    row.text = text;
    row.status = status;
}
} // namespace VASK
