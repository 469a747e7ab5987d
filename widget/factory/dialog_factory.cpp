// The window of the production test: its table, its steps, and how the first of them ends.

#include "widget/factory/dialog_factory.h"

#include "framework/engine/paraprocess.h"
#include "framework/input/keyevent.h"
#include "framework/input/keypadevent.h"
#include "framework/object/transport.h"
#include "framework/protocol/link/proto3rd.h"
#include "menu/keycodes.h"
#include "menu/objectindex.h"
#include "widget/factory/devcheckwin.h"
#include "widget/look.h"
#include "widget/menulook.h"
#include "widget/page/testwindows.h"

#include <QDebug>
#include <QHeaderView>
#include <QScrollBar>
#include <QStyle>
#include <QTableWidget>

using namespace VASK;
using namespace factorycells;

namespace
{
constexpr int columnWidths[columnCount] = {100, 76, 128}; ///< pixels
constexpr int rowHeight = menulook::below.height() / rowCount;
constexpr int cellMargin = 8;

const QString tableStyle =
    QStringLiteral("background-color:rgba(0,0,0,0);font-family: \"宋体\";font-size: 18px;");
const QString waitStyle = look::sheet("font-family: \"宋体\";font-size: 18px;color: $text;");
/// A cell without a result, and a key that was heard.
const QString keyStyle =
    look::sheet("#ItemState[state=false]{color:#F2F2F2;}#ItemState[state=true]{color:$pass;}");
const QString passedStyle = look::sheet("*{color:$pass;}");
const QString failedStyle = look::sheet("*{color:$fail;}");

constexpr int inputPollMs = 200;
constexpr int inOutPollMs = 1000;
constexpr int countdownMs = 2000;
} // namespace

struct Factory::Step {
    _en_factory_step step;
    const char *title;
    void (Factory::*key)(KeypadEvent *event);
};

const Factory::Step *Factory::stepOf(int step)
{
    static const Step steps[] = {
        {FACTORY_STEP_SELF_TEST, "生产测试（1）", &Factory::SelfTestDone},
        {FACTORY_STEP_KEYS, "生产测试（2）", &Factory::KeyTest},
        {FACTORY_STEP_IN_OUT, "生产测试（3）", &Factory::InOutTest},
    };
    const auto found = std::find_if(std::begin(steps), std::end(steps),
                                    [step](const Step &row) { return row.step == step; });
    return found == std::end(steps) ? nullptr : found;
}

Factory::Factory(QWidget *parent)
    : TestScreen(parent), m_table(new QTableWidget(this)), m_wait(new QLabel(this))
{
    qRegisterMetaType<en_inout_test_index>("en_inout_test_index");
    qRegisterMetaType<en_item_state>("en_item_state");
    buildTable();
    m_wait->setText(QStringLiteral("自测试中，请稍等…"));
    m_wait->setStyleSheet(waitStyle);
    m_wait->setAlignment(Qt::AlignCenter);
    m_wait->setGeometry(rect());

    m_inOutPoll.setInterval(inOutPollMs);
    connect(&m_inOutPoll, &QTimer::timeout, this, &Factory::slot_InOutTestDone);
    m_inputPoll.setInterval(inputPollMs);
    m_inputPoll.setTimerType(Qt::PreciseTimer);
    connect(&m_inputPoll, &QTimer::timeout, this, &Factory::slot_InputTestDone);
    m_countdown.setInterval(countdownMs);
    m_countdown.setTimerType(Qt::PreciseTimer);
    m_countdown.setSingleShot(true);
    connect(&m_countdown, &QTimer::timeout, this, &Factory::slot_2StimeOver);
    connectSources();
}

void Factory::connectSources()
{
    if (!poolObject<transport>(ENUM_TRANSPORT)) {
        qDebug() << "transport init fail!";
        return;
    }
    if (auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS)) {
        connect(engine, &ParaProcess::signal_update_menuitem, this, &Factory::slot_UpdateMenuItem,
                Qt::QueuedConnection);
        connect(engine, &ParaProcess::signal_Source_Stable, this, &Factory::slot_Start_CountDown);
    } else {
        qDebug() << "process init fail!";
    }
    if (auto *protocol = poolObject<Proto3rd>(ENUM_PROTOCOINTERFER_3RD))
        connect(protocol, &Proto3rd::signal_update_menuitem, this, &Factory::slot_UpdateMenuItem,
                Qt::QueuedConnection);
    else
        qDebug() << "ProtocolInterface init fail!";
}

void Factory::buildTable()
{
    m_table->setGeometry(menulook::below);
    m_table->setRowCount(rowCount);
    m_table->setColumnCount(columnCount);
    m_table->horizontalHeader()->hide();
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setMinimumSectionSize(1);
    m_table->setShowGrid(false);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setFocusPolicy(Qt::NoFocus);
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->verticalScrollBar()->setStyleSheet(menuScrollBarStyle());
    m_table->setStyleSheet(tableStyle);
    for (int column = 0; column < columnCount; ++column)
        m_table->setColumnWidth(column, columnWidths[column]);
    for (int row = 0; row < rowCount; ++row)
        AddMenuItem(row);
}

void Factory::AddMenuItem(int row)
{
    m_table->setRowHeight(row, rowHeight);
    for (int column = 0; column < columnCount; ++column) {
        auto *label = new QLabel;
        label->setObjectName(QStringLiteral("ItemState"));
        label->setContentsMargins(cellMargin, 0, 0, 0);
        m_cells[row][column].label = label;
        m_table->setCellWidget(row, column, label);
    }
}

void Factory::beginSelfTest()
{
    m_cur_step = FACTORY_STEP_SELF_TEST;
    setTitle(QString::fromUtf8(stepOf(m_cur_step)->title), false);
    m_table->hide();
    m_wait->show();
}

void Factory::InitDisp(int step)
{
    KeyEvent::LightAllOff();
    qDebug() << "InitDisp == " << step;
    const Step *begun = stepOf(step);
    if (!begun)
        return;
    m_cur_step = step;
    m_wait->hide();
    m_table->show();
    setTitle(QString::fromUtf8(begun->title), false);
    for (int row = 0; row < rowCount; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            m_cells[row][column].state = ITEM_UNTESTED;
            UpdateMenuItem(row, column);
        }
    }
    if (step == FACTORY_STEP_IN_OUT) {
        setUpPicture();
        passLinkedPorts();
    }
}

QString Factory::nameOf(int row, int column) const
{
    if (m_cur_step == FACTORY_STEP_KEYS) {
        for (const KeyCell &key : keys)
            if (key.cell.row == row && key.cell.column == column)
                return QLatin1String(key.name);
    } else if (m_cur_step == FACTORY_STEP_IN_OUT) {
        for (int index = 0; index < INOUT_COUNT; ++index) {
            int itsRow = 0, itsColumn = 0;
            if (Index2Coordinate(en_inout_test_index(index), &itsRow, &itsColumn) && itsRow == row &&
                itsColumn == column)
                return QLatin1String(inOut[index].name);
        }
    }
    return QString();
}

void Factory::UpdateMenuItem(int row, int column)
{
    QMutexLocker lock(&m_mutex);
    const Cell &cell = m_cells[row][column];
    cell.label->setText(nameOf(row, column));
    const bool inOutStep = m_cur_step == FACTORY_STEP_IN_OUT;
    cell.label->setProperty("state", !inOutStep && cell.state == ITEM_PASSED);
    if (inOutStep && cell.state != ITEM_UNTESTED)
        cell.label->setStyleSheet(cell.state == ITEM_PASSED ? passedStyle : failedStyle);
    else
        cell.label->setStyleSheet(keyStyle);
    // A style that asks for a property does not see by itself that it has changed.
    cell.label->style()->unpolish(cell.label);
    cell.label->style()->polish(cell.label);
}

bool Factory::allNamed(bool (*condition)(en_item_state state)) const
{
    for (int row = 0; row < rowCount; ++row)
        for (int column = 0; column < columnCount; ++column)
            if (!nameOf(row, column).isEmpty() && !condition(m_cells[row][column].state))
                return false;
    return true;
}

bool Factory::event(QEvent *event)
{
    if (!event)
        return false;
    auto *key = dynamic_cast<KeypadEvent *>(event);
    if (!key)
        return QWidget::event(event);
    if (const Step *step = stepOf(m_cur_step))
        (this->*step->key)(key);
    return true;
}

void Factory::SelfTestDone(KeypadEvent *event)
{
    if (event->key() != KEY_SELF_TEST_DONE)
        return;
    if (event->type() != KEY_PRESSED)
        InitDisp(FACTORY_STEP_KEYS);
    else
        TestWindows::showSelfCheckOfTest(*this);
}
