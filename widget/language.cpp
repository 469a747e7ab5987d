#include "widget/language.h"

#include "framework/menuanalysis.h"

#include <QCoreApplication>

namespace VASK
{
QString translated(const QString &key)
{
    return QCoreApplication::translate("MainWindow", key.toUtf8().constData());
}

bool englishChosen()
{
    QString choice;
    auto *store = dynamic_cast<MenuAnalysis *>(ObjectPool::getInstance()->GetObject(ENUM_MENUANALYSIS));
    return store && store->GetItemCurChoice(MENU_LanguageEn, choice) && choice == SELECTED;
}

QString fontFamily()
{
    return englishChosen() ? QStringLiteral("Arial") : QStringLiteral("宋体");
}
} // namespace VASK
