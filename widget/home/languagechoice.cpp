#include "widget/home/languagechoice.h"

#include "framework/engine/paraprocess.h"
#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/dialog/dialog_languageselect.h"
#include "widget/dialog/dialog_wait.h"

#include <QApplication>
#include <QTimer>

using namespace VASK;

namespace
{
/// The request to wait stands on the LCD before the pages keep the GUI thread busy.
constexpr int pictureFirstMs = 50;

void changeLanguage(QWidget &home, bool english)
{
    QTimer::singleShot(pictureFirstMs, &home, [english] {
        if (auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS))
            engine->SetParaToXml(QString(), english ? MENU_LanguageEn : MENU_LanguageZh, SET_XML_USER);
    });
    if (english)
        Dialog_Wait_English(&home).exec();
    else
        Dialog_Wait_Chinese(&home).exec();
}
} // namespace

void chooseLanguage(QWidget &home)
{
    // The key may have been under way while something else came to the front.
    if (!home.isVisible() || QApplication::activeModalWidget())
        return;
    dialog_languageSelect question(&home);
    const int answer = question.exec();
    if (answer == (englishChosen() ? dialog_languageSelect::CHINESE : dialog_languageSelect::ENGLISH))
        changeLanguage(home, answer == dialog_languageSelect::ENGLISH);
}
