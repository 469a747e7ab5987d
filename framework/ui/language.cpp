#include "framework/ui/language.h"

#include "boardio.h"
#include "framework/store/menuanalysis.h"
#include "framework/ui/textfile.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QCoreApplication>
#include <QDebug>

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

QString languageFile(bool english)
{
    return english ? QStringLiteral("/usr/vask/etc/fpd/config/fpd_EN.qm")
                   : QStringLiteral("/usr/vask/etc/fpd/config/fpd_ZH.qm");
}

bool installLanguage(QObject *owner, bool english)
{
    const auto former = owner->findChildren<TextFile *>(QString(), Qt::FindDirectChildrenOnly);
    auto *translator = new TextFile(owner);
    const QString file = board::filePath(languageFile(english));
    if (!translator->loadFile(file) || !QCoreApplication::installTranslator(translator)) {
        qWarning() << "load qm failed!" << file;
        delete translator;
        return false;
    }
    qDeleteAll(former);
    qDebug() << "install qm succeed!";
    return true;
}

QString fontFamily()
{
    return englishChosen() ? QStringLiteral("Arial") : QStringLiteral("宋体");
}
} // namespace VASK
