#include "widget/row/typefloatadjust.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"

#include <QDebug>

namespace VASK
{
namespace
{
int decimalsOf(const QString &step)
{
    const int point = step.indexOf(QLatin1Char('.'));
    return point < 0 ? 1 : step.size() - point - 1;
}
} // namespace

QString typefloatadjust::stepped(int steps) const
{
    float value = m_item.value.toFloat() + static_cast<float>(steps) * m_item.step.toFloat();
    if (steps < 0)
        value = qMax(value, m_item.min.toFloat());
    else
        value = qMin(value, m_item.max.toFloat());
    return QString::number(static_cast<double>(value), 'f', decimalsOf(m_item.step));
}

void typefloatadjust::takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode)
{
    NumberRow::takeValue(index, value, mode);
    qDebug() << "strCurValue = " << m_item.value;
}
} // namespace VASK
