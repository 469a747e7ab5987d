// The way home when no key comes: from where the panel goes home, what it ends on the way, and when it stays.

#include "framework/object/globaltimer.h"
#include "framework/productiontest/productiontest.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/pagerig.h"

#include <QDialog>

using namespace VASK;

class TestGlobalTimer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_rig.reset(new PageRig);
        m_rig->home->Init();
        // Before it is told its home, a key changes nothing.
        QVERIFY(GlobalTimer::getInstance()->ResetReturnToMain());
        QVERIFY(!GlobalTimer::getInstance()->findChild<QTimer *>());
        GlobalTimer::getInstance()->Initialize(m_rig->home);
    }
    void init() { m_rig->reset(); }

    void theItemCountsFromTheNextKeyOn()
    {
        const auto *timer = GlobalTimer::getInstance()->findChild<QTimer *>();
        QVERIFY(timer->isActive());
        QVERIFY(!timer->isSingleShot());
        QCOMPARE(timer->interval(), 60 * 1000);
        m_rig->set(MENU_ReturntoHome, "95");
        QCOMPARE(timer->interval(), 60 * 1000);
        m_rig->press(KEY_ESC);
        QCOMPARE(timer->interval(), 95 * 1000);
        PageRig::open(ENUM_PAGE_PIP1, m_rig->home);
        m_rig->set(MENU_ReturntoHome, "30");
        m_rig->turn(1);
        QCOMPARE(timer->interval(), 30 * 1000);
        // A store of nonsense must not send the panel home without end.
        m_rig->set(MENU_ReturntoHome, "x");
        m_rig->turn(1);
        QCOMPARE(timer->interval(), 60 * 1000);
    }

    void anEditEndsAndItsPageIsLeft()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_PIP2, m_rig->home);
        page->setCurrentRow(3);
        m_rig->press(KEY_OK);
        QVERIFY(page->isEditing());
        QApplication::setActiveWindow(page);
        notes().clear();
        timeIsUp();
        QCOMPARE(m_rig->shown(), m_rig->home);
        QCOMPARE(int(OpenPage::layer()), int(OpenPage::noLayer));
        QVERIFY(!page->isEditing());
        QCOMPARE(notes(), QStringList{QString("Esc %1 1").arg(MENU_PIP2_HorWidth)});
        // A page that takes the source keys to itself must not do so from behind the home screen.
        QCOMPARE(int(OpenPage::number()), int(ENUM_MAIN_MENU));
        notes().clear();
        m_rig->press(KEY_INPUT1);
        QCOMPARE(notes(), QStringList{QString("Set %1 0 1").arg(MENU_MainLayer_InputSource)});
    }

    void anOpenBrightnessEditIsSavedOnce()
    {
        MenuDirectory *menu = PageRig::open(ENUM_MAIN_MENU, m_rig->home);
        m_rig->press(KEY_OK);
        QVERIFY(BrightnessEdit::runs());
        QApplication::setActiveWindow(menu);
        timeIsUp();
        QCOMPARE(m_rig->device->sent.take(), QStringList{"SavetoRVCard="});
        QVERIFY(!BrightnessEdit::runs());

        m_rig->reset();
        BrightnessEdit::begin();
        QApplication::setActiveWindow(nullptr);
        timeIsUp();
        QCOMPARE(m_rig->device->sent.take(), QStringList{"SavetoRVCard="});
        QVERIFY(!BrightnessEdit::runs());
        QVERIFY(m_rig->home->isVisible());
    }

    void whereItStays_data() { addNames("where", {"home", "presets", "dialog", "factory test", "no menu"}); }
    void whereItStays()
    {
        QFETCH(QString, where);
        BrightnessEdit::begin(); // shows whether it got that far
        QWidget *active = m_rig->home;
        if (where != "home")
            active =
                PageRig::open(where == "presets" ? ENUM_PAGE_PresetSettings : ENUM_PAGE_PIP1, m_rig->home);
        QDialog dialog(active);
        if (where == "dialog") {
            dialog.show();
            active = &dialog;
        }
        MenuDirectory *menu = PageRig::page(ENUM_MAIN_MENU);
        if (where == "factory test")
            ProductionTest::m_cur_step = FACTORY_STEP_KEYS;
        if (where == "no menu")
            ObjectPool::getInstance()->RemoveByIndex(ENUM_MAIN_MENU);
        QApplication::setActiveWindow(active);
        const QWidget *shown = m_rig->shown();
        timeIsUp();
        ProductionTest::m_cur_step = FACTORY_STEP_NONE;
        ObjectPool::getInstance()->InsertData(ENUM_MAIN_MENU, menu);
        QCOMPARE(m_rig->shown(), shown);
        QVERIFY(active->isVisible());
        QVERIFY(BrightnessEdit::runs());
        QCOMPARE(m_rig->device->sent.take(), QStringList{});
    }

    void anotherWindowCanBeHome()
    {
        auto *other = new MainWindow(ENUM_MAIN_WINDOW);
        GlobalTimer::getInstance()->ChangeMainWindow(other);
        QApplication::setActiveWindow(PageRig::open(ENUM_PAGE_PIP1, m_rig->home));
        timeIsUp();
        QVERIFY(other->isVisible());
        GlobalTimer::getInstance()->ChangeMainWindow(m_rig->home);
        delete other;
    }

private:
    static void timeIsUp() { GlobalTimer::getInstance()->slot_ReturnToMain(); }

    std::unique_ptr<PageRig> m_rig;
};

FPD_TEST(TestGlobalTimer)
#include "tst_globaltimer.moc"
