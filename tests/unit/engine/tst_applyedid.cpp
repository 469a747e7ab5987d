// The EDID of the four inputs: the page of the standard modes and of the custom one, and the mode that is
// applied.

#include "casetable.h"

using namespace VASK;

class TestApplyEdid : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->reset(); }

    void modeIsApplied_data();
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

const Cases &allCases()
{
    static const Cases cases = [] {
        Cases lines;
        for (const Input &input : inputs) {
            const int apply = input.choice + 3;
            const Values values{{input.choice + 1, "8"},
                                {input.choice + 2, "1"},
                                {input.choice + 4, "1366"},
                                {input.choice + 5, "769"},
                                {input.choice + 6, "8"}};
            Values custom = values;
            custom[input.choice] = "1";
            const QString sent = QString::number(apply) + '=';
            lines << Case("standard", values)
                         .byUser(ENUM_MenuIndex(apply), "")
                         .sends({sent + "1920x1200x50"})
                         .asks({"Waiting"})
                  << Case("custom", custom)
                         .byUser(ENUM_MenuIndex(apply), "")
                         .sends({sent + "1366x769x59.94"})
                         .asks({"Waiting"})
                  << Case("standard", values).byDevice(ENUM_MenuIndex(apply), "1")
                  << Case("custom", custom).byDevice(ENUM_MenuIndex(apply), "1");
        }
        return lines;
    }();
    return cases;
}

MenuDirectory *page(int object)
{
    return dynamic_cast<MenuDirectory *>(ObjectPool::getInstance()->GetObject(ENUM_ObjectIndex(object)));
}
} // namespace

void TestApplyEdid::modeIsApplied_data()
{
    addCaseRows(allCases());
}

void TestApplyEdid::modeIsApplied()
{
    QFETCH(int, row);
    runCase(*m_rig, allCases().at(row));
}

void TestApplyEdid::pagesTakeTurns_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("mode");
    for (int input = 0; input < int(std::size(inputs)); ++input)
        for (auto mode : {SET_XML_USER, SET_XML_DEVICE})
            QTest::addRow("%d, %s", input, mode == SET_XML_USER ? "user" : "device") << input << int(mode);
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
        QVERIFY(open->m_pparerentdirectory == parent);
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

QTEST_MAIN(TestApplyEdid)
#include "tst_applyedid.moc"
