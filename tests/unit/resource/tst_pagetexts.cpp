// The pages and messages as they come up in both languages: after a switch of the language nothing is left of
// the other one, and no text is cut off. Each is kept as a picture under the build folder to look at.

#include "tests/unit/widget/looks.h"
#include "widget/dialog_msgbox.h"
#include "widget/lock.h"

using namespace VASK;

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
        const Language &language = switchLanguage();
        const bool english = language.item == MENU_LanguageEn;
        const auto shown = [&](const char *label) { return home.findChild<QLabel *>(label)->text(); };
        QCOMPARE(shown("labLayerSrc1_Name"), QString(english ? "Mosaic" : "拼接源"));
        QCOMPARE(shown("labLayerSrc1_Res"), QString(english ? "No Signal" : "无信号"));
        QCOMPARE(shown("labLayerSrc2_Res"), QString("Off"));
        QCOMPARE(shown("labWindowOffDisplay_2"), QString(english ? "Inactive" : "未开启"));
        home.show();
        keep(home, "home");
        home.hide();
    }

    void everyPage_data() { eachLanguage(); }
    void everyPage()
    {
        const Language &language = switchLanguage();
        QStringList faults;
        for (auto config = g_config.cbegin(); config != g_config.cend(); ++config) {
            MenuDirectory *page = m_rig->pageOf(config.key());
            QVERIFY(page);
            page->show();
            QCoreApplication::processEvents();
            keep(*page, QString("%1 %2").arg(int(config.key()), 2, 10, QChar('0')).arg(config->title));
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

QTEST_MAIN(TestPageTexts)
#include "tst_pagetexts.moc"
