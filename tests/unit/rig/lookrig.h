// What can be told of a picture of the panel without looking at it: texts that are cut off, parts that
// overlap, where the cursor is, on which line a text stands. And the bench in both languages that pages are
// looked at on.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "tests/unit/rig/pagerig.h"
#include "widget/elidinglabel.h"

#include <QPushButton>
#include <QTableWidget>
#include <QTranslator>

namespace VASK
{
struct Language {
    const char *name;
    ENUM_MenuIndex item;
    const char *file;
    const char *font;
};
constexpr Language languages[] = {{"English", MENU_LanguageEn, "fpd_EN.qm", "Arial"},
                                  {"Chinese", MENU_LanguageZh, "fpd_ZH.qm", "宋体"}};

/// Rows of a test that is made in each language, and the language of the present one.
inline void eachLanguage()
{
    QTest::addColumn<int>("number");
    for (int number : {0, 1})
        QTest::newRow(languages[number].name) << number;
}
inline const Language &languageOfRow()
{
    return languages[*static_cast<int *>(QTest::qData("number", qMetaTypeId<int>()))];
}

/// All pages with their real rows, and the texts of both languages.
class LookRig : public PageRig
{
public:
    LookRig() : PageRig(Real)
    {
        const QString place = "/usr/vask/etc/fpd/config/";
        for (const Language &language : languages)
            built = built && QFile::copy(builtFile(language.file), board::filePath(place + language.file));
        built = built && home->Init() && engine->Initialize() && m_atStart.load(builtFile("fpd_ZH.qm")) &&
                QCoreApplication::installTranslator(&m_atStart);
        // Nothing is read back from the file, and each write waits for the disk.
        store->findChild<QTimer *>()->blockSignals(true);
    }
    ~LookRig() { QCoreApplication::removeTranslator(&m_atStart); }

    void speak(const Language &language)
    {
        engine->SetParaToXml(QString(), language.item, SET_XML_USER);
        m_onDemand.clear();
        m_language = QString(language.name).toLower();
    }
    /// A page that is not of the three trees is built at its first use in a language.
    MenuDirectory *pageOf(ENUM_ConfigIndex config)
    {
        if (builtPages().contains(config))
            return page(g_config[config].object);
        if (!m_onDemand.contains(config))
            m_onDemand[config] = DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).buildMenu(config);
        return m_onDemand[config];
    }
    /// Saves the picture, in a folder a language.
    void keep(const QImage &picture, const QString &folder, const QString &name) const
    {
        const QString place = folder + '/' + m_language;
        QDir().mkpath(place);
        picture.save(QString("%1/%2.png").arg(place, QString(name).replace('/', '_')));
    }

private:
    static QString builtFile(const QString &name)
    {
        return QCoreApplication::applicationDirPath() + "/../translation/" + name;
    }

    QTranslator m_atStart;
    QMap<ENUM_ConfigIndex, MenuDirectory *> m_onDemand;
    QString m_language;
};

inline bool isCut(const QLabel &label)
{
    // The dots of an address stand between its boxes: they may reach into the space beside them.
    if (label.text() == QLatin1String("."))
        return false;
    const QSize room = label.contentsRect().size();
    const QPixmap picture = label.pixmap(Qt::ReturnByValue);
    if (!picture.isNull())
        return picture.width() > room.width() || picture.height() > room.height();
    const QFontMetrics metrics = label.fontMetrics();
    if (label.wordWrap() || label.text().contains('\n')) {
        const int flags = int(label.alignment()) | (label.wordWrap() ? Qt::TextWordWrap : 0);
        const QSize needed =
            metrics.boundingRect(QRect(0, 0, room.width(), 1000), flags, label.text()).size();
        return needed.width() > room.width() || needed.height() > room.height();
    }
    // What of the line is drawn on has to fit, not the room that it leaves above and below.
    const QRect drawn = metrics.tightBoundingRect(label.text())
                            .translated(0, (room.height() - metrics.height()) / 2 + metrics.ascent());
    return metrics.horizontalAdvance(label.text()) > room.width() || drawn.top() < 0 ||
           drawn.bottom() >= room.height();
}

inline bool isCut(const QPushButton &button)
{
    return button.fontMetrics().horizontalAdvance(button.text()) > button.contentsRect().width();
}

/// What a window or row shows: labels and buttons with something in them.
inline QList<const QWidget *> shownParts(const QWidget &window)
{
    QList<const QWidget *> parts;
    for (const QLabel *label : window.findChildren<QLabel *>())
        if (label->isVisibleTo(&window) &&
            !(label->text().isEmpty() && label->pixmap(Qt::ReturnByValue).isNull()))
            parts << label;
    for (const QPushButton *button : window.findChildren<QPushButton *>())
        if (button->isVisibleTo(&window) && !(button->text().isEmpty() && button->icon().isNull()))
            parts << button;
    return parts;
}

inline QString textOf(const QWidget *part)
{
    const auto *label = qobject_cast<const QLabel *>(part);
    const auto *button = qobject_cast<const QPushButton *>(part);
    return label ? label->text() : button ? button->text() : QString();
}

/// What a window cannot show whole.
inline QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    for (const QWidget *part : shownParts(window)) {
        const auto *label = qobject_cast<const QLabel *>(part);
        if (label ? isCut(*label) : isCut(*qobject_cast<const QPushButton *>(part)))
            cut << "cut off: " + (textOf(part).isEmpty() ? QString("picture") : textOf(part));
    }
    return cut;
}

/// Parts of a row that lie over each other or reach out of the row.
inline QStringList overlaps(const QWidget &row)
{
    QStringList faults;
    QList<QPair<QRect, QString>> places;
    for (const QWidget *part : shownParts(row)) {
        const QRect place(part->mapTo(&row, QPoint()), part->size());
        if (!row.rect().contains(place))
            faults << "out of the row: " + textOf(part);
        for (const auto &other : qAsConst(places))
            if (other.first.intersects(place))
                faults << QString("overlap: %1 and %2").arg(other.second, textOf(part));
        places << qMakePair(place, textOf(part));
    }
    return faults;
}

/// The lines on which the texts of a row stand, in pixels below its middle.
inline QMap<QString, double> baselines(const QWidget &row)
{
    QMap<QString, double> lines;
    for (const QWidget *part : shownParts(row)) {
        const auto *label = qobject_cast<const QLabel *>(part);
        if (textOf(part).isEmpty() || textOf(part) == "." || (label && label->wordWrap()))
            continue;
        const QRect room = part->contentsRect().translated(part->mapTo(&row, QPoint()));
        const QFontMetricsF metrics(part->fontMetrics());
        const double top = room.top() + (room.height() - metrics.height()) / 2;
        lines[textOf(part)] = top + metrics.ascent() - row.height() / 2.0;
    }
    return lines;
}
} // namespace VASK
