#include "framework/protocol/receive/selftest.h"

#include "framework/engine/paraprocess.h"
#include "framework/input/keypadevent.h"
#include "framework/productiontest/boardcheck.h"
#include "framework/productiontest/productiontest.h"
#include "framework/productiontest/selfchecklist.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/thread/handover.h"
#include "menu/keycodes.h"

#include <QApplication>
#include <QStringList>
#include <algorithm>

namespace VASK
{
namespace
{
using boardcheck::Answer;

QString record(const char *name, bool good)
{
    const QString state = QLatin1String(good ? SelfCheckList::normal : SelfCheckList::error);
    return QStringLiteral("%1:--:--:%2:--:%2;").arg(QLatin1String(name), state);
}

QString fpgaRecords()
{
    const Answer version = boardcheck::fpgaVersion();
    if (version == Answer::NotStarted)
        return {};
    if (version == Answer::None)
        return record("FPGA_STATUS", false) + record("FPGA_DDR", false);
    const Answer memory = boardcheck::fpgaMemory();
    QString text = record("FPGA_STATUS", true);
    if (memory != Answer::NotStarted)
        text += record("FPGA_DDR", memory == Answer::Other);
    return text;
}

QString mcuRecord()
{
    const Answer answer = boardcheck::mcuVersion();
    if (answer == Answer::NotStarted || answer == Answer::None)
        return {};
    return record("MCU_STATUS", answer == Answer::Other);
}

/// Takes one record over into its row; false if it tells of a fault.
bool takeRecord(int number, const QString &text)
{
    const QStringList fields = text.split(QLatin1Char(':'));
    const auto value = std::find_if(fields.begin() + 1, fields.end(),
                                    [](const QString &field) { return field != QLatin1String("--"); });
    if (fields.size() < 2 || value == fields.end())
        return true;
    SelfCheckList::setResult(number, *value, fields.last());
    return fields.last() == QLatin1String(SelfCheckList::normal);
}

/// The production test waits for a key of its own.
void tellProductionTest(bool passed)
{
    if (ProductionTest::m_cur_step != FACTORY_STEP_SELF_TEST)
        return;
    postToGui(QCoreApplication::instance(), [passed] {
        if (QWidget *window = QApplication::activeWindow())
            QCoreApplication::postEvent(
                window, new KeypadEvent(passed ? KEY_RELEASED : KEY_PRESSED, KEY_SELF_TEST_DONE, 0, false));
    });
}
} // namespace

int ParseSelfTestInfo(const Report &report)
{
    const QByteArray &data = report.message.data;
    const int end = data.indexOf('\0');
    QString text = QString::fromLatin1(data.left(end < 0 ? data.size() : end));
    text += fpgaRecords() + mcuRecord();

    const QStringList pieces = text.split(QLatin1Char(';'));
    bool passed = true;
    for (int i = 1; i < pieces.size(); ++i)
        if (!takeRecord(i - 1, pieces.at(i)))
            passed = false;
    emit report.parse.engine().signal_selfcheck_filled();
    tellProductionTest(passed);
    return 0;
}
} // namespace VASK
