// The pages and messages as they come up in both languages: after a switch of the language nothing is left of
// the other one, and no text is cut off. Each is kept as a picture under the build folder to look at.

#include "framework/ui/language.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/lookrig.h"
#include "widget/dialog/dialog_msgbox.h"
#include "widget/dialog/lock.h"
#include "widget/row/stringcomboxtable.h"

#include <QXmlStreamReader>

using namespace VASK;

namespace
{
/// What only the other language may show: its texts, and the keys that stand for them.
QSet<QString> foreignTexts(const Language &language)
{
    QSet<QString> own, foreign;
    for (const Language &each : languages) {
        QFile file(QCoreApplication::applicationDirPath() + "/../translation/" +
                   QString(each.file).replace(".qm", ".ts"));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QXmlStreamReader xml(&file);
        while (!xml.atEnd()) {
            xml.readNext();
            const bool text = xml.isStartElement() && xml.name() == QLatin1String("translation");
            if (text && &each == &language)
                own << xml.readElementText();
            else if (text || (xml.isStartElement() && xml.name() == QLatin1String("source")))
                foreign << xml.readElementText();
        }
    }
    return foreign - own;
}

QStringList allTexts(const QWidget &window)
{
    QStringList texts;
    for (const QLabel *label : window.findChildren<QLabel *>())
        texts << label->text();
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
        texts << button->text();
    return texts;
}
} // namespace

class TestPageTexts : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig.reset(new LookRig);
        QVERIFY(m_rig->built);
    }

    void theHomeScreen_data() { eachLanguage(); }
    void theHomeScreen()
    {
        MainWindow &home = *m_rig->home;
        home.SetLayerName(LAYER_MAIN, "MOSAIC");
        home.SetLayerState(LAYER_MAIN, LAYER_NO_SIGNAL);
        home.SetLayerRes(LAYER_PIP1, "Off"); // what the device reports is no key
        m_rig->engine->SetParaToXml("1", MENU_Net_NetMode, SET_XML_USER);
        const Language &language = switchLanguage();
        const bool english = language.item == MENU_LanguageEn;
        const auto shown = [&](const char *label) { return home.findChild<QLabel *>(label)->text(); };
        QCOMPARE(shown("labLayerSrc1_Name"), QString(english ? "Mosaic" : "拼接源"));
        QCOMPARE(shown("labLayerSrc1_Res"), QString(english ? "No Signal" : "无信号"));
        QCOMPARE(shown("labLayerSrc2_Res"), QString("Off"));
        QCOMPARE(shown("labWindowOffDisplay_2"), QString(english ? "Inactive" : "未开启"));
        QCOMPARE(shown("labIp"), QString(english ? "Getting IP..." : "正在获取IP..."));
        home.show();
        keep(home, "home");
        for (const char *source : {"DVI1", "OPT1-1", "OPT1-2", "MOSAIC"}) {
            home.SetLayerName(LAYER_MAIN, source);
            QCOMPARE(cutTexts(home), QStringList());
        }
        home.hide();
    }

    void everyPage_data() { eachLanguage(); }
    void everyPage()
    {
        const Language &language = switchLanguage();
        const QSet<QString> foreign = foreignTexts(language);
        QVERIFY(foreign.size() > 200);
        QStringList faults;
        for (auto config = g_config.cbegin(); config != g_config.cend(); ++config) {
            MenuDirectory *page = m_rig->pageOf(config.key());
            QVERIFY(page);
            page->show();
            QCoreApplication::processEvents();
            keep(*page, QString("%1 %2").arg(int(config.key()), 2, 10, QChar('0')).arg(config->title));
            // Never shown itself: its rows follow the page that comes up in its place.
            const bool standIn = config.key() == CONFIG_AboutUs;
            for (const QString &text : allTexts(*page))
                if (foreign.contains(text) && !standIn)
                    faults << config->title + ": of the other language: " + text;
            for (const QString &text : cutTexts(*page))
                faults << config->title + ": " + text;
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
        switchLanguage();
        const QMap<ENUM_MenuIndex, QString> extras{{MSG_UpdateStart, "100 %"},
                                                   {MSG_IfCoverPreset, " 新闻直播 Evening Show?"},
                                                   {MSG_DeletePresetConfirm, " 新闻直播 Evening Show?"}};
        QStringList faults;
        for (auto message = g_dialogConfig.cbegin(); message != g_dialogConfig.cend(); ++message) {
            dialog_msgBox box(nullptr, message->text, message->buttonType, 0, extras.value(message.key()));
            box.show();
            QApplication::setActiveWindow(&box); // at once: with the next event the bench answers it
            keep(box, QString("message %1 %2").arg(int(message.key())).arg(message->text));
            faults << cutTexts(box);
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join("\n")));
    }

    void theLockWindow_data() { eachLanguage(); }
    void theLockWindow()
    {
        switchLanguage();
        Lock lock(m_rig->home);
        m_rig->home->show();
        lock.show();
        for (bool locked : {true, false}) {
            lock.SetLockState(locked);
            keep(lock, locked ? "locked" : "unlocked");
            QCOMPARE(cutTexts(lock) + overlaps(lock), QStringList());
        }
        m_rig->home->hide();
    }

    void whatIsOpen_data() { eachLanguage(); }
    void whatIsOpen()
    {
        m_rig->answering = false;
        const ST_ItemInfo list = g_MenuXmlConfig[MENU_Color_ColorTemp];
        Lock lock(m_rig->home);
        const QString lockStyle = lock.findChild<QLabel *>("labTip")->styleSheet();
        dialog_msgBox box(nullptr, "IFResetAll", MSGBOX_YES_NO, 0, " 7");
        box.show();
        stringcomboxtable options(list.index, ENUM_OBJECT_END, list);
        const Language &language = switchLanguage();
        QCoreApplication::processEvents();

        // The lock window keeps the style in which it was made.
        lock.SetLockState(true);
        QCOMPARE(lock.findChild<QLabel *>("labTip")->text(), translated("Locked"));
        QCOMPARE(lock.findChild<QLabel *>("labTip")->styleSheet(), lockStyle);
        QCOMPARE(box.findChild<QLabel *>("lab_Info")->text(),
                 translated("IFResetAll").replace("\\r\\n", "\r\n") + " 7");
        QCOMPARE(box.findChild<QPushButton *>("btnYes")->text(), translated("Yes"));
        QVERIFY(box.styleSheet().contains(language.font, Qt::CaseInsensitive));
        const auto *view = options.findChild<QTableView *>();
        QVERIFY(view->styleSheet().contains(language.font));
        for (int row = 0; row < list.params.size(); ++row)
            QCOMPARE(view->model()->index(row, 0).data().toString(),
                     translated(list.params.value(QString::number(row))));
        m_rig->answering = true;
    }

    void textsThatAreMissingChangeNothing()
    {
        m_rig->engine->SetParaToXml(QString(), MENU_LanguageZh, SET_XML_USER);
        QCOMPARE(m_rig->engine->findChildren<QTranslator *>().size(), 1);
        const QString file = board::filePath(languageFile(true));
        QVERIFY(QFile::rename(file, file + ".away"));
        m_rig->engine->SetParaToXml(QString(), MENU_LanguageEn, SET_XML_USER);
        QCOMPARE(translated("Locked"), QString("已锁定"));
        QVERIFY(QFile::rename(file + ".away", file));
        for (ENUM_MenuIndex item : {MENU_LanguageZh, MENU_LanguageEn, MENU_LanguageZh, MENU_LanguageEn})
            m_rig->engine->SetParaToXml(QString(), item, SET_XML_USER);
        QCOMPARE(translated("Locked"), QString("Locked"));
        // However often it is switched, no texts pile up.
        QCOMPARE(m_rig->engine->findChildren<QTranslator *>().size(), 1);
    }

    void theSwitchClosesItsPageOnlyIfItIsOpen()
    {
        MenuDirectory *page = m_rig->pageOf(CONFIG_Language);
        ObjectPool::getInstance()->InsertData(ENUM_PAGE_Language, page);
        QWidget above;
        page->setParentScreen(&above);
        page->hide();
        m_rig->engine->SetParaToXml(QString(), MENU_LanguageZh, SET_XML_USER);
        QVERIFY(!above.isVisible());
        page->show();
        m_rig->engine->SetParaToXml(QString(), MENU_LanguageEn, SET_XML_USER);
        QVERIFY(above.isVisible());
        QVERIFY(!page->isVisible());
        page->setParentScreen(nullptr);
    }

    void aResetSpeaksTheLanguageThatItBringsBack()
    {
        QVERIFY(englishChosen());
        QCOMPARE(translated("Locked"), QString("Locked"));
        m_rig->engine->SetParaToXml(QString(), MENU_ResetAll, SET_XML_USER);
        QVERIFY(!englishChosen());
        QCOMPARE(translated("Locked"), QString("已锁定"));
        QCOMPARE(m_rig->home->findChild<QLabel *>("labWindowOffDisplay_2")->text(), QString("未开启"));
    }

private:
    const Language &switchLanguage()
    {
        const Language &language = languageOfRow();
        m_rig->speak(language);
        return language;
    }
    void keep(QWidget &widget, const QString &name) const
    {
        m_rig->keep(widget.grab().toImage(), QCoreApplication::applicationDirPath() + "/../pictures/texts",
                    name);
    }

    std::unique_ptr<LookRig> m_rig;
};

FPD_TEST(TestPageTexts)
#include "tst_pagetexts.moc"
