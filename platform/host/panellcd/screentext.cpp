#include "platform/host/panellcd/screentext.h"

#include "platform/host/panellcd/textrecorder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QJsonObject>
#include <QLabel>
#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace
{
// What the menu tells by colour alone: a value that the knob changes, an action that is not to be had.
const QColor editedColour("#ebc613");
const QColor disabledColour("#54535c");

/// A text with all of its lines.
struct Entry {
    QString text;
    QRect place;
    QRegion ink, visible;
    QColor colour;
    QWidget *widget;
    int window; ///< counted from the back
    int line = 0;
    QString role = {};
    QStringList state = {};
};

/// A menu row: the widget in a cell of a table.
struct Cell {
    QAbstractItemView *view = nullptr;
    QWidget *widget = nullptr;
};

Cell cellOf(QWidget *widget)
{
    for (QWidget *at = widget; at && at->parentWidget(); at = at->parentWidget()) {
        auto *view = qobject_cast<QAbstractItemView *>(at->parentWidget()->parentWidget());
        if (view && view->viewport() == at->parentWidget())
            return {view, at};
    }
    return {};
}

/// The view that draws this text itself, null if none does.
QAbstractItemView *drawingView(QWidget *widget)
{
    auto *view = qobject_cast<QAbstractItemView *>(widget->parentWidget());
    return view && view->viewport() == widget ? view : nullptr;
}

class Walk
{
public:
    explicit Walk(const QList<QWindow *> &windows)
        : m_recorder(QGuiApplication::primaryScreen()->logicalDotsPerInch())
    {
        for (auto window = windows.crbegin(); window != windows.crend(); ++window) {
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                if (widget->windowHandle() == *window && widget->isVisible()) {
                    ++m_windows;
                    paint(*widget);
                }
            }
        }
    }

    QVector<Entry> entries() const
    {
        QVector<Entry> entries;
        int last = -1;
        for (const DrawnText &drawn : m_recorder.texts()) {
            QWidget *widget = m_widgets[drawn.widget].widget;
            const bool isNextLine = last == drawn.widget && !drawingView(widget);
            last = drawn.widget;
            if (isNextLine && !entries.isEmpty()) {
                entries.last().text += '\n' + drawn.text.trimmed();
                entries.last().place |= drawn.place.toAlignedRect();
                entries.last().ink |= drawn.ink;
                entries.last().visible |= drawn.visible;
            } else {
                entries.append({drawn.text.trimmed(), drawn.place.toAlignedRect(), drawn.ink, drawn.visible,
                                drawn.colour, widget, m_widgets[drawn.widget].window});
            }
        }
        return entries;
    }

private:
    struct Painted {
        QWidget *widget;
        int window;
    };

    /// The widget and then its children, as they lie over each other.
    void paint(QWidget &widget)
    {
        const QPoint origin = widget.mapToGlobal(QPoint());
        m_recorder.setWidget(m_widgets.size(), origin, widget.visibleRegion().translated(origin));
        m_widgets.append({&widget, m_windows});
        widget.render(&m_recorder, QPoint(), widget.rect(),
                      widget.isWindow() ? QWidget::DrawWindowBackground : QWidget::RenderFlags());
        for (QObject *child : widget.children()) {
            auto *part = qobject_cast<QWidget *>(child);
            if (part && part->isVisible() && !part->isWindow())
                paint(*part);
        }
    }

    TextRecorder m_recorder;
    QVector<Painted> m_widgets;
    int m_windows = 0;
};

/// From the window in front to the back, there line by line.
void sortForReading(QVector<Entry> &entries)
{
    std::stable_sort(entries.begin(), entries.end(), [](const Entry &one, const Entry &other) {
        return one.window != other.window ? one.window > other.window
                                          : one.place.center().y() < other.place.center().y();
    });
    for (int i = 1; i < entries.size(); ++i) {
        const Entry &before = entries[i - 1];
        const bool sameLine =
            before.window == entries[i].window && before.place.bottom() > entries[i].place.center().y();
        entries[i].line = before.line + (sameLine ? 0 : 1);
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry &one, const Entry &other) {
        return one.line != other.line ? one.line < other.line : one.place.left() < other.place.left();
    });
}

QString roleOf(const Entry &entry, const QVector<Entry> &entries)
{
    const Cell cell = cellOf(entry.widget);
    if (drawingView(entry.widget))
        return "list entry";
    if (qobject_cast<QAbstractButton *>(entry.widget))
        return "button";
    if (!cell.widget) {
        const QWidget *window = entry.widget->window();
        const bool isPage = window->findChild<QAbstractItemView *>() != nullptr;
        return isPage ? "title" : qobject_cast<const QDialog *>(window) ? "message" : "home field";
    }
    for (const Entry &other : entries) {
        if (cellOf(other.widget).widget == cell.widget && other.place.left() < entry.place.left())
            return "value";
    }
    return "row label";
}

/// The part of a dialog or of a row that has the focus, or the row under the cursor.
bool isFocused(const Entry &entry)
{
    const QPoint centre = entry.place.center();
    const Cell cell = cellOf(entry.widget);
    if (const QAbstractItemView *view = drawingView(entry.widget) ? drawingView(entry.widget) : cell.view) {
        const QModelIndex index = view->indexAt(view->viewport()->mapFromGlobal(centre));
        return index.isValid() && view->selectionModel() && view->selectionModel()->isSelected(index);
    }
    const QWidget *focus = QApplication::focusWidget();
    return focus && !focus->isWindow() && focus->window() == entry.widget->window() &&
           QRect(focus->mapToGlobal(QPoint()), focus->size()).contains(centre);
}

bool isEnabled(const Entry &entry)
{
    const QAbstractItemView *view = drawingView(entry.widget);
    if (!view)
        return entry.widget->isEnabled();
    const QModelIndex index = view->indexAt(view->viewport()->mapFromGlobal(entry.place.center()));
    return !index.isValid() || index.flags().testFlag(Qt::ItemIsEnabled);
}

bool isUnseen(const Entry &entry)
{
    return entry.text.isEmpty() || entry.visible.isEmpty();
}

bool isCut(const Entry &entry)
{
    const QRegion hidden = entry.ink - entry.visible;
    return std::any_of(hidden.begin(), hidden.end(), [](const QRect &part) {
        return part.width() > 1 && part.height() > 1; // less is a rounded edge
    });
}

QJsonObject toJson(const Entry &entry)
{
    const QWidget *cell = cellOf(entry.widget).widget;
    const QString kind = (cell ? cell : entry.widget)->metaObject()->className();
    const auto *label = qobject_cast<const QLabel *>(entry.widget);
    QJsonObject object{
        {"text", entry.text},
        {"x", entry.place.x()},
        {"y", entry.place.y()},
        {"width", entry.place.width()},
        {"height", entry.place.height()},
        {"role", entry.role},
        {"state", QJsonArray::fromStringList(entry.state)},
        {"colour", entry.colour.name()},
        {"class", kind.section("::", -1)},
        {"name", entry.widget->objectName()},
    };
    if (label && entry.text.endsWith(QChar(0x2026)) && label->text() != entry.text)
        object.insert("whole", label->text());
    if (isCut(entry))
        object.insert("cut", true);
    return object;
}
} // namespace

QJsonArray screenTexts(const QList<QWindow *> &windows)
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return {};
    // What is due to be drawn is drawn first, so that this and the LCD say the same.
    for (const QEvent::Type due : {QEvent::LayoutRequest, QEvent::UpdateRequest, QEvent::UpdateRequest})
        QCoreApplication::sendPostedEvents(nullptr, due);
    QVector<Entry> entries = Walk(windows).entries();
    sortForReading(entries);
    bool listOpen = false;
    for (Entry &entry : entries) {
        entry.role = roleOf(entry, entries);
        listOpen = listOpen || entry.role == "list entry";
    }
    entries.erase(std::remove_if(entries.begin(), entries.end(), isUnseen), entries.end());
    QJsonArray texts;
    for (Entry &entry : entries) {
        const bool focused = isFocused(entry);
        if (focused)
            entry.state << "focused";
        if (entry.colour == editedColour)
            entry.state << "edited";
        if (!isEnabled(entry) || entry.colour == disabledColour)
            entry.state << "disabled";
        if (focused && listOpen && entry.role != "list entry")
            entry.state << "list open";
        texts.append(toJson(entry));
    }
    return texts;
}
