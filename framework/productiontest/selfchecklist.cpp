#include "framework/productiontest/selfchecklist.h"

namespace VASK
{
namespace
{
/// What a device tells of itself, in its order, and behind it the panel's own rows.
constexpr const char *rowNames[] = {
    "F_VERSION",    "F_CONNECT",     "F_VCCINT",     "F_VCCAUX",      "F_VCCBRAM", "F_TEMP",
    "F_D_CLK_ST",   "F_DISP_CLK",    "F_M_CLK_ST",   "F_MONIT_CLK",   "F_DDR",     "F_MMCM_LK",
    "F_GTX_LK_ST0", "F_GTX_LK_FRE0", "F_GTX_LK_ST1", "F_GTX_LK_FRE1", "A_MEM_PER", "A_CPU_PER",
    "A_EMMC_PER",   "M_VERSION",     "S_VERSION",    "H_VERSION",     "H_TEMP_BD", "H_VCC_BD",
    "H_TEST_COUNT", "S0_TEMP",       "S1_TEMP",      "FPGA_STATUS",   "FPGA_DDR",  "MCU_STATUS",
};
static_assert(std::size(rowNames) == SelfCheckList::McuStatus + 1);

QMap<QString, ListItemInfo> emptyRows()
{
    QMap<QString, ListItemInfo> rows;
    int number = 0;
    for (const char *name : rowNames)
        rows.insert(QString::number(number++), {name, QString(), QString()});
    return rows;
}
} // namespace

QMutex SelfCheckList::m_mutex;
QMap<QString, ListItemInfo> SelfCheckList::m_mapDevChkItems = emptyRows();

QMap<QString, ListItemInfo> SelfCheckList::rows()
{
    QMutexLocker lock(&m_mutex);
    return m_mapDevChkItems;
}

QVector<ListItemInfo> SelfCheckList::inOrder()
{
    const QMap<QString, ListItemInfo> byText = rows();
    QMap<int, ListItemInfo> byNumber;
    for (auto row = byText.cbegin(); row != byText.cend(); ++row)
        byNumber.insert(row.key().toInt(), row.value());
    return byNumber.values().toVector();
}

void SelfCheckList::setResult(int number, const QString &text, const QString &status)
{
    QMutexLocker lock(&m_mutex);
    ListItemInfo &row = m_mapDevChkItems[QString::number(number)];
    row.text = text;
    row.status = status;
}

void SelfCheckList::setVerdict(OwnRow row, bool good)
{
    const QString word = QLatin1String(good ? normal : error);
    setResult(row, word, word);
}
} // namespace VASK
