// All texts of the screen: none is missing in a language and none is left over, and no damage to their files
// hurts.

#include "framework/ui/textfile.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menuconfig_k2860.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/lookrig.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>
#include <sys/stat.h>

using namespace VASK;

namespace
{
using Texts = QMap<QString, QString>;

/// Texts that no row and no message of the table holds.
constexpr const char *elsewhere[] = {"Yes",       "No",       "Check",  "Locked",          "Unlocked",
                                     "No Signal", "Inactive", "WaitIP", "TotalResolution", "Saved",
                                     "Used",      "DVI1",     "OPT1-1", "OPT1-2",          "MOSAIC"};
/// The four things that can be done with a preset.
constexpr const char *presetActions[] = {"Save", "Load", "Clear", "CopyTo"};

/// Numbers, resolutions, rates, versions, addresses, colour sampling and pictures stand for themselves.
bool isLiteral(const QString &text)
{
    static const QRegularExpression literal(
        QStringLiteral("^([0-9.:*x]*|V[0-9.]+|(RGB|YCbCr) ?[0-9:]+|:/.*|.*@.*|.*\\.rcfgx)$"));
    return literal.match(text).hasMatch();
}

QString translationFile(const Language &language, const char *suffix)
{
    return QCoreApplication::applicationDirPath() + "/../translation/" +
           QString(language.file).replace(".qm", suffix);
}

/// The texts as they went into the compiler.
Texts readTexts(const Language &language)
{
    Texts texts;
    QFile file(translationFile(language, ".ts"));
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    QString key;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("source"))
            key = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == QLatin1String("translation"))
            texts.insert(key, xml.readElementText());
    }
    return texts;
}

/// The kinds of row that show an item, none for an item that no page shows.
QMultiMap<ENUM_MenuIndex, ENUM_ControlType> kindsOfItems()
{
    QMultiMap<ENUM_MenuIndex, ENUM_ControlType> kinds;
    for (const ST_MenuConfig &page : qAsConst(g_config))
        for (const st_MenuItemInfo &row : page.rowsMap)
            kinds.insert(row.menuIndex, row.controlType);
    return kinds;
}

bool showsValue(ENUM_ControlType kind)
{
    return kind == TYPE_BUTTON || kind == TYPE_INFORMATION;
}

/// Every key of the tables. From the screen configuration's kind on the items are values without a row.
QSet<QString> keysOfTables()
{
    QSet<QString> keys;
    for (const ST_MenuConfig &page : qAsConst(g_config))
        keys << page.title;
    for (const ST_DialogInfo &message : qAsConst(g_dialogConfig))
        keys << message.text;
    const auto kinds = kindsOfItems();
    for (const ST_ItemInfo &item : qAsConst(g_MenuXmlConfig)) {
        if (item.index >= MENU_ScreenConfigKind)
            continue;
        keys << item.tag;
        for (const QString &option : item.params)
            keys << option;
        for (ENUM_ControlType kind : kinds.values(item.index))
            if (showsValue(kind))
                keys << item.value;
    }
    for (auto key = keys.begin(); key != keys.end();)
        key = isLiteral(*key) ? keys.erase(key) : std::next(key);
    return keys;
}

/// The program's sources, one text.
QString sources()
{
    QString text;
    const QString top = qEnvironmentVariable("FPD_SOURCES");
    for (const char *folder : {"/widget", "/framework"}) {
        QDirIterator files(top + folder, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.open(QIODevice::ReadOnly))
                text += QString::fromUtf8(file.readAll());
        }
    }
    return text;
}

/// The literals that the sources hand to the translator.
QSet<QString> keysOfSources()
{
    static const QRegularExpression call(
        QStringLiteral("(?:translated\\(|showKey\\(|translate\\(\"MainWindow\",\\s*)((?:[^()\"]|\"[^\"]*\"|"
                       "\\([^()]*\\))*)\\)"));
    static const QRegularExpression literal(QStringLiteral("\"([^\"]*)\""));
    QSet<QString> keys;
    auto calls = call.globalMatch(sources());
    while (calls.hasNext()) {
        auto literals = literal.globalMatch(calls.next().captured(1));
        while (literals.hasNext())
            keys << literals.next().captured(1);
    }
    return keys;
}

QSet<QString> allKeys()
{
    QSet<QString> keys = keysOfTables() + keysOfSources();
    for (const char *key : elsewhere)
        keys << key;
    for (const char *key : presetActions)
        keys << key;
    return keys;
}
} // namespace

class TestTexts : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY2(!sources().isEmpty(), "no sources in FPD_SOURCES");
        QVERIFY(keysOfSources().contains("No Signal"));
    }

    void everyKeyHasAText_data() { eachLanguage(); }
    void everyKeyHasAText()
    {
        QTranslator translator;
        QVERIFY(translator.load(translationFile(languageOfRow(), ".qm")));
        const QSet<QString> keys = allKeys();
        QStringList without;
        for (const QString &key : qAsConst(keys))
            if (translator.translate("MainWindow", key.toUtf8()).trimmed().isEmpty())
                without << key;
        QVERIFY2(without.isEmpty(), qPrintable(without.join(", ")));
    }

    void noTextIsLeftOver_data() { eachLanguage(); }
    void noTextIsLeftOver()
    {
        const QSet<QString> keys = allKeys();
        const QStringList written = readTexts(languageOfRow()).keys();
        QVERIFY(!written.isEmpty());
        const QStringList leftOver = (QSet<QString>(written.begin(), written.end()) - keys).values();
        QVERIFY2(leftOver.isEmpty(), qPrintable(leftOver.join(", ")));
    }

    void keysElsewhereAreStillShown()
    {
        const QString code = sources();
        const QSet<QString> inTables = keysOfTables();
        for (const char *key : elsewhere)
            QVERIFY2(inTables.contains(key) || code.contains('"' + QString(key) + '"'), key);
    }

    /// The screen of one language shows no text of the other; a language is named in itself.
    void chineseIsChinese()
    {
        static const QRegularExpression chinese("\\p{Han}");
        const Texts english = readTexts(languages[0]);
        const Texts texts = readTexts(languages[1]);
        QStringList mixed;
        for (auto text = english.begin(); text != english.end(); ++text)
            if (text.key() != QLatin1String("LanguageZh") && chinese.match(text.value()).hasMatch())
                mixed << text.key();
        for (const ST_DialogInfo &message : qAsConst(g_dialogConfig))
            if (!chinese.match(texts.value(message.text)).hasMatch())
                mixed << message.text;
        QVERIFY2(mixed.isEmpty(), qPrintable(mixed.join(", ")));
    }

    /// Every byte of the tables and of some texts is changed, and the file is cut everywhere: what is taken
    /// must stand every look-up.
    void aDamagedFileDoesNoHarm()
    {
        QFile whole(translationFile(languages[1], ".qm"));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        const QByteArray content = whole.readAll();
        QVERIFY(isSoundTextFile(content));
        const QStringList keys = readTexts(languages[1]).keys();
        int taken = 0;
        const auto lookUp = [&](const QByteArray &damaged) {
            if (!isSoundTextFile(damaged))
                return;
            ++taken;
            QTranslator translator;
            if (!translator.load(reinterpret_cast<const uchar *>(damaged.constData()), damaged.size()))
                return;
            for (const QString &key : keys)
                translator.translate("MainWindow", key.toUtf8().constData());
        };
        constexpr int closely = 3000, step = 13;
        for (int at = 0; at < content.size(); at += at < closely ? 1 : step) {
            for (const char change : {'\x01', '\x80', '\xff'}) {
                QByteArray damaged = content;
                damaged[at] = char(damaged[at] ^ change);
                lookUp(damaged);
            }
            lookUp(content.left(at));
        }
        QVERIFY(taken > 0); // a letter changed inside a text is no harm
    }

    void whatIsNoFileOfTextsIsRefused()
    {
        QTemporaryDir folder;
        const QString name = folder.filePath("fpd_ZH.qm");
        TextFile texts;
        QVERIFY(!texts.loadFile(name));
        QVERIFY(QDir(folder.path()).mkdir("fpd_ZH.qm"));
        QVERIFY(!texts.loadFile(name));
        QVERIFY(QDir(folder.path()).rmdir("fpd_ZH.qm"));
        QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0); // whoever opens it waits for ever
        QVERIFY(!texts.loadFile(name));
        QVERIFY(QFile::remove(name));
        QFile huge(name);
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(1) << 33));
        QVERIFY(!texts.loadFile(name));
        QVERIFY(huge.resize(0));
        QVERIFY(!texts.loadFile(name));
    }
};

FPD_TEST(TestTexts)
#include "tst_texts.moc"
