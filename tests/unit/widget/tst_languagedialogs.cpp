// The choice of the language: what its keys do, when the home screen asks for it, and what follows an answer.

#include "framework/ui/language.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/pagerig.h"
#include "widget/dialog/dialog_languageselect.h"
#include "widget/dialog/dialog_msgbox.h"
#include "widget/dialog/dialog_wait.h"

#include <QElapsedTimer>
#include <QPushButton>

using namespace VASK;

namespace
{
constexpr int stillOpen = -7;
constexpr int nobody = 2;

/// The result of the question after these keys, a negative one for its press alone; stillOpen if none closes
/// it.
int answer(const QList<int> &keys)
{
    dialog_languageSelect question;
    question.setResult(stillOpen);
    question.show();
    for (int key : keys) {
        KeypadEvent event(key < 0 ? KEY_PRESSED : KEY_RELEASED, static_cast<unsigned char>(qAbs(key)), 1,
                          false);
        QCoreApplication::sendEvent(&question, &event);
    }
    return question.isVisible() ? stillOpen : question.result();
}
} // namespace

class TestLanguageDialogs : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig.reset(new PageRig);
        QVERIFY(m_rig->engine->Initialize());
        QVERIFY(m_rig->home->Init());
    }
    void init()
    {
        m_rig->home->SetLockState(PANEL_UNLOCK, false);
        m_rig->home->slot_cancelLockDialog();
        m_rig->reset();
    }
    void cleanup()
    {
        m_rig->answering = true;
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    void keysOfTheQuestion_data()
    {
        addColumns<QList<int>, int, int>({"keys", "result", "unknown"});
        const int left = KEY_KNOB_LEFT, right = KEY_KNOB_RIGHT, ok = KEY_OK, pressed = -KEY_OK;
        const auto row = [](const char *name, const QList<int> &keys, int result, int unknown = 0) {
            QTest::newRow(name) << keys << result << unknown;
        };
        row("English has the focus", {ok}, dialog_languageSelect::ENGLISH);
        row("left", {left, ok}, dialog_languageSelect::CHINESE);
        row("right", {right, ok}, dialog_languageSelect::CHINESE);
        row("there and back", {left, right, ok}, dialog_languageSelect::ENGLISH);
        row("once around", {right, right, ok}, dialog_languageSelect::ENGLISH);
        row("OK waits for its release", {pressed}, stillOpen);
        row("a language must be chosen", {KEY_ESC, -KEY_ESC}, stillOpen, 2);
        row("other keys", {KEY_MAIN, KEY_LOCK, left, ok}, dialog_languageSelect::CHINESE, 2);
    }
    void keysOfTheQuestion()
    {
        const auto [keys, unknown] = fetched<QList<int>, int>({"keys", "unknown"});
        for (int key = 0; key < unknown; ++key)
            QTest::ignoreMessage(QtDebugMsg, "dialog no this handle!");
        QTEST(answer(keys), "result");
    }

    void chineseStandsLeftOfEnglish()
    {
        const dialog_languageSelect question;
        QVERIFY(question.findChild<QPushButton *>("btn_CH")->geometry().right() <
                question.findChild<QPushButton *>("btn_EN")->geometry().left());
    }

    void theRequestToWaitLastsASecond()
    {
        m_rig->answering = false;
        Dialog_Wait_English wait;
        for (unsigned char key : {KEY_OK, KEY_ESC})
            QCoreApplication::postEvent(&wait, new KeypadEvent(KEY_RELEASED, key, 1, false));
        QElapsedTimer time;
        time.start();
        QCOMPARE(wait.exec(), nobody);
        QVERIFY(time.elapsed() >= 950); // timers of this length may come a twentieth early
    }

    void itDoesNotAskWhen_data()
    {
        addNames("situation", {"locked", "taken over", "behind a message", "behind a page"});
    }
    void itDoesNotAskWhen()
    {
        QFETCH(QString, situation);
        dialog_msgBox message(nullptr, "Waiting", MSGBOX_NONE, 0, QString());
        m_rig->answering = false;
        if (situation == "locked")
            m_rig->home->SetLockState(PANEL_LOCK, false);
        else if (situation == "taken over")
            m_rig->home->slot_ReturnToMainSoft(false);
        else if (situation == "behind a message")
            message.show();
        else
            PageRig::open(ENUM_MAIN_MENU, m_rig->home);
        bool asked = false;
        QTimer::singleShot(0, this, [this, &asked] {
            auto *question = m_rig->home->findChild<dialog_languageSelect *>();
            asked = question;
            if (question)
                question->done(nobody);
        });
        KeypadEvent held(KEY_LONG_PRESS, KEY_OK, 1, true);
        QCoreApplication::sendEvent(m_rig->home, &held);
        QCoreApplication::processEvents();
        QVERIFY(!asked);
    }

private:
    std::unique_ptr<PageRig> m_rig;
};

FPD_TEST(TestLanguageDialogs)
#include "tst_languagedialogs.moc"
