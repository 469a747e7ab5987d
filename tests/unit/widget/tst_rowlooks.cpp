// Every row of every page in both languages as the cursor comes to it, under edit with its longest values,
// with each option of its list, with its list open, and disabled: nothing is cut off or overlaps, the cursor
// is seen, all texts of a kind stand on one line. FPD_LOOKS=folder saves contact sheets of them to look at,
// and each by itself to be compared.

#include "client/contactsheet.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/lookrig.h"
#include "widget/page/pagetable.h"
#include "widget/row/icocomboxtable.h"
#include "widget/row/stringcomboxtable.h"

#include <QSet>

using namespace VASK;

namespace
{
const QColor cursorColour(39, 25, 99);
const QColor partColour(57, 57, 173);
const QColor optionColour(62, 62, 189);
const QColor editColour(235, 198, 19);

/// Values that the device tells, as long as they get.
const QMap<ENUM_MenuIndex, QStringList> &longestReported()
{
    static const QMap<ENUM_MenuIndex, QStringList> values{
        {MENU_HDMI1_ColorSample, {"RGB 4:4:4", "YCbCr 4:2:2", "YCbCr 4:4:4", "YCbCr 4:2:0"}},
        {MENU_Preset1, {"Blank", "Saved", "Used"}},
    };
    return values;
}

constexpr QSize stripSize(320, 36); ///< a row of a page

/// Pixels of that colour; a text has its own only in the middle of a stroke.
int countPixels(const QImage &picture, const QRect &place, const QColor &colour, int tolerance = 0)
{
    int count = 0;
    const QRect inside = place & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            count += qAbs(qRed(pixel) - colour.red()) <= tolerance &&
                     qAbs(qGreen(pixel) - colour.green()) <= tolerance &&
                     qAbs(qBlue(pixel) - colour.blue()) <= tolerance;
        }
    return count;
}
} // namespace

class TestRowLooks : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig.reset(new LookRig);
        QVERIFY(m_rig->built);
        m_folder = qEnvironmentVariable("FPD_LOOKS");
    }

    void focused_data() { eachLanguage(); }
    void focused()
    {
        eachRow([this](int) { everyPart("focus"); });
    }

    void edited_data() { eachLanguage(); }
    void edited()
    {
        eachRow([this](int) {
            const OkKind kind = shown().kind->okKind();
            if (kind == OkKind::EditsNumber)
                for (const QString &value : {m_item.min, m_item.max})
                    editNumber(value);
            else if (kind == OkKind::EditsAddress)
                editAddress();
        });
    }

    void disabled_data() { eachLanguage(); }
    void disabled()
    {
        eachRow([this](int) {
            m_item.enable = false;
            store();
            everyPart("disabled");
            m_rig->press(KEY_OK);
            check(!m_page->isEditing(), "OK on a disabled row does something");
            m_item.enable = true;
            store();
            look("enabled again");
        });
    }

    void listed_data() { eachLanguage(); }
    void listed()
    {
        eachRow([this](int) {
            if (shown().kind->okKind() != OkKind::ChoosesFromList || m_row.menuIndex == MENU_Test_VaskImage)
                return;
            if (m_row.controlType == TYPE_MOSAIC) // its options come from the device
                for (const char *source : {"HDMI1", "HDMI2", "DVI1", "DVI2", "OPT1-1", "OPT1-2"})
                    m_item.params[QString::number(m_item.params.size())] = source;
            for (const QString &key : m_item.params.keys())
                openList(key, "option " + key);
            for (const QString &key : m_item.params.keys().mid(1))
                m_item.params1[key] = optionDisable;
            openList(m_item.params.firstKey(), "others disabled");
        });
    }

    void longNames_data() { eachLanguage(); }
    void longNames()
    {
        eachRow([this](int) {
            m_item.tag = "Name of the user for 名字很长的一项";
            store();
            draw("long name");
            keepRow();
            const QWidget &row = *widget(m_page->currentRow());
            for (const QString &fault : cutTexts(row) + overlaps(row))
                check(fault.endsWith(m_item.tag) && !fault.startsWith("overlap"), fault);
            const auto *name = row.findChild<ElidingLabel *>();
            for (const QWidget *part : shownParts(row))
                if (name && part->parentWidget() == &row && part->x() > name->x())
                    check(part->x() - name->geometry().right() > 4, "the name runs into " + textOf(part));
        });
    }

    void reported_data() { eachLanguage(); }
    void reported()
    {
        eachRow([this](int) {
            if (m_row.controlType == TYPE_CHECKITEM) {
                m_item.choice = SELECTED;
                store();
                look("ticked");
            }
            for (const QString &value : longestReported().value(m_row.menuIndex)) {
                m_item.value = value;
                store();
                look(value);
            }
        });
    }

    void cleanup()
    {
        m_strips.reset();
        m_pages.reset();
        for (const QString &fault : qAsConst(m_faults))
            qWarning().noquote() << fault;
        QCOMPARE(m_faults.size(), 0);
    }

private:
    /// Brings the cursor to every row of every page in turn, all with their factory values.
    void eachRow(const std::function<void(int)> &visit)
    {
        m_faults.clear();
        const Language &language = languageOfRow();
        m_rig->speak(language);
        m_rig->home->hide();
        startSheets(QString("%1/%2-%3")
                        .arg(m_folder, QString(language.name).toLower(), QTest::currentTestFunction()));
        for (auto config = g_config.cbegin(); config != g_config.cend(); ++config) {
            m_page = m_rig->pageOf(config.key());
            QVERIFY(m_page);
            m_page->ensurePolished(); // its table is made when it is needed
            m_table = m_page->findChild<QTableWidget *>();
            m_name = QString("%1 %2").arg(int(config.key()), 2, 10, QChar('0')).arg(config->title);
            m_engineMoved = true;
            restore();
            m_page->show();
            QApplication::setActiveWindow(m_page);
            for (int row = 0; row < config->rows; ++row) {
                m_row = config->rowsMap.value(row);
                m_item = g_MenuXmlConfig.value(m_row.menuIndex);
                if (!m_item.focusable || !comeTo(row))
                    continue;
                visit(row);
                restore();
            }
            m_page->hide();
        }
    }

    void startSheets(const QString &name)
    {
        m_kept.clear();
        if (m_folder.isEmpty())
            return;
        m_single = name;
        QDir().mkpath(m_single);
        m_strips.reset(new ContactSheet(name + "-rows", 4, 25, stripSize));
        m_pages.reset(new ContactSheet(name + "-pages", 5, 5, m_rig->home->size()));
    }

    /// The factory values again, but for the language; what differs is drawn again.
    void restore()
    {
        QSet<int> changed{m_row.menuIndex};
        put(m_row.menuIndex, g_MenuXmlConfig.value(m_row.menuIndex));
        if (!m_engineMoved)
            return draw(changed);
        for (auto item = g_MenuXmlConfig.cbegin(); item != g_MenuXmlConfig.cend(); ++item)
            if (put(item.key(), item.value()))
                changed << item.key();
        m_engineMoved = false;
        draw(changed);
    }
    void draw(const QSet<int> &changed)
    {
        const ST_MenuConfig page = pageTable();
        for (int row = 0; row < page.rows; ++row) {
            m_page->setRowHidden(row, false);
            if (changed.contains(page.rowsMap.value(row).menuIndex))
                widget(row)->UpdateALLUI(page.rowsMap.value(row).menuIndex);
        }
    }
    ST_MenuConfig pageTable() const { return g_config.value(ENUM_ConfigIndex(m_name.left(2).toInt())); }
    /// True if the store held something else.
    bool put(ENUM_MenuIndex index, ST_ItemInfo item)
    {
        ST_ItemInfo old;
        if (!m_rig->store->GetMenuItem(index, old))
            return false;
        if (index >= MENU_CabinetFile1 && index <= MENU_CabinetFile8)
            item.enableSelect = true; // as if there were as many files
        if (index == MENU_LanguageEn || index == MENU_LanguageZh)
            item.choice = old.choice;
        if (old == item)
            return false;
        m_rig->store->updataMenuItem(index, item);
        return true;
    }
    /// Shows the item as it is now in m_item.
    void store()
    {
        put(m_row.menuIndex, m_item);
        widget(m_page->currentRow())->UpdateALLUI(m_row.menuIndex);
    }
    /// Ready to be edited.
    void enableWith(const QString &value)
    {
        m_item.value = value;
        m_item.enable = true;
        store();
        m_engineMoved = true;
    }
    VaskUiObject *widget(int row) const { return dynamic_cast<VaskUiObject *>(m_table->cellWidget(row, 0)); }

    /// With the knob, as parts and buttons take their focus from where it comes from.
    bool comeTo(int row)
    {
        const int last = m_page->rowCount() - 1;
        m_page->setCurrentRow(row == 0 ? qMin(1, last) : row - 1);
        for (int turn = 0; turn < 8; ++turn) {
            m_rig->turn(row == 0 ? -1 : 1);
            if (m_page->currentRow() == row)
                return true;
        }
        check(false, QString("the cursor does not come to row %1").arg(row));
        return false;
    }

    ShownRow shown() const { return m_page->table().row(m_page->currentRow()); }

    /// The row as it is, with the cursor on each of its parts.
    void everyPart(const QString &state)
    {
        const int row = m_page->currentRow();
        look(state);
        if (!shown().kind->hasParts())
            return;
        const int direction = row == 0 ? -1 : 1;
        for (int part = 2;; ++part) {
            const QImage before = m_page->grab().toImage();
            m_rig->turn(direction);
            if (m_page->currentRow() != row || m_page->grab().toImage() == before)
                return;
            look(QString("%1, part %2").arg(state).arg(part));
        }
    }

    void editNumber(const QString &value)
    {
        enableWith(value);
        look(value);
        m_rig->press(KEY_OK);
        check(m_page->isEditing(), "OK does not start the edit");
        look(value + " edit");
        check(countPixels(m_picture, rowPlace(), editColour, 60) > 5, "nothing is yellow under edit");
        m_rig->press(KEY_ESC);
        look(value + " after the edit");
    }

    void editAddress()
    {
        enableWith("223.255.255.255");
        for (int number = 1; number <= 4; ++number) {
            m_rig->press(KEY_OK);
            look(QString("edit %1").arg(number));
            check(countPixels(m_picture, rowPlace(), editColour, 60) > 5, "nothing is yellow under edit");
        }
        m_rig->press(KEY_ESC);
        look("after the edit");
    }

    void openList(const QString &key, const QString &state)
    {
        enableWith(key);
        look(state);
        m_rig->press(KEY_OK);
        check(m_page->isEditing(), "OK does not open the list");
        const QWidget *list = m_page->findChild<stringcomboxtable *>();
        if (!list)
            list = m_page->findChild<icocomboxtable *>();
        if (list)
            lookAtList(*list, state);
        else
            check(false, "no list is open");
        m_rig->press(KEY_ESC);
    }
    void lookAtList(const QWidget &list, const QString &state)
    {
        draw(state + ", open");
        if (m_item.value == m_item.params.firstKey() || m_item.value == m_item.params.lastKey())
            keep(m_pages, m_page->rect());
        check(m_page->rect().contains(list.geometry()), "the list reaches out of the LCD");
        checkCursor(list.x());
        const QRect edge(list.x() - 3, rowPlace().top(), 3, rowPlace().height());
        if (m_row.controlType != TYPE_MOSAIC)
            check(countPixels(m_picture, edge, cursorColour) == edge.width() * edge.height(),
                  "the name runs into the list");
        const auto *view = list.findChild<QTableView *>();
        const QModelIndex current = view->currentIndex();
        const QRect cell = view->visualRect(current);
        check(current.isValid() && cell.left() >= 0 && cell.top() >= 0 &&
                  cell.bottom() < view->viewport()->height(),
              "the option is not in sight");
        const QRect onPage(view->viewport()->mapTo(m_page, cell.topLeft()), cell.size());
        check(countPixels(m_picture, onPage, optionColour) > onPage.width() * onPage.height() / 4,
              "the option has no cursor");
        for (int option = 0; option < view->model()->rowCount(); ++option) {
            const QModelIndex index = view->model()->index(option, 0);
            if (view->sizeHintForIndex(index).width() > view->columnWidth(0))
                check(false, "cut off in the list: " + index.data().toString());
        }
        for (const QLabel *picture : view->findChildren<QLabel *>())
            check(!picture->pixmap(Qt::ReturnByValue).isNull() && !isCut(*picture),
                  "a picture of the list is not whole");
    }

    void draw(const QString &state)
    {
        m_state = state;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        m_picture = m_page->grab().toImage();
    }

    /// Puts the row under the cursor on a sheet, unless it was there like this before; a high row with its
    /// page.
    void keepRow()
    {
        const QRect place = rowPlace();
        if (place.height() == stripSize.height())
            keep(m_strips, QRect(QPoint(0, place.top()), stripSize));
        else
            keep(m_pages, m_page->rect());
    }
    void keep(const std::unique_ptr<ContactSheet> &sheet, const QRect &place)
    {
        if (!sheet)
            return;
        const QImage part = m_picture.copy(place);
        const QByteArray bits(reinterpret_cast<const char *>(part.constBits()), int(part.sizeInBytes()));
        if (m_kept.contains(bits))
            return;
        m_kept << bits;
        sheet->add(part);
        const QString name =
            QString("%1 %2 %3 %4.png").arg(m_kept.size(), 4, 10, QChar('0')).arg(m_name, m_item.tag, m_state);
        part.save(m_single + '/' + QString(name).replace('/', '_'));
    }

    /// Draws the page and checks the row under the cursor.
    void look(const QString &state)
    {
        draw(state);
        keepRow();
        const QWidget &row = *widget(m_page->currentRow());
        for (const QString &fault : cutTexts(row) + overlaps(row))
            check(false, fault);
        checkCursor(m_page->width());
        if (m_row.controlType == TYPE_MOSAIC)
            return;
        const auto lines = baselines(row);
        for (auto line = lines.cbegin(); line != lines.cend(); ++line)
            if (qAbs(line.value() - lines.first()) > 1)
                check(false, QString("%1 stands %2 below %3")
                                 .arg(line.key())
                                 .arg(line.value() - lines.first())
                                 .arg(lines.firstKey()));
    }

    QRect rowPlace() const
    {
        const QModelIndex index = m_table->model()->index(m_page->currentRow(), 0);
        const QRect place = m_table->visualRect(index);
        return QRect(m_table->viewport()->mapTo(m_page, place.topLeft()), place.size());
    }
    /// The row is in sight whole and stands out from the others, in what the page shows left of an open list.
    void checkCursor(int width)
    {
        const QRect place = rowPlace();
        check(m_page->rect().contains(place) && place.top() >= m_table->y(), "the row is not in sight");
        const QRect edge(place.left() + 1, place.top(), 4, place.height());
        check(countPixels(m_picture, edge, cursorColour) >= edge.width() * edge.height(), "no cursor");
        const bool hasButton = m_row.controlType == TYPE_APPLY || m_row.controlType == TYPE_APPLYRESET ||
                               m_row.controlType == TYPE_FOURPIC;
        if (hasButton && m_item.enable && width == m_page->width())
            check(countPixels(m_picture, place, partColour) > 500, "no part has the focus");
        if (!m_item.enable && m_state.startsWith("disabled"))
            checkDim(place);
    }
    /// A disabled row has no bright text.
    void checkDim(const QRect &place)
    {
        for (const QWidget *part : shownParts(*widget(m_page->currentRow()))) {
            const QRect at(part->mapTo(static_cast<QWidget *>(m_page), QPoint()), part->size());
            int bright = 0;
            for (int y = at.top(); y <= qMin(at.bottom(), place.bottom()); ++y)
                for (int x = at.left(); x <= qMin(at.right(), 319); ++x)
                    bright += qRed(m_picture.pixel(x, y)) > 0x80;
            check(bright == 0, "not dimmed: " + (textOf(part).isEmpty() ? "picture" : textOf(part)));
        }
    }

    void check(bool right, const QString &fault)
    {
        if (!right)
            m_faults << QString("%1, %2, %3: %4").arg(m_name, m_item.tag, m_state, fault);
    }

    std::unique_ptr<LookRig> m_rig;
    QString m_folder;
    /// Without a folder there are none.
    std::unique_ptr<ContactSheet> m_strips;
    std::unique_ptr<ContactSheet> m_pages;
    QSet<QByteArray> m_kept;
    QString m_single; ///< folder of each picture by itself
    QStringList m_faults;
    MenuDirectory *m_page = nullptr;
    QTableWidget *m_table = nullptr;
    QString m_name; ///< of the page: its number and title
    QString m_state;
    st_MenuItemInfo m_row{};
    ST_ItemInfo m_item;
    bool m_engineMoved = false; ///< an edit may have changed any item
    QImage m_picture;
};

FPD_TEST(TestRowLooks)
#include "tst_rowlooks.moc"
