#include "widget/panelui.h"

#include "framework/ui/dialogs.h"
#include "framework/ui/pages.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "widget/dialog/dialog_msgbox.h"
#include "widget/dialog/dialog_scene.h"
#include "widget/page/directoryengineer.h"
#include "widget/page/menudirectoty.h"
#include "widget/page/openpage.h"

namespace VASK
{
namespace
{
class PanelPages : public Pages
{
public:
    Page *build(ENUM_ConfigIndex config) override
    {
        return DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).buildMenu(config);
    }
    void noteOpen(ENUM_ObjectIndex page) override { OpenPage::set(page); }
    void leave() override { OpenPage::leave(); }
};

class PanelDialogs : public Dialogs
{
public:
    QDialog *message(QWidget *parent, const ST_DialogInfo &row, const QString &extra) override
    {
        return new dialog_msgBox(parent, row.text, row.buttonType, unsigned(row.timeMs), extra);
    }
    int presetAction(QWidget *parent, const QString &name, bool empty) override
    {
        constexpr unsigned char saveFirst = 1, loadFirst = 2;
        const QString pictures = imgPath + "sceneSetting/";
        return Dialog_scene(parent, name, pictures + "save.png", "Save", pictures + "load.png", "Load",
                            pictures + "delete.png", "Clear", pictures + "copy.png", "CopyTo",
                            empty ? "2.3.4" : "", empty ? saveFirst : loadFirst)
            .exec();
    }
};
} // namespace

void enterWidgets()
{
    static PanelPages pages;
    static PanelDialogs dialogs;
    Pages::use(&pages);
    Dialogs::use(&dialogs);
}
} // namespace VASK
