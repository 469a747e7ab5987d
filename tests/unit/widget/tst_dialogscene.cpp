// The preset dialog under the keypad's keys: where the knob goes, what ends it and what it looks like.

#include "framework/keypadevent.h"
#include "tests/unit/widget/pagerig.h"
#include "widget/dialog_scene.h"

#include <QLabel>

using namespace VASK;

namespace
{
/// What stands in for a result as long as the dialog is open.
constexpr int stillOpen = -7;

std::unique_ptr<Dialog_scene> makeDialog(const QString &disabled, int first)
{
    const QString pictures = imgPath + "sceneSetting/";
    return std::make_unique<Dialog_scene>(nullptr, "Preset1", pictures + "save.png", "Save",
                                          pictures + "load.png", "Load", pictures + "delete.png", "Clear",
                                          pictures + "copy.png", "CopyTo", disabled,
                                          static_cast<unsigned char>(first));
}

void send(QWidget &dialog, KEY_TYPE type, int key, int speed = 1)
{
    KeypadEvent event(type, static_cast<unsigned char>(key), static_cast<unsigned char>(speed), false);
    QCoreApplication::sendEvent(&dialog, &event);
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
        QTest::addColumn<QString>("disabled");
        QTest::addColumn<int>("first");
        QTest::addColumn<QList<int>>("turns"); ///< speeds, to the left below 0
        QTest::addColumn<QList<int>>("focus"); ///< at first and after each turn
        using List = QList<int>;
        QTest::newRow("round to the right") << "" << 2 << List{1, 1, 1, 1} << List{2, 3, 4, 1, 2};
        QTest::newRow("round to the left") << "" << 2 << List{-1, -1, -1} << List{2, 1, 4, 3};
        QTest::newRow("fast") << "" << 1 << List{2, 3, -9, -2, 200} << List{1, 3, 1, 4, 2, 1};
        QTest::newRow("one alone") << "2.3.4" << 1 << List{1, -1, 3, -3} << List{1, 1, 1, 1, 1};
        QTest::newRow("past those that are off") << "2.3" << 1 << List{1, 1, -1, -1} << List{1, 4, 1, 4, 1};
        QTest::newRow("off at the end") << "4" << 3 << List{1, -1, -1} << List{3, 1, 3, 2};
        QTest::newRow("none at all") << "1.2.3.4" << 2 << List{1, -1} << List{2, 2, 2};
        QTest::newRow("no such action") << "" << 9 << List{} << List{1};
    }
    void knob()
    {
        QFETCH(QString, disabled);
        QFETCH(int, first);
        QFETCH(QList<int>, turns);
        const auto dialog = makeDialog(disabled, first);
        QList<int> seen{focused(*dialog)};
        for (int speed : qAsConst(turns)) {
            send(*dialog, KEY_PRESSED, speed < 0 ? KEY_KNOB_LEFT : KEY_KNOB_RIGHT, qAbs(speed));
            seen << focused(*dialog);
        }
        QTEST(seen, "focus");
    }

    void keysEndIt_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("result");
        QTest::newRow("OK") << int(KEY_RELEASED) << int(KEY_OK) << 3;
        QTest::newRow("OK held") << int(KEY_LONG_PRESS) << int(KEY_OK) << 3;
        QTest::newRow("OK pressed") << int(KEY_PRESSED) << int(KEY_OK) << stillOpen;
        QTest::newRow("ESC") << int(KEY_RELEASED) << int(KEY_ESC) << 0;
        QTest::newRow("ESC pressed") << int(KEY_PRESSED) << int(KEY_ESC) << stillOpen;
        QTest::newRow("another") << int(KEY_RELEASED) << int(KEY_FREEZE) << stillOpen;
    }
    void keysEndIt()
    {
        QFETCH(int, type);
        QFETCH(int, key);
        const auto dialog = makeDialog("", 3);
        m_rig->answering = false;
        bool ended = false;
        QTimer::singleShot(0, dialog.get(), [&] {
            send(*dialog, KEY_TYPE(type), key);
            ended = !dialog->isVisible();
            dialog->done(2); // no answer of the user's
        });
        const int result = dialog->exec();
        QTEST(ended ? result : stillOpen, "result");
        if (!ended)
            QCOMPARE(result, 0);
    }

    /// As drawn: the one in focus has a ground of its own, those that are off are dim.
    void looks_data()
    {
        QTest::addColumn<QString>("disabled");
        QTest::addColumn<int>("first");
        QTest::newRow("all on") << "" << 2;
        QTest::newRow("save only") << "2.3.4" << 1;
    }
    void looks()
    {
        QFETCH(QString, disabled);
        QFETCH(int, first);
        const auto dialog = makeDialog(disabled, first);
        m_rig->answering = false;
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
        QCOMPARE(dialog->geometry(), QRect(QPoint(17, 25), QPoint(302, 214)));
        const QImage picture = dialog->grab().toImage();
        QCOMPARE(picture.pixelColor(0, 0), QColor(3, 20, 66));
        for (int action = 1; action <= 4; ++action) {
            const auto label = [&](const char *what) {
                return dialog->findChild<QLabel *>(QString("lab%1_%2").arg(action).arg(what));
            };
            QCOMPARE(picture.pixelColor(label("bg")->pos() + QPoint(2, 2)),
                     action == first ? QColor("#332280") : QColor(3, 20, 66));
            const bool off = disabled.contains(QString::number(action));
            QCOMPARE(label("name")->palette().color(QPalette::WindowText),
                     QColor(off ? "#54535c" : "#b8b4cc"));
            QCOMPARE(label("bg")->property("useEnable").isValid(), off);
            QVERIFY(!label("img")->pixmap(Qt::ReturnByValue).isNull());
            QVERIFY(label("name")->sizeHint().width() <= label("bg")->width());
        }
    }

private:
    std::unique_ptr<PageRig> m_rig;
};

QTEST_MAIN(TestDialogScene)
#include "tst_dialogscene.moc"
