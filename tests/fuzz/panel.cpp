// The whole panel without its threads: reports, keys and flash images go in, and every item of the store must
// be inside its own limits behind each. An input is a row of steps, each a kind, a length and so many bytes.

#include "boardio.h"
#include "client/storerules.h"
#include "flashx.h"
#include "fpd_hostlink.h"
#include "framework/engine/paraprocess.h"
#include "framework/input/keypadevent.h"
#include "framework/object/transport.h"
#include "framework/productiontest/productiontest.h"
#include "framework/protocol/link/communicationclientinterface.h"
#include "framework/protocol/link/proto3rd.h"
#include "framework/protocol/packet/packagerequestproto3rd.h"
#include "framework/protocol/receive/report.h"
#include "framework/protocol/receive/reportdispatch.h"
#include "framework/protocol/snapshot/snapshotmap.h"
#include "framework/store/menuanalysis.h"
#include "tests/fuzz/fuzztarget.h"
#include "tests/unit/rig/frames.h"
#include "widget/home/mainwindow_k2860.h"
#include "widget/page/directoryengineer.h"
#include "widget/page/menudirectoty.h"
#include "widget/page/openpage.h"
#include "widget/plaintext.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTimer>

using namespace VASK;

namespace
{
enum Kind { REPORT, RAW_REPORT, KEYS, TURNS, ANSWER, FLASH, RESTART, KIND_COUNT };

struct Step {
    Kind kind;
    QByteArray bytes;
    int at(int place) const { return place < bytes.size() ? quint8(bytes[place]) : 0; }
};
using Steps = QVector<Step>;

constexpr int longestStep = 255;

Steps stepsOf(const QByteArray &input)
{
    Steps steps;
    for (int i = 0; i + 1 < input.size();) {
        const int length = quint8(input[i + 1]);
        steps << Step{Kind(quint8(input[i]) % KIND_COUNT), input.mid(i + 2, length)};
        i += 2 + length;
    }
    return steps;
}

QByteArray inputOf(const Steps &steps)
{
    QByteArray input;
    for (const Step &step : steps)
        input += char(step.kind) + QByteArray(1, char(step.bytes.size())) + step.bytes;
    return input;
}

struct Register {
    quint32 address;
    int bytesNeeded;
};

const QVector<Register> &registers()
{
    static const QVector<Register> all = [] {
        QVector<Register> list;
        const auto add = [&list](const Table<ReportRow> &table) {
            for (const ReportRow &row : table)
                row.span.forEach([&](RegisterAddress address, int, int) {
                    list << Register{quint32(address), row.bytesNeeded};
                });
        };
#define FPD_FAMILY(name) add(name##Reports());
#include "framework/protocol/receive/families.def"
#undef FPD_FAMILY
        return list;
    }();
    return all;
}

struct Block {
    quint32 address;
    int length;
};
constexpr Block blocks[] = {
    {SNAPSHOT_Device, LENGTH_Device},
    {SNAPSHOT_Stereo, LENGTH_Stereo},
    {SNAPSHOT_OutputMode, LENGTH_OutputMode},
    {SNAPSHOT_PresetInUse, LENGTH_PresetInUse},
    {SNAPSHOT_LiveRecord, LENGTH_LiveRecord},
    {SNAPSHOT_Output, LENGTH_Output},
    {SNAPSHOT_InputBackup, LENGTH_InputBackup},
    {SNAPSHOT_LoadArea, LENGTH_LoadArea},
    {SNAPSHOT_Inputs, LENGTH_Inputs},
    {SNAPSHOT_FirstPreset - 0x200, 10 * LENGTH_Preset},
    {SNAPSHOT_RenameFlag, 1},
    {SNAPSHOT_Name, LENGTH_Name},
};

/// The bus: what the panel sends must be a frame.
class Bus : public CommunicationClientInterface
{
public:
    Bus() : CommunicationClientInterface(ENUM_COMMUNICATION_APIPC) {}
    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override { return 0; }
    int SendMsg(void *packet) override
    {
        PackageRequestProto3rd written;
        REQUIRE(written.unPackageReply(*static_cast<QByteArray *>(packet)));
        return 1;
    }
};

class FuzzedPanel : public QObject
{
public:
    FuzzedPanel();

    void play(const Step &step);
    /// As before the first input, but for what the device has told of itself.
    void reset();
    /// The item that broke the rule, empty if none has; of those that have changed, or of all.
    QString fault(bool ofAll);

private:
    template <class Object> Object *enter(ENUM_ObjectIndex index, Object *object)
    {
        ObjectPool::getInstance()->InsertData(index, object);
        return object;
    }
    void report(quint32 address, int deviceType, const QByteArray &bytes);
    void send(KEY_TYPE type, int key, int speed = 1);
    void restart();
    void writeFlash(quint32 address, const QByteArray &bytes);
    void answerDialogs();
    void reload(ENUM_MenuIndex item);

    QTemporaryDir m_folder{"/dev/shm/fuzz-XXXXXX"};
    MenuAnalysis *m_store = nullptr;
    ParaProcess *m_engine = nullptr;
    MainWindow *m_home = nullptr;
    QMap<ENUM_MenuIndex, ST_ItemInfo> m_first;
    QMap<ENUM_MenuIndex, QString> m_seen;   ///< values of the items that the rule is for
    QVector<QPair<quint32, int>> m_written; ///< in the flash, by this input
    QTimer m_closer;
    int m_answer = 0;
    bool m_hasMoved = false; ///< keys were pressed
};

FuzzedPanel::FuzzedPanel()
{
    qputenv("FPD_STATE", m_folder.path().toLocal8Bit());
    for (const char *folder : {"/usr/vask/etc/fpd/config", "/usr/vask/etc/osd", "/usr/vask/etc/logo", "/run"})
        QDir().mkpath(m_folder.path() + folder);
    QFile flash(m_folder.path() + hostlink::flashFile);
    REQUIRE(flash.open(QIODevice::WriteOnly) && flash.resize(hostlink::flashSize));
    QApplication::setStyle(new PlainTextStyle);

    enter(ENUM_TRANSPORT, new transport(ENUM_TRANSPORT));
    enter(ENUM_PROTOCOINTERFER_3RD, new Proto3rd(ENUM_PROTOCOINTERFER_3RD));
    enter(ENUM_COMMUNICATION_APIPC, new Bus);
    m_store = enter(ENUM_MENUANALYSIS, new MenuAnalysis(ENUM_MENUANALYSIS));
    m_store->initlize();
    m_engine = enter(ENUM_PARAPROCESS, new ParaProcess(ENUM_PARAPROCESS));
    m_home = enter(ENUM_MAIN_WINDOW, new MainWindow(ENUM_MAIN_WINDOW));
    REQUIRE(m_engine->Initialize());
    REQUIRE(DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).CreateAllMenu());
    REQUIRE(m_home->Init());
    restart();
    m_home->show();
    ParaProcess::m_ResetFlg = true; // a reset reads a whole file
    connect(&m_closer, &QTimer::timeout, this, [this] { answerDialogs(); });
    m_closer.start(0);
    for (QWidget *window : QApplication::topLevelWidgets())
        window->setUpdatesEnabled(false); // nobody looks
    // The inputs as a device has them, so that the tables of inputs are built.
    const int codes[] = {97, 98, 105, 48, 106, 233, 234, 224, 254};
    for (int i = 0; i < 9; ++i)
        report(quint32(REG_InputRecord + 32 * i), 0,
               QByteArray(1, char(codes[i])) + QByteArray::fromHex("000380073804c141"));
    for (auto item = g_MenuXmlConfig.cbegin(); item != g_MenuXmlConfig.cend(); ++item) {
        m_store->GetMenuItem(item.key(), m_first[item.key()]);
        if (storerules::isRuled(item.key()))
            m_seen.insert(item.key(), item->value);
    }
}

QString FuzzedPanel::fault(bool ofAll)
{
    ST_ItemInfo item;
    QString value;
    for (auto seen = m_seen.begin(); seen != m_seen.end(); ++seen) {
        m_store->GetItemCurValue(seen.key(), value);
        if (!ofAll && value == *seen)
            continue;
        *seen = value;
        m_store->GetMenuItem(seen.key(), item);
        const QString fault = storerules::fault(item);
        if (!fault.isEmpty())
            return fault;
    }
    return QString();
}

void FuzzedPanel::report(quint32 address, int deviceType, const QByteArray &bytes)
{
    PackageRequestProto3rd package;
    REQUIRE(package.unPackageReply(frames::report(address, bytes, deviceType)));
    dispatchReport(package, false);
    QCoreApplication::processEvents();
}

void FuzzedPanel::send(KEY_TYPE type, int key, int speed)
{
    QWidget *window = QApplication::activeModalWidget();
    if (!window)
        window = OpenPage::shown();
    if (!window)
        window = m_home;
    KeypadEvent event(type, quint8(key), quint8(speed), type == KEY_LONG_PRESS);
    QCoreApplication::sendEvent(window, &event);
    QCoreApplication::processEvents();
    m_hasMoved = true;
}

void FuzzedPanel::restart()
{
    m_engine->InitReadParaFrom20M();
    m_engine->InitializeMainWindow();
    QCoreApplication::processEvents();
}

void FuzzedPanel::writeFlash(quint32 address, const QByteArray &bytes)
{
    WriteDataToFlashx(address, uint(bytes.size()), reinterpret_cast<const uchar *>(bytes.constData()));
}

/// Plays the user of whatever stands in front.
void FuzzedPanel::answerDialogs()
{
    auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (box)
        box->done(m_answer);
}

void FuzzedPanel::play(const Step &step)
{
    constexpr int knownKeys = 36, longBit = 0x40;
    switch (step.kind) {
    case REPORT: {
        const Register &row = registers()[step.at(0) % registers().size()];
        // The registers of the receiving cards come with another device type.
        const bool isCard = row.address == 0x02000001 || row.address == 0x01000088;
        return report(row.address, isCard ? 1 : 0, step.bytes.mid(1));
    }
    case RAW_REPORT:
        return report(quint32(step.at(0) | step.at(1) << 8 | step.at(2) << 16) | quint32(step.at(3)) << 24,
                      step.at(4), step.bytes.mid(5));
    case KEYS:
        for (char byte : step.bytes) {
            const int key = quint8(byte) & ~longBit;
            if (key >= knownKeys || key == KEY_SERVICE) // the production test has the keys to itself
                continue;
            send(KEY_PRESSED, key);
            send(byte & longBit ? KEY_LONG_PRESS : KEY_RELEASED, key);
        }
        return;
    case TURNS:
        for (char steps : step.bytes)
            send(KEY_PRESSED, steps < 0 ? KEY_KNOB_LEFT : KEY_KNOB_RIGHT, qAbs(int(steps)) % 8 + 1);
        return;
    case ANSWER:
        m_answer = step.at(0) % 6;
        return;
    case FLASH: {
        const Block &block = blocks[step.at(0) % int(std::size(blocks))];
        const int place = (step.at(1) | step.at(2) << 8) % block.length;
        const QByteArray bytes = step.bytes.mid(3, block.length - place);
        m_written.append({block.address + quint32(place), bytes.size()});
        return writeFlash(block.address + quint32(place), bytes);
    }
    case RESTART:
        return restart();
    case KIND_COUNT:
        break;
    }
}

void FuzzedPanel::reload(ENUM_MenuIndex item)
{
    for (const ST_MenuConfig &page : qAsConst(g_config))
        for (const st_MenuItemInfo &row : page.rowsMap)
            if (row.menuIndex == item)
                if (auto *widget = poolObject<VaskUiObject>(row.itemObject))
                    widget->UpdateALLUI(item);
}

void FuzzedPanel::reset()
{
    m_answer = 0;
    if (m_hasMoved) {
        m_home->SetLockState(PANEL_UNLOCK, false);
        OpenPage::goHome();
        QCoreApplication::processEvents();
    }
    m_hasMoved = false;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // an event loop would
    for (const auto &place : qAsConst(m_written))
        writeFlash(place.first, QByteArray(place.second, '\0'));
    if (!m_written.isEmpty())
        m_engine->InitReadParaFrom20M();
    m_written.clear();
    ST_ItemInfo item;
    for (auto first = m_first.begin(); first != m_first.end(); ++first) {
        m_store->GetMenuItem(first.key(), item);
        if (item == *first)
            continue;
        m_store->updataMenuItem(first.key(), *first);
        reload(first.key());
    }
}

FuzzedPanel *panel = nullptr;

void setUp()
{
    panel = new FuzzedPanel;
}

template <int kinds> void feed(const QByteArray &input)
{
    for (const Step &step : stepsOf(input)) {
        if (!(kinds & 1 << step.kind))
            continue;
        panel->play(step);
        const QString fault = panel->fault(false);
        if (!fault.isEmpty())
            fuzz::require(false, qPrintable(fault));
    }
    panel->reset();
}

Step randomStep(std::mt19937 &random)
{
    const auto below = [&random](size_t count) { return int(random() % count); };
    constexpr uchar telling[] = {0, 1, 2, 3, 4, 5, 9, 40, 64, 100, 120, 127, 128, 154, 168, 240, 254, 255};
    Step step{Kind(below(KIND_COUNT)), QByteArray()};
    int length = below(12);
    if (step.kind == REPORT) {
        const int place = below(size_t(registers().size()));
        step.bytes += char(place);
        length = registers()[place].bytesNeeded + below(3);
    }
    for (int i = 0; i < length; ++i)
        step.bytes += char(below(2) ? telling[below(std::size(telling))] : below(256));
    return step;
}

QByteArray mutate(const QByteArray &input, std::mt19937 &random)
{
    Steps steps = stepsOf(input);
    const int place = steps.isEmpty() ? 0 : int(random() % uint(steps.size()));
    const int other = steps.isEmpty() ? 0 : int(random() % uint(steps.size()));
    switch (steps.isEmpty() ? 0 : random() % 5) {
    case 0:
        steps.insert(place, randomStep(random));
        break;
    case 1:
        steps.insert(place, steps[other]);
        break;
    case 2:
        steps.remove(place);
        break;
    case 3:
        qSwap(steps[place], steps[other]);
        break;
    default:
        steps[place].bytes = fuzz::mutateBytes(steps[place].bytes, longestStep);
    }
    return inputOf(steps);
}
} // namespace

FPD_FUZZ_TARGET(reports, feed<1 << REPORT | 1 << RAW_REPORT>, 256, setUp, mutate)
FPD_FUZZ_TARGET(snapshot, feed<1 << FLASH | 1 << RESTART>, 512, setUp, mutate)
FPD_FUZZ_TARGET(keys, feed<-1>, 256, setUp, mutate)
