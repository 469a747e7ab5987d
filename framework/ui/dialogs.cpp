#include "framework/ui/dialogs.h"

#include "framework/productiontest/productiontest.h"

#include <QDebug>
#include <memory>

namespace VASK
{
QDialog *createMessage(QWidget *parent, ENUM_MenuIndex index, const QString &extra)
{
    // The production test has the screen to itself, apart from its own result.
    if (!Dialogs::instance() || (ProductionTest::runs() && index != MSG_InOutTestSaveResult))
        return nullptr;
    constexpr int messageKind = 2;
    const auto row = g_dialogConfig.constFind(index);
    if (row == g_dialogConfig.cend() || row->type != messageKind || !row->enabled)
        return nullptr;
    return Dialogs::instance()->message(parent, *row, extra);
}

std::optional<int> runMessage(QWidget *parent, ENUM_MenuIndex index, const QString &extra)
{
    const std::unique_ptr<QDialog> message(createMessage(parent, index, extra));
    if (message)
        return message->exec();
    qDebug() << "qDialog create faild! index:" << int(index);
    return std::nullopt;
}
} // namespace VASK
