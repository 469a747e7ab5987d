// The EDID of the four inputs: the page of the standard modes and of the custom one, and the mode that is
// applied.

#include "enginerig.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplyEdid : public QObject
{
    Q_OBJECT
private slots:
    /// On a model with a second DVI input.
    void initTestCase()
    {
        m_rig = new EngineRig;
        m_rig->addRows({CONFIG_DVI2_EDID});
    }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->reset(); }

    void modeIsApplied();
    void pagesTakeTurns_data();
    void pagesTakeTurns();

private:
    EngineRig *m_rig = nullptr;
};

namespace
{
struct Input {
    int choice; ///< resolution, rate, apply, width, height and custom rate follow
    int page;   ///< standard and custom follow
    int parent;
};
constexpr Input inputs[] = {{3018, 297, 61}, {3030, 319, 63}, {3042, 341, 65}, {3054, 363, 67}};

MenuDirectory *page(int object)
{
    return dynamic_cast<MenuDirectory *>(ObjectPool::getInstance()->GetObject(ENUM_ObjectIndex(object)));
}
} // namespace

/// The user's; one that the device tells leads to nothing.
void TestApplyEdid::modeIsApplied()
{
    for (const Input &input : inputs)
        for (const bool custom : {false, true}) {
            m_rig->reset();
            const char *const values[] = {custom ? "1" : "0", "8", "1", "", "1366", "769", "8"};
            const auto apply = ENUM_MenuIndex(input.choice + 3);
            for (int item = 0; item < int(std::size(values)); ++item)
                if (input.choice + item != apply)
                    m_rig->set(ENUM_MenuIndex(input.choice + item), values[item]);
            m_rig->fromDevice(apply, "1");
            QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take() + m_rig->messages, QStringList());
            m_rig->fromUser(apply, "");
            QCOMPARE(m_rig->device->sent.take().join(' '),
                     itemnames::line(apply, custom ? "1366x769x59.94" : "1920x1200x50"));
            QCOMPARE(m_rig->messages, QStringList{"Waiting"});
        }
}

void TestApplyEdid::pagesTakeTurns_data()
{
    addColumns<int, int>({"input", "mode"});
    for (int input = 0; input < int(std::size(inputs)); ++input)
        for (auto mode : {SET_XML_USER, SET_XML_DEVICE})
            addRow(QString("%1, %2").arg(input).arg(mode == SET_XML_USER ? "user" : "device"), input, mode);
}

void TestApplyEdid::pagesTakeTurns()
{
    QFETCH(int, input);
    QFETCH(int, mode);
    const Input &numbers = inputs[input];
    MenuDirectory *parent = page(numbers.parent);
    MenuDirectory *last = page(numbers.page);
    // The menu of this device has no page for the second DVI input.
    for (MenuDirectory *shown : {parent, last})
        if (shown)
            shown->show();
    const QVector<int> user{1, 0, 1}, device{0, 1, 0};
    for (int custom : mode == SET_XML_USER ? user : device) {
        const auto choice = ENUM_MenuIndex(numbers.choice);
        m_rig->engine->SetParaToXml(QString::number(custom), choice, ENUM_MODE_SET_XML(mode));
        m_rig->settle();
        MenuDirectory *open = page(numbers.page);
        QVERIFY(open && open == page(numbers.page + 1 + custom));
        QVERIFY(open->isVisible() && !(last && last->isVisible()) && !(parent && parent->isVisible()));
        QVERIFY(open->parentScreen() == parent);
        QCOMPARE(m_rig->value(choice), QString::number(custom));
        QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take(), QStringList());
        // The same choice again leaves its page open.
        m_rig->engine->SetParaToXml(QString::number(custom), choice, ENUM_MODE_SET_XML(mode));
        QVERIFY(page(numbers.page) == open && open->isVisible());
        last = open;
    }
    m_rig->engine->SetParaToXml("2", ENUM_MenuIndex(numbers.choice), ENUM_MODE_SET_XML(mode));
    QVERIFY(page(numbers.page) == last && last->isVisible());
    last->hide();
}

FPD_TEST(TestApplyEdid)

#include "tst_applyedid.moc"
