// Pictures of the whole panel for the manual: starts a device and a panel of its own and walks through all
// pages, lists and questions, the self check and the production test, in both languages.
//   fpd-tour DIR      saves DIR/en/*.png and DIR/zh/*.png and a contact sheet of each, DIR/en-1.png and so
//   on;
//                     prints what was not as it should be
#include "client/contactsheet.h"
#include "menu/itemindex.h"
#include "menu/pageindex.h"
#include "tools/menutour.h"

#include <QApplication>
#include <QDir>
#include <cstdio>

using namespace VASK;

namespace
{
bool setLanguage(Panel &panel, bool english)
{
    return panel.setStored(MENU_LanguageEn, english ? SELECTED : UNSELECTED, "Choice") &&
           panel.setStored(MENU_LanguageZh, english ? UNSELECTED : SELECTED, "Choice");
}

QStringList walkThrough(bool english, const QString &folder)
{
    Panel panel;
    // The first start makes the store in which the language is set.
    if (!panel.powerDevice() || !panel.start() || !panel.ask({"panel", "stop"}).ok ||
        !setLanguage(panel, english) || !panel.start() || !panel.ask({"wait", "settled"}).ok)
        return {"the panel does not start"};
    Tour tour(panel, english ? "fpd_EN" : "fpd_ZH", folder);
    panel.press("in1"); // the input with a signal
    panel.settle();
    tour.homeScreen();
    for (ENUM_ConfigIndex root : {CONFIG_MainMenu, CONFIG_UserHiddenMenu, CONFIG_ProductHiddenMenu})
        tour.walk(root);
    tour.productionTest();
    return tour.faults();
}

/// Sheets of forty pages and questions at half their size; what is under edit stands in its own file only.
void contactSheets(const QDir &pictures, const QString &name)
{
    constexpr int columns = 5, rows = 8;
    ContactSheet sheet(name, columns, rows, QSize(160, 120));
    const QStringList files = pictures.entryList({"*.png"}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        if (!file.endsWith("-edit.png"))
            sheet.add(QImage(pictures.filePath(file)));
}
} // namespace

int main(int argc, char **argv)
{
    const bool help = argc == 2 && (qstrcmp(argv[1], "--help") == 0 || qstrcmp(argv[1], "-h") == 0);
    if (argc != 2 || help) {
        fprintf(help ? stdout : stderr, "usage: fpd-tour DIR\n");
        return help ? 0 : 2;
    }
    QApplication application(argc, argv);
    const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    QStringList faults;
    for (bool english : {true, false}) {
        faults += walkThrough(english, folder);
        const QString language = folder + (english ? "/en" : "/zh");
        contactSheets(QDir(language), language);
    }
    for (const QString &fault : qAsConst(faults))
        printf("%s\n", qPrintable(fault));
    return faults.isEmpty() ? 0 : 1;
}
