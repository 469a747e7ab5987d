// The language of the panel, chosen from the home screen.

#include "widget/home/mainwindow_k2860.h"

#include "framework/engine/paraprocess.h"
#include "framework/thread/handover.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/dialog/dialog_languageselect.h"
#include "widget/dialog/dialog_wait.h"
#include "widget/home/mainwindowui.h"
#include "widget/language.h"

#include <QApplication>

using namespace VASK;

namespace
{
/// The request to wait stands on the LCD before the pages keep the GUI thread busy.
constexpr int pictureFirstMs = 50;
} // namespace

void MainWindow::SetParaEntry(ENUM_MenuIndex, QString, ENUM_MODE_SET_XML)
{
    runOnGui(this, [this] { ui->translateAgain(); });
}

void MainWindow::chooseLanguage(KeypadEvent *)
{
    // The key may have been under way while something else came to the front.
    if (!isVisible() || QApplication::activeModalWidget())
        return;
    dialog_languageSelect question(this);
    const int answer = question.exec();
    if (answer == (englishChosen() ? dialog_languageSelect::CHINESE : dialog_languageSelect::ENGLISH))
        changeLanguage(answer == dialog_languageSelect::ENGLISH);
}

void MainWindow::changeLanguage(bool english)
{
    QTimer::singleShot(pictureFirstMs, this, [english] {
        if (auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS))
            engine->SetParaToXml(QString(), english ? MENU_LanguageEn : MENU_LanguageZh, SET_XML_USER);
    });
    if (english)
        Dialog_Wait_English(this).exec();
    else
        Dialog_Wait_Chinese(this).exec();
}
