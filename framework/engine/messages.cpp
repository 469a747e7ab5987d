// The messages of the menu table as dialogs.

#include "framework/engine/paraprocess.h"
#include "framework/productiontest/productiontest.h"
#include "menu/itemindex.h"
#include "widget/dialog/dialog_msgbox.h"

namespace VASK
{
QDialog *ParaProcess::CreateDialog(ENUM_MenuIndex index, QString text)
{
    // The production test has the screen to itself, apart from its own result.
    if (ProductionTest::runs() && index != MSG_InOutTestSaveResult)
        return nullptr;
    constexpr int messageKind = 2;
    const auto row = g_dialogConfig.constFind(index);
    if (row == g_dialogConfig.cend() || row->type != messageKind || !row->enabled)
        return nullptr;
    return new dialog_msgBox(this, row->text, row->buttonType, unsigned(row->timeMs), text);
}
} // namespace VASK
