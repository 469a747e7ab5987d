// The pictures and style files that the program carries: what the tables and the code ask for is there, in
// the size of the label that shows it, and what must be told apart differs.

#include "menuconfig_k2860.h"
#include "tests/testprogram.h"
#include "widget/home/mainwindowui.h"

#include <QDirIterator>
#include <QImage>
#include <QRegularExpression>

using namespace VASK;

namespace
{
const QString resourceRoot = ":/resource/";
constexpr QSize rowIcon(24, 24);
constexpr QSize rightPicture(8, 16);
constexpr QSize optionPicture(36, 30);

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    for (QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        files << it.next();
    return files;
}

/// "" if the file is a picture of that size, else what is wrong with it.
QString faultOf(const QString &path, QSize size)
{
    const QImage picture(path);
    if (picture.isNull())
        return path + " is missing";
    if (picture.size() != size)
        return QString("%1 is %2x%3").arg(path).arg(picture.width()).arg(picture.height());
    return {};
}

/// The tail of a path with placeholders, as a pattern over all resources: %1 and %d stand for a number or a
/// word.
QRegularExpression patternOf(const QString &literal)
{
    static const QRegularExpression placeholder("%(\\d|d)");
    static const QRegularExpression prefix("^(%1|:?/?resource/(image/)?)");
    QStringList parts = QString(literal).remove(prefix).split(placeholder);
    for (QString &part : parts)
        part = QRegularExpression::escape(part);
    return QRegularExpression('/' + parts.join("\\w+") + '$');
}

/// The text literals of a source file that name a picture or a style file.
QStringList namesIn(const QString &path)
{
    static const QRegularExpression literal("\"([^\"]*\\w\\.(?:png|qss))\"");
    QStringList names;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return names;
    for (auto it = literal.globalMatch(QString::fromUtf8(file.readAll())); it.hasNext();)
        names << it.next().captured(1);
    return names;
}

QStringList numbered(const QString &path, int first, int last)
{
    QStringList paths;
    for (int i = first; i <= last; ++i)
        paths << path.arg(i);
    return paths;
}
} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void everyPictureOfTheItems()
    {
        QStringList faults;
        int options = 0;
        for (const ST_ItemInfo &item : g_MenuXmlConfig) {
            if (!item.icon.isEmpty())
                faults << faultOf(item.icon, rowIcon);
            if (!item.iconRight.isEmpty())
                faults << faultOf(item.iconRight,
                                  item.iconRight.endsWith("hook.png") ? rowIcon : rightPicture);
            for (const QString &option : item.params) {
                if (!option.startsWith(':'))
                    continue;
                faults << faultOf(option, optionPicture);
                ++options;
            }
        }
        faults.removeAll({});
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY(options > 40);
    }

    void everyNameInTheSources()
    {
        const QString sources = qEnvironmentVariable("FPD_SOURCES");
        QStringList files = filesBelow(sources + "/widget") + filesBelow(sources + "/framework");
        for (const QString &file : QDir(sources).entryList({"*.cpp", "*.h"}, QDir::Files))
            files << sources + '/' + file;
        const QString all = filesBelow(resourceRoot).join('\n');
        QStringList missing;
        int found = 0;
        for (const QString &file : files) {
            for (const QString &name : namesIn(file)) {
                QRegularExpression pattern = patternOf(name);
                pattern.setPatternOptions(QRegularExpression::MultilineOption);
                if (pattern.match(all).hasMatch())
                    ++found;
                else
                    missing << file + ": " + name;
            }
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
        QVERIFY(found > 30);
    }

    void sizes_data()
    {
        addColumns<QStringList, QSize>({"names", "size"});
        QWidget window;
        Ui_MainWindow home;
        home.setupUi(&window);
        const QSize screen(Ui_MainWindow::width, Ui_MainWindow::height);

        const auto row = [](const char *name, const QSize &size, const QStringList &names) {
            QTest::newRow(name) << names << size;
        };
        constexpr int ports = Ui_MainWindow::portCount;
        const QString port = "mainWindow/port%1_", backup = "mainWindow/hotbackupport%1_enable";
        const QString mode = "mainWindow/2960-Test_", link = "mainWindow/2960-",
                      custom = "imageControl/custom/custom%1_";
        row("backgrounds", screen, {"mainWindow/K2860-bg", "mainMenu/menu_bg"});
        row("lock sign", home.labLock->size(), {"mainWindow/lock"});
        row("sources", home.labLayerSrc_Name[0]->size(), {"mainWindow/layer_on", "mainWindow/layer_off"});
        row("synchronisation", home.labSyn->size(),
            {"mainWindow/syn_on", "mainWindow/syn_off", "mainWindow/syn_wait", "mainWindow/syn_fail"});
        row("display mode", home.labTestMode->size(),
            {mode + "Normal", mode + "Test", mode + "FRZ", mode + "Black"});
        row("connection", home.labConnectState->size(),
            {link + "Net_connected", link + "USBLoop", link + "Net_unconnected", link + "USB"});
        row("ports", home.labNet[0]->size(),
            numbered(port + "enable", 1, ports) + numbered(port + "disable", 1, ports) +
                numbered(backup, 1, ports));
        row("lock window", QSize(140, 98), {"mainWindow/dialog_lock_bg"});
        row("lock window's sign", QSize(48, 48), {"mainWindow/dialog_lock_on", "mainWindow/dialog_lock_off"});
        row("second link", QSize(46, 30), {"mainWindow/opt_copy", "mainWindow/opt_backup"});
        row("input backup", QSize(31, 10), {"mainWindow/hotbackup_normal", "mainWindow/hotbackup_available"});
        row("note", QSize(16, 16), {"mainMenu/prompt_icon"});
        row("preset rows", rowIcon, {"sceneSetting/sceneused", "sceneSetting/sceneunused"});
        row("preset actions", QSize(48, 48),
            {"sceneSetting/save", "sceneSetting/load", "sceneSetting/delete", "sceneSetting/copy"});
        row("custom pictures", QSize(40, 46), numbered(custom + "on", 1, 4) + numbered(custom + "off", 1, 4));
    }
    void sizes()
    {
        const auto [names, size] = fetched<QStringList, QSize>({"names", "size"});
        for (const QString &name : names) {
            const QString fault = faultOf(imgPath + name + ".png", size);
            QVERIFY2(fault.isEmpty(), qPrintable(fault));
        }
    }

    /// A placeholder that a drawing forgot would make twins of two ports or of two states.
    void everyPictureIsItsOwn()
    {
        QMap<QByteArray, QString> known;
        for (const QString &path : filesBelow(imgPath)) {
            const QImage picture = QImage(path).convertToFormat(QImage::Format_ARGB32);
            const QByteArray pixels(reinterpret_cast<const char *>(picture.constBits()),
                                    static_cast<int>(picture.sizeInBytes()));
            QVERIFY2(!known.contains(pixels), qPrintable(path + " looks like " + known.value(pixels)));
            known.insert(pixels, path);
        }
    }

    /// A window is painted with its background alone: what shines through would be the screen before it.
    void backgroundsCoverTheirWindow()
    {
        for (const char *name : {"mainWindow/K2860-bg", "mainMenu/menu_bg", "mainWindow/dialog_lock_bg"}) {
            const QImage picture(imgPath + name + ".png");
            QVERIFY(!picture.isNull());
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    QVERIFY2(qAlpha(picture.pixel(x, y)) == 255, name);
        }
    }

    /// The frames of the home screen stand around its texts, never under them.
    void framesKeepClearOfTheTexts()
    {
        QWidget window;
        Ui_MainWindow home;
        home.setupUi(&window);
        const QImage background(imgPath + "mainWindow/K2860-bg.png");
        constexpr int border = 2;  // pixels of a label that no letter reaches
        constexpr int shading = 8; // of 255: the ground itself may shade
        for (const QLabel *label : home.centralWidget->findChildren<QLabel *>()) {
            const QRect inner = label->geometry().adjusted(border, border, -border, -border);
            int darkest = 255;
            int lightest = 0;
            for (int y = inner.top(); y <= inner.bottom(); ++y) {
                for (int x = inner.left(); x <= inner.right(); ++x) {
                    const int grey = qGray(background.pixel(x, y));
                    darkest = qMin(darkest, grey);
                    lightest = qMax(lightest, grey);
                }
            }
            QVERIFY2(lightest - darkest <= shading, qPrintable(label->objectName() + " stands on a line"));
        }
    }

    void stylesAreUnderstood()
    {
        static QStringList complaints;
        complaints.clear();
        const QtMessageHandler before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { complaints << text; });
        QStringList read;
        for (const char *name : {"VerticalBar.qss", "menuwidget.qss"}) {
            QFile file(resourceRoot + "qss/" + name);
            if (file.open(QIODevice::ReadOnly))
                read << QString::fromUtf8(file.readAll());
            QWidget widget;
            widget.setStyleSheet(read.value(read.size() - 1));
            widget.ensurePolished();
        }
        qInstallMessageHandler(before);
        QCOMPARE(read.size(), 2);
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join('\n')));
    }
};

FPD_TEST(TestPictures)
#include "tst_pictures.moc"
