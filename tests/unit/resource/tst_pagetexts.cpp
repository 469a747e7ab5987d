// The pages and messages as they come up in both languages: after a switch of the language nothing is left of
// the other one, and no text is cut off. Each is kept as a picture under the build folder to look at.

#include "tests/unit/widget/pagerig.h"
#include "widget/dialog_msgbox.h"
#include "widget/elidinglabel.h"

#include <QPushButton>
#include <QTableWidget>
#include <QTranslator>

using namespace VASK;

namespace
{
struct Language {
    const char *name;
    ENUM_MenuIndex item;
    const char *file;
    const char *font;
};
constexpr Language languages[] = {{"English", MENU_LanguageEn, "fpd_EN.qm", "Arial"},
                                  {"Chinese", MENU_LanguageZh, "fpd_ZH.qm", "宋体"}};

QString builtFile(const QString &name)
{
    return QCoreApplication::applicationDirPath() + "/../translation/" + name;
}

void keepPicture(QWidget &widget, const Language &language, const QString &name)
{
    const QString folder =
        QCoreApplication::applicationDirPath() + "/../pictures/texts/" + QString(language.name).toLower();
    QDir().mkpath(folder);
    widget.grab().save(folder + '/' + name + ".png");
}

/// A page that is not of the three trees is built on demand.
MenuDirectory *pageOf(ENUM_ConfigIndex config)
{
    if (builtPages().contains(config))
        return PageRig::page(g_config[config].object);
    return DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).buildMenu(config);
}

bool isCut(const QLabel &label)
{
    // The dots of an address stand between its boxes: they may reach into the space beside them.
    if (label.text() == QLatin1String("."))
        return false;
    const QSize room = label.contentsRect().size();
    const int flags = int(label.alignment()) | (label.wordWrap() ? Qt::TextWordWrap : 0);
    const QSize needed =
        label.fontMetrics().boundingRect(QRect(0, 0, room.width(), 1000), flags, label.text()).size();
    return needed.width() > room.width() || needed.height() > room.height();
}

/// The texts that the page or box cannot show whole.
QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    for (const QLabel *label : window.findChildren<QLabel *>())
        if (label->isVisibleTo(&window) && !label->text().isEmpty() && isCut(*label))
            cut << label->text();
    for (const QPushButton *button : window.findChildren<QPushButton *>())
        if (button->isVisibleTo(&window) &&
            button->fontMetrics().horizontalAdvance(button->text()) > button->width())
            cut << button->text();
    return cut;
}
} // namespace

class TestPageTexts : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig.reset(new PageRig(PageRig::Real));
        QVERIFY(m_rig->built);
        QVERIFY(m_rig->home->Init());
        QVERIFY(m_rig->engine->Initialize());
        for (const Language &language : languages) {
            const QString place = "/usr/vask/etc/fpd/config/";
            QVERIFY(QFile::copy(builtFile(language.file), board::filePath(place + language.file)));
        }
        QVERIFY(m_atStart.load(builtFile("fpd_ZH.qm")));
        QVERIFY(QCoreApplication::installTranslator(&m_atStart));
    }

    void theHomeScreen_data() { eachLanguage(); }
    void theHomeScreen()
    {
        MainWindow &home = *m_rig->home;
        home.SetLayerName(LAYER_MAIN, "MOSAIC");
        home.SetLayerState(LAYER_MAIN, LAYER_NO_SIGNAL);
        home.SetLayerRes(LAYER_PIP1, "Off"); // what the device reports is no key
        const Language &language = switchLanguage();
        const bool english = language.item == MENU_LanguageEn;
        const auto shown = [&](const char *label) { return home.findChild<QLabel *>(label)->text(); };
        QCOMPARE(shown("labLayerSrc1_Name"), QString(english ? "Mosaic" : "拼接源"));
        QCOMPARE(shown("labLayerSrc1_Res"), QString(english ? "No Signal" : "无信号"));
        QCOMPARE(shown("labLayerSrc2_Res"), QString("Off"));
        QCOMPARE(shown("labWindowOffDisplay_2"), QString(english ? "Inactive" : "未开启"));
        home.show();
        keepPicture(home, language, "home");
        home.hide();
    }

    void everyPage_data() { eachLanguage(); }
    void everyPage()
    {
        const Language &language = switchLanguage();
        QStringList faults;
        for (auto config = g_config.cbegin(); config != g_config.cend(); ++config) {
            MenuDirectory *page = pageOf(config.key());
            QVERIFY(page);
            page->show();
            QCoreApplication::processEvents();
            keepPicture(*page, language,
                        QString("%1 %2").arg(int(config.key()), 2, 10, QChar('0')).arg(config->title));
            for (const QString &text : cutTexts(*page))
                faults << config->title + ": cut off: " + text;
            for (const ElidingLabel *label : page->findChildren<ElidingLabel *>())
                if (label->font().family() != language.font)
                    faults << config->title + ": in the font of the other language: " + label->text();
            page->hide();
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join("\n")));
    }

    void everyMessage_data() { eachLanguage(); }
    void everyMessage()
    {
        const Language &language = switchLanguage();
        QStringList faults;
        for (auto message = g_dialogConfig.cbegin(); message != g_dialogConfig.cend(); ++message) {
            dialog_msgBox box(nullptr, message->text, message->buttonType, 0, QString());
            box.show();
            QApplication::setActiveWindow(&box); // at once: with the next event the bench answers it
            keepPicture(box, language, QString("message %1 %2").arg(int(message.key())).arg(message->text));
            faults << cutTexts(box);
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join("\n")));
    }

private:
    static void eachLanguage()
    {
        QTest::addColumn<int>("number");
        for (int number : {0, 1})
            QTest::newRow(languages[number].name) << number;
    }
    const Language &switchLanguage()
    {
        const Language &language = languages[*static_cast<int *>(QTest::qData("number", qMetaTypeId<int>()))];
        m_rig->engine->SetParaToXml(QString(), language.item, SET_XML_USER);
        return language;
    }

    std::unique_ptr<PageRig> m_rig;
    QTranslator m_atStart;
};

QTEST_MAIN(TestPageTexts)
#include "tst_pagetexts.moc"
