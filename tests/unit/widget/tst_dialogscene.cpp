// The preset dialog under the keypad's keys: where the knob goes, and what can be chosen.

#include "tests/testprogram.h"
#include "tests/unit/rig/pagerig.h"
#include "widget/dialog/dialog_scene.h"

using namespace VASK;

namespace
{
std::unique_ptr<Dialog_scene> makeDialog(const QString &disabled, int first)
{
    const QString pictures = imgPath + "sceneSetting/";
    return std::make_unique<Dialog_scene>(nullptr, "Preset1", pictures + "save.png", "Save",
                                          pictures + "load.png", "Load", pictures + "delete.png", "Clear",
                                          pictures + "copy.png", "CopyTo", disabled,
                                          static_cast<unsigned char>(first));
}

int focused(const QDialog &dialog)
{
    const QWidget *widget = dialog.focusWidget();
    return widget ? widget->objectName().mid(3, 1).toInt() : 0;
}
} // namespace

class TestDialogScene : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig.reset(new PageRig); }

    void knob_data()
    {
        // turns: speeds, to the left below 0
        // focus: at first and after each turn
        const DataRows<QString, int, QList<int>, QList<int>> row{"disabled", "first", "turns", "focus"};
        row("round to the right", "", 2, {1, 1, 1, 1}, {2, 3, 4, 1, 2});
        row("round to the left", "", 2, {-1, -1, -1}, {2, 1, 4, 3});
        row("fast", "", 1, {2, 3, -9, -2, 200}, {1, 3, 1, 4, 2, 1});
        row("one alone", "2.3.4", 1, {1, -1, 3, -3}, {1, 1, 1, 1, 1});
        row("past those that are off", "2.3", 1, {1, 1, -1, -1}, {1, 4, 1, 4, 1});
        row("off at the end", "4", 3, {1, -1, -1}, {3, 1, 3, 2});
        row("none at all", "1.2.3.4", 2, {1, -1}, {2, 2, 2});
        row("no such action", "", 9, {}, {1});
    }
    void knob()
    {
        const auto [disabled, first, turns] =
            fetched<QString, int, QList<int>>({"disabled", "first", "turns"});
        const auto dialog = makeDialog(disabled, first);
        QList<int> seen{focused(*dialog)};
        for (int speed : qAsConst(turns)) {
            KeypadEvent event(KEY_PRESSED, speed < 0 ? KEY_KNOB_LEFT : KEY_KNOB_RIGHT,
                              static_cast<unsigned char>(qAbs(speed)), false);
            QCoreApplication::sendEvent(dialog.get(), &event);
            seen << focused(*dialog);
        }
        QTEST(seen, "focus");
    }

    void whatIsOffIsDim()
    {
        const auto dialog = makeDialog("2.3.4", 1);
        dialog->ensurePolished();
        for (int action = 1; action <= 4; ++action) {
            auto *name = dialog->findChild<QLabel *>(QString("lab%1_name").arg(action));
            name->ensurePolished();
            QCOMPARE(name->palette().color(QPalette::WindowText),
                     QColor(action == 1 ? "#b8b4cc" : "#54535c"));
            QVERIFY(name->sizeHint().width() <=
                    dialog->findChild<QLabel *>(QString("lab%1_bg").arg(action))->width());
        }
    }

private:
    std::unique_ptr<PageRig> m_rig;
};

FPD_TEST(TestDialogScene)
#include "tst_dialogscene.moc"
