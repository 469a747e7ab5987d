// All texts of the screen: none is missing in a language, none is left over, and each fits the place where it
// stands, in the fonts of the board.

#include "menuconfig_k2860.h"

#include <QDirIterator>
#include <QFontMetrics>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>
#include <algorithm>

using namespace VASK;

namespace
{
using Texts = QMap<QString, QString>;

struct Language {
    const char *name;
    const char *file;
    const char *font;
    int rowPixels; ///< font of a menu row
};
constexpr Language languages[] = {{"English", "fpd_EN", "Arial", 20}, {"Chinese", "fpd_ZH", "宋体", 22}};

// Pixels of the screen that the rows and boxes leave for their texts.
constexpr int tableWidth = 319;
constexpr int tableHeight = 216;
constexpr int scrollBar = 8;
constexpr int gap = 8; ///< between name and value, so that they read as two
constexpr int titleWidth = 320 - 8;
constexpr int titlePixels = 16;
constexpr int optionWidth = 190 - 15 - 2;
constexpr int optionPixels = 22;
constexpr int buttonWidth = 128 - 8;
constexpr int tipMargins = 8 + 16 + 8;
constexpr int boxPixels = 18; ///< font of tips and message boxes
constexpr QSize messageAlone(230, 176);
constexpr QSize messageAboveButtons(230, 136);

/// Texts that no row and no message of the table holds, and the width and font that they have.
struct Elsewhere {
    const char *key;
    int width;
    int pixels;
};
constexpr Elsewhere elsewhere[] = {
    {"Yes", 100, boxPixels},
    {"No", 100, boxPixels},
    {"Check", 200, boxPixels},
    {"Locked", 132, 16},
    {"Unlocked", 132, 16},
    {"No Signal", 180, 16},
    {"Inactive", 180, 16},
    {"WaitIP", 126, 13},
    {"TotalResolution", 180, 22},
    {"Saved", 100, 22},
    {"Used", 100, 22},
    // Names of an input that the device reports.
    {"DVI1", 66, 14},
    {"OPT1-1", 66, 14},
    {"OPT1-2", 66, 14},
    {"MOSAIC", 66, 14},
};
/// The four things that can be done with a preset, as captions of pictures.
constexpr Elsewhere presetActions[] = {
    {"Save", 68, 20}, {"Load", 68, 20}, {"Clear", 68, 20}, {"CopyTo", 68, 20}};

/// What a message says behind its translation.
const QMap<QString, QString> extras{
    {"IfCoverPreset", " Preset 10?"}, {"DeletePresetConfirm", " Preset 10?"}, {"UpdateStart", "100 %"}};

/// Numbers, resolutions, rates, versions, addresses, colour sampling and pictures stand for themselves.
bool isLiteral(const QString &text)
{
    static const QRegularExpression literal(
        QStringLiteral("^([0-9.:*x]*|V[0-9.]+|(RGB|YCbCr) ?[0-9:]+|:/.*|.*@.*|.*\\.rcfgx)$"));
    return literal.match(text).hasMatch();
}

QString translationFile(const Language &language, const char *suffix)
{
    return QCoreApplication::applicationDirPath() + "/../translation/" + language.file + suffix;
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
    const QString top = qEnvironmentVariable("FPD_SOURCE");
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
    for (const Elsewhere &text : elsewhere)
        keys << QString::fromUtf8(text.key);
    for (const Elsewhere &text : presetActions)
        keys << QString::fromUtf8(text.key);
    return keys;
}

QFontMetrics metrics(const Language &language, int pixels)
{
    QFont font(language.font);
    font.setPixelSize(pixels);
    return QFontMetrics(font);
}

/// A text on one line.
struct Line {
    const Language &language;
    const Texts &texts;

    QString shown(const QString &key) const { return texts.value(key, key); }
    int width(const QString &key, int pixels) const
    {
        return metrics(language, pixels).horizontalAdvance(shown(key));
    }
    int rowWidth(const QString &key) const { return width(key, language.rowPixels); }
    int widest(const QStringList &keys) const
    {
        int most = 0;
        for (const QString &key : keys)
            most = std::max(most, rowWidth(key));
        return most;
    }
};

bool fitsWrapped(const Language &language, const QString &text, QSize room)
{
    const QRect needed = metrics(language, boxPixels)
                             .boundingRect(QRect(QPoint(), QSize(room.width(), 1000)),
                                           Qt::AlignCenter | Qt::TextWordWrap, text);
    return needed.width() <= room.width() && needed.height() <= room.height();
}

/// All that a row's value part can show.
QStringList valuesOf(const ST_ItemInfo &item, ENUM_ControlType kind)
{
    switch (kind) {
    case TYPE_STRINGCOMBOX:
        return item.params.values();
    case TYPE_INTADJUST:
    case TYPE_FLOATADJUST:
        return {item.min + item.unit, item.max + item.unit, item.value + item.unit};
    case TYPE_BUTTON:
        return item.value == QLatin1String("Blank") ? QStringList{"Blank", "Saved", "Used"}
                                                    : QStringList{item.value};
    case TYPE_INFORMATION:
        return {item.value};
    default:
        return {};
    }
}

/// What the parts of a row beside its texts take.
int fixedParts(const ST_ItemInfo &item, ENUM_ControlType kind)
{
    constexpr int margins = 8 + 8;
    constexpr int rightIcon = 4 + 8;
    constexpr int leftIcon = 24 + 4;
    constexpr int tick = 24;
    constexpr int picture = 36;
    constexpr int address = 4 * 32 + 3 * (3 + 3 + 3) + 6 * 2;
    int width = margins + rightIcon + (item.icon.isEmpty() ? 0 : leftIcon);
    if (kind == TYPE_CHECKITEM)
        width += tick;
    if (kind == TYPE_ICOCOMBOX)
        width += picture;
    if (kind == TYPE_IPADJUST)
        width += address;
    return width;
}

/// Width that a page's scroll bar leaves.
int roomOfRows(const ST_MenuConfig &page)
{
    int height = 0;
    for (const st_MenuItemInfo &row : page.rowsMap)
        height += int(g_MenuXmlConfig.value(row.menuIndex).rowHeight);
    return tableWidth - (height > tableHeight ? scrollBar : 0);
}

/// An empty text, or what does not fit and by how much.
QString rowFault(const Line &line, const ST_MenuConfig &page, const st_MenuItemInfo &row)
{
    const ST_ItemInfo item = g_MenuXmlConfig.value(row.menuIndex);
    const int room = roomOfRows(page);
    const auto fault = [&](const QString &key, int needed, int given) {
        return needed <= given ? QString()
                               : QString("%1: '%2' of page %3 takes %4 of %5 pixels\n")
                                     .arg(line.language.name, line.shown(key), page.title)
                                     .arg(needed)
                                     .arg(given);
    };
    switch (row.controlType) {
    case TYPE_APPLY:
        return fault(item.tag, line.rowWidth(item.tag), buttonWidth);
    case TYPE_APPLYRESET: {
        const QString second = g_MenuXmlConfig.value(ENUM_MenuIndex(row.menuIndex + 1)).tag;
        return fault(item.tag, line.rowWidth(item.tag), buttonWidth) +
               fault(second, line.rowWidth(second), buttonWidth);
    }
    case TYPE_TIP:
        return fitsWrapped(line.language, line.shown(item.tag), QSize(room - tipMargins, int(item.rowHeight)))
                   ? QString()
                   : fault(item.tag, room, 0);
    case TYPE_MOSAIC:
    case TYPE_FOURPIC:
        return {};
    default:
        const int values = line.widest(valuesOf(item, row.controlType));
        const int name = line.rowWidth(item.tag);
        return fault(item.tag, name + (name && values ? gap : 0) + values + fixedParts(item, row.controlType),
                     room);
    }
}
} // namespace

class TestTexts : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY2(!sources().isEmpty(), "no sources in FPD_SOURCE");
        QVERIFY(keysOfSources().contains("No Signal"));
    }

    void everyKeyHasAText_data() { eachLanguage(); }
    void everyKeyHasAText()
    {
        QFETCH(int, number);
        QTranslator translator;
        QVERIFY(translator.load(translationFile(languages[number], ".qm")));
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
        QFETCH(int, number);
        const QSet<QString> keys = allKeys();
        const QStringList written = readTexts(languages[number]).keys();
        QVERIFY(!written.isEmpty());
        const QStringList leftOver = (QSet<QString>(written.begin(), written.end()) - keys).values();
        QVERIFY2(leftOver.isEmpty(), qPrintable(leftOver.join(", ")));
    }

    void keysElsewhereAreStillShown()
    {
        const QString code = sources();
        const QSet<QString> inTables = keysOfTables();
        for (const Elsewhere &text : elsewhere)
            QVERIFY2(inTables.contains(text.key) || code.contains('"' + QString(text.key) + '"'), text.key);
    }

    void everyTextFits_data() { eachLanguage(); }
    void everyTextFits()
    {
        QFETCH(int, number);
        const Language &language = languages[number];
        const Texts texts = readTexts(language);
        const Line line{language, texts};
        QString faults;
        const auto check = [&](const QString &key, int pixels, int room) {
            if (line.width(key, pixels) > room)
                faults += QString("%1: '%2' takes %3 of %4 pixels\n")
                              .arg(language.name, line.shown(key))
                              .arg(line.width(key, pixels))
                              .arg(room);
        };
        for (const ST_MenuConfig &page : qAsConst(g_config)) {
            check(page.title, titlePixels, titleWidth);
            for (const st_MenuItemInfo &row : page.rowsMap) {
                faults += rowFault(line, page, row);
                if (row.controlType == TYPE_STRINGCOMBOX)
                    for (const QString &option : g_MenuXmlConfig.value(row.menuIndex).params)
                        check(option, optionPixels, optionWidth);
            }
        }
        for (const Elsewhere &text : elsewhere)
            check(text.key, text.pixels, text.width);
        for (const Elsewhere &text : presetActions)
            check(text.key, text.pixels, text.width);
        QVERIFY2(faults.isEmpty(), qPrintable("\n" + faults));
    }

    void everyMessageFits_data() { eachLanguage(); }
    void everyMessageFits()
    {
        QFETCH(int, number);
        const Texts texts = readTexts(languages[number]);
        QStringList tooLong;
        for (const ST_DialogInfo &message : qAsConst(g_dialogConfig)) {
            const bool alone = message.buttonType == MSGBOX_NONE || message.buttonType == MSGBOX_TIMED;
            QString text = texts.value(message.text);
            text = text.replace("\\r\\n", "\r\n") + extras.value(message.text);
            if (!fitsWrapped(languages[number], text, alone ? messageAlone : messageAboveButtons))
                tooLong << text;
        }
        QVERIFY2(tooLong.isEmpty(), qPrintable(tooLong.join("\n")));
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

private:
    static void eachLanguage()
    {
        QTest::addColumn<int>("number");
        for (int number = 0; number < 2; ++number)
            QTest::newRow(languages[number].name) << number;
    }
};

QTEST_MAIN(TestTexts)
#include "tst_texts.moc"
