// The last step of the production test: the inputs one after the other, the outputs and sockets beside them,
// and the count of passed runs.

#include "widget/factory/dialog_factory.h"

#include "framework/engine/device.h"
#include "framework/engine/paraprocess.h"
#include "framework/input/keypadevent.h"
#include "framework/ui/homestates.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "sysconf.h"

#include <QDebug>
#include <QDialog>
#include <QTableWidget>
#include <memory>

using namespace VASK;
using namespace factorycells;

namespace
{
constexpr int stableTicks = 40; ///< of the input poll, eight seconds
constexpr const char *countName = "FACTORY_TEST_COUNT";

/// The device shows a known picture: one layer over the whole of a wall of 8 by 15 cabinets.
struct Setting {
    ENUM_MenuIndex item;
    const char *value;
};
constexpr Setting knownPicture[] = {
    {MENU_Quick_CabinetRow, "8"},      {MENU_Quick_CabinetCol, "15"}, {MENU_Quick_PortOneCab, "12"},
    {MENU_Quick_FlowWay, "1"},         {MENU_MainLayer_Status, "1"},  {MENU_MainLayer_InputSource, "0"},
    {MENU_MainLayer_ScalingMode, "0"}, {MENU_PIP1_Status, "0"},       {MENU_PIP2_Status, "0"},
};

ParaProcess *neededEngine()
{
    auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (!engine)
        qDebug() << "process init fail!";
    return engine;
}

bool isInput(en_inout_test_index index)
{
    return index < INOUT_NET1;
}
} // namespace

bool Factory::Index2Coordinate(en_inout_test_index index, int *row, int *column)
{
    if (index < 0 || index >= INOUT_COUNT)
        return false;
    const QStringList parts = QString::fromLatin1(inOut[index].coordinate).split(QLatin1Char('_'));
    *row = parts.value(0).toInt();
    *column = parts.value(1).toInt();
    return true;
}

Factory::Cell *Factory::cellOf(en_inout_test_index index)
{
    int row = 0, column = 0;
    return Index2Coordinate(index, &row, &column) ? &m_cells[row][column] : nullptr;
}

void Factory::setUpPicture()
{
    if (ParaProcess *engine = neededEngine())
        for (const Setting &setting : knownPicture)
            engine->SetParaToXml(QString::fromLatin1(setting.value), setting.item, SET_XML_USER);
}

/// A cable that is in already is not reported again.
void Factory::passLinkedPorts()
{
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    for (int port = 0; engine && port < NET_PORT_COUNT; ++port)
        if (engine->GetParaFromIndex(nth(PARA_PortLink, port)).toInt() != 0)
            slot_UpdateMenuItem(en_inout_test_index(INOUT_NET1 + port), ITEM_PASSED);
}

void Factory::InOutTest(KeypadEvent *event)
{
    qDebug() << "Factory::InOutTest = " << event->key() << event->type();
    if (event->type() != KEY_RELEASED || event->key() != KEY_OK || m_runOver)
        return;
    if (!m_inOutPoll.isActive())
        m_inOutPoll.start();
    if (m_inputPoll.isActive())
        return;
    for (en_inout_test_index input : {INOUT_HDMI1, INOUT_HDMI2, INOUT_DVI})
        if (cellOf(input)->state == ITEM_UNTESTED)
            return testInput(input);
}

void Factory::testInput(en_inout_test_index input)
{
    ParaProcess *engine = neededEngine();
    if (!engine)
        return;
    engine->SetParaToXml(QString::number(input), MENU_MainLayer_InputSource, SET_XML_USER);
    InputTestNumCur = input;
    qDebug() << "widget/dialog_factory.cpp" << __LINE__ << "InputTestNumCur" << int(input);
    m_inputPoll.start();
    // A cable that is in already is not reported again.
    if (DeviceView(*engine).input(input).signalState == stableSignal)
        slot_Start_CountDown();
}

void Factory::slot_Start_CountDown()
{
    m_lostInCountdown = false;
    Cell *cell = cellOf(en_inout_test_index(InputTestNumCur.load()));
    if (!m_inputPoll.isActive() || m_countdownBegun || !cell)
        return;
    m_countdownBegun = true;
    m_countdown.start();
    cell->state = ITEM_PASSED;
}

void Factory::slot_2StimeOver()
{
    if (m_lostInCountdown) {
        // It was not stable yet: as before, the test waits for it.
        m_countdownBegun = false;
        if (Cell *cell = cellOf(en_inout_test_index(InputTestNumCur.load())))
            cell->state = ITEM_UNTESTED;
        return;
    }
    InputSoureStable = true;
    m_inputPoll.start(); // the eight seconds begin now
}

void Factory::slot_UpdateMenuItem(en_inout_test_index index, en_item_state state)
{
    int row = 0, column = 0;
    if (!Index2Coordinate(index, &row, &column) || m_cur_step != FACTORY_STEP_IN_OUT)
        return;
    if (!isInput(index)) {
        m_cells[row][column].state = state;
        UpdateMenuItem(row, column);
    } else if (index == InputTestNumCur) {
        if (InputSoureStable)
            m_cells[row][column].state = state; // drawn when its test ends
        else
            m_lostInCountdown = state == ITEM_FAILED;
    }
}

void Factory::slot_InputTestDone()
{
    if (!InputSoureStable)
        return;
    const Cell *cell = cellOf(en_inout_test_index(InputTestNumCur.load()));
    ++m_stableTicks;
    if (m_stableTicks >= stableTicks || (cell && cell->state == ITEM_FAILED))
        endInputTest();
}

void Factory::endInputTest()
{
    int row = 0, column = 0;
    if (Index2Coordinate(en_inout_test_index(InputTestNumCur.load()), &row, &column)) {
        if (m_cells[row][column].state != ITEM_PASSED)
            m_cells[row][column].state = ITEM_FAILED;
        UpdateMenuItem(row, column);
    }
    InputSoureStable = false;
    m_stableTicks = 0;
    m_inputPoll.stop();
    m_countdown.stop();
    m_countdownBegun = false;
}

void Factory::slot_InOutTestDone()
{
    if (m_inputPoll.isActive() || !allNamed([](en_item_state state) { return state == ITEM_PASSED; }))
        return;
    ParaProcess *engine = neededEngine();
    if (!engine)
        return;
    // The message stays longer than a tick.
    m_inOutPoll.stop();
    m_runOver = true;
    const std::unique_ptr<QDialog> message(engine->CreateDialog(MSG_InOutTestSaveResult, QString()));
    if (message)
        message->exec();
    m_table->setCurrentCell(1, 1);
    countRun();
}

void Factory::countRun()
{
    if (sysconf_openenv() != 0) {
        qWarning() << "cannot open the environment to count the run";
        return;
    }
    const char *counted = sysconf_getenv(countName);
    const int runs = QByteArray(counted ? counted : "").toInt() + 1;
    if (sysconf_setenv(countName, QByteArray::number(runs).constData()) != 0)
        qWarning() << "cannot store" << countName << runs;
    sysconf_closeenv();
}
