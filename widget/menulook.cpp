#include "widget/menulook.h"

#include "menuconfig_k2860.h"
#include "widget/look.h"

#include <QDebug>
#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <array>

namespace VASK
{
namespace
{
constexpr std::array<QPalette::ColorGroup, 3> allGroups{QPalette::Active, QPalette::Inactive,
                                                        QPalette::Disabled};

QFont fontOf(const QString &family, int pixels)
{
    QFont font;
    font.setFamily(family);
    font.setPixelSize(pixels);
    return font;
}

/// What the common form of a page's sheet says.
struct RowsLook {
    QFont font;
    QColor text;
    QColor cursor;
    bool isCommon = false;
};

QString between(const QString &text, const QString &begin, const QString &end)
{
    const int from = text.indexOf(begin);
    const int to = from < 0 ? -1 : text.indexOf(end, from + begin.size());
    return to < 0 ? QString() : text.mid(from + begin.size(), to - from - begin.size());
}

RowsLook readRowsLook(const QString &sheet)
{
    static const QString form =
        "*{font-family: \"%1\";font-size: %2px;color: %3;background-color:rgba(0,0,0,0);}"
        "QTableWidget::item:selected{background:rgba(%4);}";
    const QString family = between(sheet, "font-family: \"", "\"");
    const QString pixels = between(sheet, "font-size: ", "px");
    const QString text = between(sheet, "px;color: ", ";");
    const QString cursor = between(sheet, "selected{background:rgba(", ")");
    const QStringList parts = cursor.split(',');
    RowsLook look;
    look.font = fontOf(family, qMax(1, pixels.toInt()));
    look.text = QColor(text);
    look.cursor = QColor(parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt());
    look.isCommon =
        sheet == form.arg(family, pixels, text, cursor) && look.text.isValid() && parts.size() == 3;
    return look;
}

/// The band under the cursor; all else of a row is drawn by its widget.
class CursorBand : public QStyledItemDelegate
{
public:
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        if (option.state & QStyle::State_Selected)
            painter->fillRect(option.rect, option.palette.color(QPalette::Highlight));
    }
};

void setByPalette(QTableWidget &table, const RowsLook &look)
{
    static CursorBand band;
    QPalette palette = table.palette();
    for (QPalette::ColorGroup group : allGroups) {
        const QColor text = group == QPalette::Disabled ? QColor(look::disabled) : look.text;
        for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(group, role, text);
        palette.setColor(group, QPalette::Highlight, look.cursor);
        palette.setColor(group, QPalette::Light,
                         Qt::transparent); // the board's style would edge disabled texts
    }
    table.setItemDelegate(&band);
    table.viewport()->setAutoFillBackground(false);
    table.setPalette(palette);
    table.setFont(look.font);
}
} // namespace

void setNoteLook(QLabel &label, bool english, int pixels)
{
    label.setFont(fontOf(english ? QStringLiteral("Arial") : QStringLiteral("宋体"), pixels));
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, english ? QColor(0x83, 0x81, 0x8c) : QColor(0x70, 0x73, 0x9c));
    label.setPalette(palette);
}

void setRowsLook(QTableWidget &table, const QString &sheet, bool asSheet)
{
    static QHash<QString, RowsLook> looks; // all pages have the same two
    auto look = looks.constFind(sheet);
    if (look == looks.constEnd())
        look = looks.insert(sheet, readRowsLook(sheet));
    if (look->isCommon && !asSheet)
        return setByPalette(table, *look);
    static const QString disabled = look::sheet("*:disabled{color: $disabled;}");
    // A sheet goes to every widget of the page again: only when it differs.
    if (table.styleSheet() != sheet + disabled)
        table.setStyleSheet(sheet + disabled);
}

const QString &menuScrollBarStyle()
{
    static const QString style = [] {
        QFile file(":/resource/qss/VerticalBar.qss");
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }();
    return style;
}

const QPixmap &menuBackground()
{
    static const QPixmap picture = [] {
        const QString path = imgPath + "mainMenu/menu_bg.png";
        QPixmap loaded(path);
        if (loaded.isNull())
            qDebug() << "Set Back Ground faild! path:" << path;
        return loaded;
    }();
    return picture;
}
} // namespace VASK
