// The production test, which a worker runs on a finished unit from the panel alone: the device's self test,
// every key with its LED three times over, then every input and output. It has the screen and the keys to
// itself until the unit is switched off. GUI thread; what reports and polls tell comes by queued signals.
#pragma once

#include "framework/productiontest/productiontest.h"
#include "widget/factory/factorycells.h"
#include "widget/factory/testscreen.h"

#include <QMutex>
#include <QTimer>

class QTableWidget;

namespace VASK
{
class KeypadEvent;
}

class Factory : public TestScreen, public ProductionTest
{
    Q_OBJECT
public:
    static constexpr int rowCount = factorycells::rowCount;
    static constexpr int columnCount = factorycells::columnCount;

    explicit Factory(QWidget *parent = nullptr);

    /// The first step: the screen asks to wait for the device's self test.
    void beginSelfTest();
    /// Begins a step, an _en_factory_step, with all cells untested.
    void InitDisp(int step);
    /// Builds a row of the table.
    void AddMenuItem(int row);
    /// Draws a cell: its name in the step that runs, coloured by its state.
    void UpdateMenuItem(int row, int column);
    /// Where an input or output has its cell; false if there is none.
    static bool Index2Coordinate(en_inout_test_index index, int *row, int *column);

    bool event(QEvent *event) override;

public slots:
    /// An input or output has passed or failed.
    void slot_UpdateMenuItem(en_inout_test_index index, en_item_state state);
    /// The input under test has a stable signal, which has to stay for two seconds ...
    void slot_Start_CountDown();
    /// ... and from their end on for eight more, ...
    void slot_2StimeOver();
    /// ... which are counted here, five ticks a second.
    void slot_InputTestDone();
    /// Has everything passed? Each second.
    void slot_InOutTestDone();

private:
    struct Step;
    struct Cell {
        QLabel *label = nullptr;
        en_item_state state = ITEM_UNTESTED;
    };

    static const Step *stepOf(int step);
    void buildTable();
    void connectSources();
    QString nameOf(int row, int column) const;
    /// The cell of an input or output; null if it has none.
    Cell *cellOf(en_inout_test_index index);
    /// Does the condition hold for all cells that have a name in this step?
    bool allNamed(bool (*condition)(en_item_state state)) const;

    void SelfTestDone(VASK::KeypadEvent *event);
    void KeyTest(VASK::KeypadEvent *event);
    void endKeyRound();
    void InOutTest(VASK::KeypadEvent *event);
    void setUpPicture();
    void passLinkedPorts();
    void testInput(en_inout_test_index input);
    void endInputTest();
    void countRun();

    QTableWidget *m_table;
    QLabel *m_wait;
    Cell m_cells[rowCount][columnCount];
    QMutex m_mutex; ///< held while a cell is drawn
    int m_keyRounds = 0;

    QTimer m_inOutPoll{this};
    QTimer m_inputPoll{this}; ///< runs as long as an input is under test
    QTimer m_countdown{this};
    bool m_countdownBegun = false;
    bool m_lostInCountdown = false; ///< the input under test has lost its signal again
    int m_stableTicks = 0;
    bool m_runOver = false; ///< all has passed and the run is counted
};
