#include "tools/monkey/monkey.h"

#include "client/agreement.h"
#include "client/loglines.h"
#include "client/names/itemnames.h"
#include "client/storerules.h"
#include "menu/menutypes.h"

#include <QRegularExpression>
#include <QThread>

using namespace VASK;

namespace
{
/// What the device does on its own, and the PC: words of the console, in which %N stands for a number below
/// N.
constexpr const char *outside[] = {
    "signal hdmi1 on 1920x1080@60",
    "signal dvi on 1280x720@50 ycc422",
    "signal sdi on 3840x2160@30",
    "signal hdmi2 off",
    "signal dvi off",
    "signal hdmi1 off",
    "port %10 link on",
    "port %10 link off",
    "port %10 backup on",
    "port %10 engaged off",
    "link eth %2",
    "link usb %2",
    "link loop %2",
    "push 02000001 %x --device 1",
    "push 1300009e 0%4%x",
    "push 13000004 03",
    "push 13000004 04",
    "push 13000004 05",
    "push 1300002a 0%2%x",
    "push 02000042 28",
    "push 02000089 %x04",
    "push 13050000 00%x%x00%x%x00",
    "push 13050030 00%x%x00%x%x00",
    "push 13060000 00000102000000000000000000000000610000000000%x07%x0400000000000062",
    "push 02000074 78",
    "push 1301900%2 %x",
    "reports now",
    "rename Wall%9",
    "preset list",
    "fault bus-send %6",
    "fault keypad down;fault keypad up",
    "fault flash %4",
};
constexpr const char *keyNames[] = {"main", "pip1", "pip2",   "scale", "hdmi1",  "hdmi2", "dvi",
                                    "sdi",  "fn",   "freeze", "test",  "preset", "ok",    "esc"};
constexpr const char *heldKeys[] = {"ok", "freeze", "test", "esc+ok"};
constexpr int patienceMs = 8000; ///< longer than the longest message
constexpr int lookMs = 4;
} // namespace

Monkey::Monkey(Panel &panel, unsigned int seed)
    : m_panel(panel), m_model(std::make_unique<MenuModel>(panel.file("/usr/vask/etc/fpd/config"))),
      m_random(seed)
{
    m_clock.start();
    m_sight = lookAt(panel);
    m_model->take(m_sight);
}

Monkey::~Monkey() = default;

QString Monkey::play(int steps, int stepsToRest)
{
    for (int end = m_steps + steps; m_steps < end; ++m_steps) {
        QString fault = step();
        if (fault.isEmpty() && m_steps % stepsToRest == stepsToRest - 1)
            fault = rest();
        if (fault.isEmpty() && m_steps % 50 == 0)
            fault = m_panel.damage();
        if (!fault.isEmpty())
            return fault;
    }
    return rest();
}

QString Monkey::step()
{
    if (m_sight.kind == Sight::Message)
        return messageStep();
    if (m_model->pictures() == MenuModel::PicturesMaybeOpen)
        return key(MenuModel::Esc);
    if (m_sight.kind == Sight::List || m_sight.isEdited || m_model->pictures() == MenuModel::PicturesOpen)
        return editStep();
    if (chance(4))
        return outsideStep();
    return menuStep();
}

QString Monkey::menuStep()
{
    if (chance(2))
        return say({"key", keyNames[below(int(std::size(keyNames)))]});
    if (below(2000) == 0)
        return say({"key", heldKeys[below(int(std::size(heldKeys)))], "hold"});
    if (m_sight.kind == Sight::Home || m_model->here().page == CONFIG_END)
        return key(m_sight.kind == Sight::Home || chance(30) ? MenuModel::Ok : MenuModel::Esc);
    const RowVisit here = m_model->here();
    const bool isNew = m_visits[here]++ == 0;
    m_deeds[here] |= RowVisit::Met;
    const bool isDone = !MenuModel::isEditable(m_model->row()) || deeds(here) == RowVisit::All;
    if (isNew || !isDone || chance(25))
        return m_sight.isDisabled ? toLeastMetRow() : key(MenuModel::Ok);
    return chance(15) ? key(MenuModel::Esc) : toLeastMetRow();
}

/// One step of the knob in its direction.
QString Monkey::toLeastMetRow()
{
    const RowVisit here = m_model->here();
    QList<int> stops = m_model->stops();
    if (stops.isEmpty())
        return key(MenuModel::Esc);
    std::shuffle(stops.begin(), stops.end(), m_random);
    const int least = *std::min_element(stops.begin(), stops.end(), [&](int one, int other) {
        return m_visits.value({here.page, one}) < m_visits.value({here.page, other});
    });
    return least == here.position ? key(MenuModel::Ok)
                                  : key(least < here.position ? MenuModel::Left : MenuModel::Right);
}

QString Monkey::editStep()
{
    const RowVisit here = m_model->here();
    for (const auto &end : {std::pair{RowVisit::LeftEnd, true}, {RowVisit::RightEnd, false}})
        if (!(deeds(here) & end.first)) {
            m_deeds[here] |= end.first;
            return turnToEnd(end.second);
        }
    return chance(40) ? key(chance(50) ? MenuModel::Left : MenuModel::Right) : leave();
}

QString Monkey::leave()
{
    const RowVisit here = m_model->here();
    const bool byOk =
        deeds(here) & RowVisit::LeftByEsc ? chance(50) || !(deeds(here) & RowVisit::LeftByOk) : false;
    m_deeds[here] |= byOk ? RowVisit::LeftByOk : RowVisit::LeftByEsc;
    return key(byOk ? MenuModel::Ok : MenuModel::Esc);
}

/// Beyond the end one more step changes nothing.
QString Monkey::turnToEnd(bool left)
{
    const bool isList = !m_sight.isEdited;
    const QStringList far{"knob", left ? "left" : "right", isList ? "20" : "300", isList ? "1" : "255"};
    m_panel.mark();
    if (!m_panel.ask(far).ok) // there is no keypad
        return leave();
    m_panel.waitUntil([&] { return m_panel.logLines(loglines::pageKey).size() >= far[2].toInt(); });
    const QString fault = say({"sent"});
    if (!fault.isEmpty() || !m_sight.isEdited)
        return fault;
    const Sight end = m_sight;
    const QString next = key(left ? MenuModel::Left : MenuModel::Right);
    if (!next.isEmpty() || m_sight.kind != Sight::Page || !m_sight.isEdited || m_sight.value == end.value)
        return next;
    return "beyond its end the value goes on, from " + end.describe() + " to " + m_sight.describe();
}

/// A question is answered; what stays for a while is waited for.
QString Monkey::messageStep()
{
    if (!m_sight.buttons.isEmpty()) {
        if (chance(40))
            return key(chance(50) ? MenuModel::Left : MenuModel::Right);
        return key(chance(50) ? MenuModel::Ok : MenuModel::Esc);
    }
    const Sight message = m_sight;
    const QString fault = look([message](const Sight &now) { return !(now == message); });
    // What a PC does keeps its message as long as it lasts; a locked panel stays locked.
    return fault.isEmpty() ? fault : say({"key", "esc+ok", "hold"});
}

QString Monkey::outsideStep()
{
    if (below(120) == 0)
        return chance(50) ? restartStep() : hostStep();
    QString words = outside[below(int(std::size(outside)))];
    while (words.contains('%')) {
        const int at = words.indexOf('%');
        const QChar kind = words[at + 1];
        const QString number =
            kind == 'x' ? QString("%1").arg(below(256), 2, 16, QChar('0'))
                        : QString::number(below(kind.digitValue()) + (words.startsWith("port") ? 1 : 0));
        words.replace(at, 2, number);
    }
    QStringList requests = words.split(';');
    while (requests.size() > 1) {
        m_panel.ask(requests.takeFirst().split(' '));
        m_panel.settle();
    }
    return say(requests.first().split(' '));
}

QString Monkey::restartStep()
{
    m_lastStep = QStringList{"panel", chance(50) ? "kill" : "stop"};
    if (!m_panel.ask(m_lastStep).ok || !m_panel.start() || !m_panel.ask({"wait", "ready"}).ok)
        return "the panel does not come up again";
    return look(nullptr);
}

/// A PC takes over, and goes again: the panel is at home meanwhile, and its keys are locked.
QString Monkey::hostStep()
{
    m_panel.ask({"heartbeat", "on"});
    const QString fault = say({"sent"}, [](const Sight &now) { return now.kind == Sight::Home; });
    m_panel.ask({"heartbeat", "off"});
    m_panel.mark();
    m_panel.waitUntil([this] {
        m_panel.press(keys::Esc);
        m_panel.settle();
        return !m_panel.logLines(loglines::homeKey).isEmpty();
    });
    return fault.isEmpty() ? look(nullptr) : fault;
}

QString Monkey::key(MenuModel::Key key)
{
    static const QMap<MenuModel::Key, QStringList> words{{MenuModel::Left, {"knob", "left"}},
                                                         {MenuModel::Right, {"knob", "right"}},
                                                         {MenuModel::Ok, {"key", "ok"}},
                                                         {MenuModel::Esc, {"key", "esc"}}};
    const MenuModel::Sequel sequel = m_model->after(key);
    m_model->press(key);
    return say(words.value(key), sequel);
}

QString Monkey::say(const QStringList &words, const MenuModel::Sequel &sequel)
{
    m_lastStep = words;
    m_trail = m_trail.mid(m_trail.size() > 7 ? 1 : 0) << m_sight.describe() + " -> " + words.join(' ');
    m_lastStepMs = int(m_clock.elapsed());
    m_panel.mark();                           // what is in the log so far has been read
    const bool taken = m_panel.ask(words).ok; // not while the keypad only comes back
    return look(taken ? sequel : nullptr);
}

/// Waits for what must be seen; without that, until nothing changes any more.
QString Monkey::look(const MenuModel::Sequel &sequel)
{
    if (!sequel)
        m_panel.settle();
    QElapsedTimer passed;
    passed.start();
    do {
        m_sight = lookAt(m_panel);
        if (m_sight.kind != Sight::Nothing && (!sequel || sequel(m_sight)))
            return m_model->take(m_sight);
        QThread::msleep(lookMs);
    } while (!passed.hasExpired(patienceMs));
    return "there is " + m_sight.describe() + " after\n" + m_trail.join('\n');
}

QString Monkey::repeat(const QStringList &lastStep)
{
    m_sight = lookAt(m_panel);
    QString fault = m_model->take(m_sight);
    if (!fault.isEmpty())
        return fault;
    const QMap<QString, MenuModel::Key> keys{{"knob left", MenuModel::Left},
                                             {"knob right", MenuModel::Right},
                                             {"key ok", MenuModel::Ok},
                                             {"key esc", MenuModel::Esc}};
    const QString words = lastStep.join(' ');
    fault = keys.contains(words) ? key(keys.value(words)) : say(lastStep);
    if (fault.isEmpty())
        fault = m_panel.damage();
    return fault.isEmpty() ? atRest() : fault;
}

/// All cables in, nobody else at work, and the home screen.
QString Monkey::rest()
{
    for (const char *words :
         {"fault bus up", "fault keypad up", "fault bus-send 0", "fault flash 0", "heartbeat off"})
        m_panel.ask(QString(words).split(' '));
    m_panel.waitUntil([this] {
        m_panel.press(keys::Esc);
        m_panel.settle();
        return lookAt(m_panel).kind == Sight::Home;
    });
    QString fault = look([](const Sight &now) { return now.kind == Sight::Home; });
    if (fault.isEmpty())
        fault = atRest();
    return fault.isEmpty() && chance(30) ? changedByRestart() : fault;
}

/// What a start finds is what stood there, but for what shows the running device.
QString Monkey::changedByRestart()
{
    static const QRegularExpression shown("/|^Test_|^Net_|^Output_|EDIDChoice|ColorSample");
    const QMap<QString, QString> before = m_panel.storedFields();
    QString fault = restartStep();
    if (fault.isEmpty())
        fault = atRest();
    const QMap<QString, QString> now = m_panel.storedFields();
    for (auto field = before.cbegin(); fault.isEmpty() && field != before.cend(); ++field)
        if (now.value(field.key()) != *field && !shown.match(field.key()).hasMatch())
            fault = QString("a restart changes %1 from %2 to %3")
                        .arg(field.key(), *field, now.value(field.key()));
    return fault;
}

QString Monkey::storeFaults(const QMap<QString, QString> &fields) const
{
    for (auto item = g_MenuXmlConfig.cbegin(); item != g_MenuXmlConfig.cend(); ++item) {
        const QString name = itemnames::name(item.key());
        ST_ItemInfo stored = *item;
        stored.value = fields.value(name);
        stored.choice = fields.value(name + "/Choice");
        stored.min = fields.value(name + "/Min");
        stored.max = fields.value(name + "/Max");
        stored.params.clear();
        for (auto field = fields.lowerBound(name + "/Params/");
             field != fields.end() && field.key().startsWith(name + "/Params/"); ++field)
            stored.params.insert(field.key().section('/', 2), *field);
        const QString fault = storerules::isRuled(item.key()) ? storerules::fault(stored) : QString();
        if (!fault.isEmpty())
            return fault;
    }
    return QString();
}

QString Monkey::atRest()
{
    constexpr int stillMs = 1500; // the store is written a second after the last key
    // Chosen values that go out with their apply row only.
    QString fault = agreement::disagreement(m_panel, stillMs, "^(Output_|Net_|Advanced_)");
    if (!fault.isEmpty())
        return fault;
    return storeFaults(m_panel.storedFields());
}

QString Monkey::coverage() const
{
    int met = 0, editable = 0, done = 0;
    const QList<RowVisit> rows = MenuModel::rows();
    for (const RowVisit &row : rows) {
        const bool isEditable = MenuModel::isEditable(g_config[row.page].rowsMap[row.position]);
        met += deeds(row) & RowVisit::Met;
        editable += isEditable;
        done += isEditable && deeds(row) == RowVisit::All;
    }
    return QString("%1 of %2 rows met, %3 of %4 turned to both ends and left by OK and by ESC")
        .arg(met)
        .arg(rows.size())
        .arg(done)
        .arg(editable);
}
