// What the production test tests, a row a thing: the keys of its second step, the inputs and outputs of its
// third, and where in the table each has its cell.
#pragma once

#include "framework/productiontest/productiontest.h"
#include "menu/keycodes.h"
#include "menu/ledindex.h"

#include <QString>

namespace factorycells
{
constexpr int rowCount = 8;
constexpr int columnCount = 3;

struct Cell {
    int row;
    int column;
};

constexpr int noLed = -1;

struct KeyCell {
    unsigned char key;
    const char *name;
    Cell cell;
    int led; ///< an ENUM_LedIndex, noLed for none
};

constexpr KeyCell keys[] = {
    {VASK::KEY_MAIN, "MAIN", {0, 0}, VASK::LED_MAIN},
    {VASK::KEY_PIP1, "PIP1", {1, 0}, VASK::LED_PIP1},
    {VASK::KEY_PIP2, "PIP2", {2, 0}, VASK::LED_PIP2},
    {VASK::KEY_SCALE, "SCALE", {3, 0}, VASK::LED_SCALE},
    {VASK::KEY_INPUT1, "HDMI1", {0, 1}, VASK::LED_INPUT1},
    {VASK::KEY_INPUT2, "HDMI2", {1, 1}, VASK::LED_INPUT2},
    {VASK::KEY_INPUT3, "DVI1", {2, 1}, VASK::LED_INPUT3},
    {VASK::KEY_INPUT4, "SDI", {3, 1}, VASK::LED_INPUT4},
    {VASK::KEY_KNOB_RIGHT, "DOWN", {0, 2}, noLed},
    {VASK::KEY_KNOB_LEFT, "UP", {1, 2}, noLed},
    {VASK::KEY_ESC, "ESC", {2, 2}, noLed},
    {VASK::KEY_PRESET, "PRESET", {3, 2}, VASK::LED_PRESET},
    {VASK::KEY_FN, "FN", {4, 2}, VASK::LED_FN},
};

struct InOutCell {
    const char *name;
    const char *coordinate; ///< row and column, joined by "_"
};

/// By en_inout_test_index.
constexpr InOutCell inOut[] = {
    {"HDMI1", "0_0"}, {"HDMI2", "1_0"},  {"DVI", "2_0"},     {"NET1", "0_1"},
    {"NET2", "1_1"},  {"NET3", "2_1"},   {"NET4", "3_1"},    {"NET5", "4_1"},
    {"NET6", "5_1"},  {"USB-IN", "0_2"}, {"ETHRNET", "1_2"},
};
static_assert(sizeof inOut / sizeof *inOut == INOUT_COUNT);
} // namespace factorycells
