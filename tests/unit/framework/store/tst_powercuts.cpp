// The power goes: at every moment of a start and of a save, in whatever state that leaves the disk, and again
// in the start after it; or the panel alone dies, and the power goes in its next start. 300 states are tried;
// FPD_POWERCUTS=10000 tries so many, and FPD_POWERCUT=NAME the one of that name.
#include "tests/testprogram.h"
#include "tests/unit/framework/store/diskmodel.h"
#include "tests/unit/rig/storerig.h"

#include <QRandomGenerator>
#include <functional>

using namespace VASK;
using namespace storerig;
using host::DiskStep;

namespace
{
using Steps = QList<DiskStep>;
using Files = DiskModel::Files;

void putFiles(const Files &files)
{
    QDir dir(path(""));
    for (const QString &name : dir.entryList(QDir::Files))
        dir.remove(name);
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        write(file.key(), file.value());
}

Files filesNow()
{
    Files files;
    for (const QString &name : QDir(path("")).entryList(QDir::Files))
        files.insert(name, contents(name));
    return files;
}

Steps record(const std::function<void()> &work)
{
    Steps steps;
    host::watchDisk([&steps](const DiskStep &step) { steps << DiskModel::split(step); });
    work();
    host::watchDisk({});
    return steps;
}

void startOnly()
{
    Store().endSync();
}

/// What is done to the disk in one course of events, and the states that the store passes through.
struct Course {
    Files begin;
    Steps steps;
    QList<QByteArray> states; ///< config.xml as it was after the start and after each save
    int startSteps = 0;

    /// How many of the saves are promised after so many steps: the folder knows their file by then. A start
    /// promises nothing new.
    int promised(int step) const
    {
        int count = 0;
        bool isRenamed = false;
        for (int i = startSteps; i < step; ++i) {
            if (steps[i].kind == DiskStep::Rename && steps[i].target.endsWith("/config.xml"))
                isRenamed = true;
            const bool isSynced = steps[i].kind == DiskStep::SyncFolder || steps[i].kind == DiskStep::SyncAll;
            count += isRenamed && isSynced;
            isRenamed &= !isSynced;
        }
        return qMin(count, states.size() - 1);
    }
};

/// One power cut: after so many steps, in the state of that number. With no number the program dies alone,
/// and what it wrote is still in the cache.
struct Cut {
    int step = 0;
    qint64 number = -1;
    bool isDeath() const { return number < 0; }
};

struct Trial {
    QString course;
    QList<Cut> cuts; ///< the second in the start after the first

    QString name() const
    {
        QString text = course;
        for (const Cut &cut : cuts)
            text +=
                ':' + QString::number(cut.step) + (cut.isDeath() ? "" : '.' + QString::number(cut.number));
        return text;
    }

    static Trial fromName(const QString &name)
    {
        QStringList words = name.split(':');
        Trial trial{words.takeFirst(), {}};
        for (const QString &word : qAsConst(words))
            trial.cuts << Cut{word.section('.', 0, 0).toInt(),
                              word.contains('.') ? word.section('.', 1).toLongLong() : -1};
        return trial;
    }
};
} // namespace

class TestPowerCuts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void nothingIsLost();

private:
    void addCourses();
    void addCourse(const QString &name, const Files &begin, int saves, bool isSynced = true);
    static DiskModel diskAfter(DiskModel disk, const Steps &steps, int count);
    static DiskModel diskAfter(const DiskModel &disk, const Steps &steps, const Cut &cut);
    QString run(const Trial &trial);
    QString check(const Course &course, int promised);
    qint64 below(qint64 count);
    int anyStep(const Steps &steps);
    void tryState(const Trial &trial, const DiskModel &disk);
    void tryCourses(int wanted);

    std::unique_ptr<QTemporaryDir> m_state;
    QMap<QString, Course> m_courses;
    QByteArray m_factory;
    int m_value = 100; ///< saved last
    QRandomGenerator m_random{20240229};
    int m_tried = 0;
    QStringList m_lost;
};

void TestPowerCuts::initTestCase()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    m_state = freshState();
    addCourses();
}

/// Begins with these files and a start, and saves one value after the other.
void TestPowerCuts::addCourse(const QString &name, const Files &begin, int saves, bool isSynced)
{
    putFiles(begin);
    std::unique_ptr<Store> store;
    Course course;
    course.begin = begin;
    course.steps = record([&store] {
        store = std::make_unique<Store>();
        store->endSync();
    });
    course.states << contents("config.xml");
    course.startSteps = course.steps.size();
    course.steps += record([&] {
        for (int save = 1; save <= saves; ++save) {
            store->write(MENU_ScreenBrightness, QString::number(++m_value));
            store->endSync();
            course.states << contents("config.xml");
        }
    });
    // What was recorded is all that was done.
    QCOMPARE(diskAfter(DiskModel(begin), course.steps, course.steps.size()).cached(), filesNow());
    if (!isSynced)
        course.steps.erase(
            std::remove_if(course.steps.begin(), course.steps.end(),
                           [](const DiskStep &step) { return step.kind == DiskStep::SyncAll; }),
            course.steps.end());
    m_courses.insert(name, course);
}

void TestPowerCuts::addCourses()
{
    addCourse("first", {}, 2);
    m_factory = contents("config_factory.xml");
    const QByteArray last = contents("config.xml");
    const QByteArray before = m_courses["first"].states[1]; // none of these is the factory's
    const QByteArray broken = last.left(5000);
    const auto files = [this](const QByteArray &config, const QByteArray &backup) {
        return Files{{names[0], config}, {names[1], backup}, {names[2], m_factory}};
    };
    addCourse("save", files(last, last), 1);
    addCourse("saves", files(last, last), 3, false); // the disk is too slow for any sync to end
    addCourse("brokenFile", files(broken, last), 1);
    addCourse("brokenBackup", files(last, broken), 1);
    addCourse("backupBehind", files(last, before), 1);
    addCourse("brokenBoth", files(broken, broken), 1);
    addCourse("brokenFactory", {{names[0], last}, {names[1], last}, {names[2], broken}}, 1);
    // Somebody else has put another file in its place, and no sync behind it.
    const DiskStep copy{DiskStep::Copy, {}, path(names[0]), last};
    m_courses.insert("notSynced", {files(before, before), DiskModel::split(copy), {before, last}, 0});
}

DiskModel TestPowerCuts::diskAfter(DiskModel disk, const Steps &steps, int count)
{
    for (int i = 0; i < count; ++i)
        disk.apply(steps[i]);
    return disk;
}

DiskModel TestPowerCuts::diskAfter(const DiskModel &disk, const Steps &steps, const Cut &cut)
{
    const DiskModel then = diskAfter(disk, steps, cut.step);
    return cut.isDeath() ? then : DiskModel(then.state(cut.number));
}

/// What is wrong with the start on the files that are there now.
QString TestPowerCuts::check(const Course &course, int promised)
{
    ++m_tried;
    QByteArray value;
    {
        Store store;
        store.slot_updateXml(); // a second later it has looked at the factory copy, too
        value = "<Value>" + store.value().toUtf8() + "</Value>";
    }
    const QByteArray config = contents("config.xml");
    const int found = course.states.indexOf(config);
    if (found < promised || found > promised + 1)
        return QString("state %1, promised was %2").arg(found).arg(promised);
    if (!config.contains(value))
        return "the memory has not what the file has";
    if (filesNow() != Files{{names[0], config}, {names[1], config}, {names[2], m_factory}})
        return "the files are not whole";
    return {};
}

QString TestPowerCuts::run(const Trial &trial)
{
    const Course &course = m_courses[trial.course];
    DiskModel disk = diskAfter(DiskModel(course.begin), course.steps, trial.cuts.first());
    for (int i = 1; i < trial.cuts.size(); ++i) {
        putFiles(disk.cached());
        disk = diskAfter(disk, record(startOnly), trial.cuts[i]);
    }
    putFiles(disk.cached());
    return check(course, course.promised(trial.cuts.first().step));
}

qint64 TestPowerCuts::below(qint64 count)
{
    return qint64(m_random.generate64() % quint64(count));
}

/// Any moment, and as often one at which a write has come to its end: these are few.
int TestPowerCuts::anyStep(const Steps &steps)
{
    int step = int(below(steps.size() + 1));
    if (below(2) == 0)
        while (step > 0 && step < steps.size() && steps[step].kind == DiskStep::Write)
            ++step;
    return step;
}

void TestPowerCuts::tryState(const Trial &trial, const DiskModel &disk)
{
    const qint64 number = trial.cuts.last().number;
    const Course &course = m_courses[trial.course];
    putFiles(disk.state(number));
    const QString fault = check(course, course.promised(trial.cuts.first().step));
    if (!fault.isEmpty())
        m_lost << trial.name() + ' ' + fault + ": " + disk.describe(number);
}

/// As many states in all: of each course some, at a step of it, and in two of three in the start after that.
void TestPowerCuts::tryCourses(int wanted)
{
    constexpr int cutsOfOneStart = 4;
    const QStringList names = m_courses.keys();
    for (int round = 0; m_tried < wanted; ++round) {
        const Course &course = m_courses[names[round % names.size()]];
        const DiskModel begin(course.begin);
        const int way = round / names.size() % 3;
        Trial trial{names[round % names.size()], {Cut{anyStep(course.steps)}}};
        const DiskModel disk = diskAfter(begin, course.steps, trial.cuts.first().step);
        if (way != 0) // in the third way the program dies alone
            trial.cuts.first().number = below(disk.states());
        if (way == 1) {
            tryState(trial, disk);
            continue;
        }
        const DiskModel next = diskAfter(begin, course.steps, trial.cuts.first());
        putFiles(next.cached());
        const Steps start = record(startOnly);
        for (int i = 0; i <= start.size() && i < cutsOfOneStart; ++i) {
            Cut second{anyStep(start)};
            const DiskModel then = diskAfter(next, start, second.step);
            second.number = below(then.states());
            tryState({trial.course, {trial.cuts.first(), second}}, then);
        }
    }
}

void TestPowerCuts::nothingIsLost()
{
    const QString one = qEnvironmentVariable("FPD_POWERCUT");
    if (!one.isEmpty()) {
        const Trial trial = Trial::fromName(one);
        QVERIFY2(m_courses.contains(trial.course), "no such course");
        QCOMPARE(run(trial), QString());
        return;
    }
    const int wanted = qEnvironmentVariableIntValue("FPD_POWERCUTS");
    tryCourses(wanted > 0 ? wanted : 300);
    qint64 all = 0;
    for (const Course &course : qAsConst(m_courses))
        for (int step = 0; step <= course.steps.size(); ++step)
            all += diskAfter(DiskModel(course.begin), course.steps, step).states();
    printf("%d states tried, of %lld after one cut; %d lost something\n", m_tried, (long long)all,
           m_lost.size());
    QVERIFY2(m_lost.isEmpty(), qPrintable(m_lost.mid(0, 10).join('\n')));
}

/// The test library's own patience of five minutes would end a long run.
static void beInNoHurry()
{
    qputenv("QTEST_FUNCTION_TIMEOUT", "7200000");
}

FPD_TEST_IN(TestPowerCuts, Gui, beInNoHurry)
#include "tst_powercuts.moc"
