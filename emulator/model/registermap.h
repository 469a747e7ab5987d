// Registers that more than one file knows: their subject, and who makes a new device or resets one. Main
// thread, as all of the device.
#pragma once

#include <QtGlobal>

constexpr quint32 networkRegister = 0x13000006;
constexpr int networkLength = 20;

constexpr quint32 linkRegisters[] = {0x0200001F, 0x0200009F, 0x02000126}; ///< of the ports, a bit a port
constexpr quint32 idleRegister = 0x020001E0;                              ///< a bit a port: nothing goes out
constexpr int idleLength = 2;
constexpr quint32 opticalLinkRegister = 0x020001D7; ///< a bit a link
constexpr quint32 opticalPortRegister = 0x020001F2; ///< a bit a port, two registers a link
constexpr int opticalPortLength = 4;

constexpr quint32 osdRegister = 0x13411000;
constexpr int osdPriorityOffset = 1;
constexpr int osdInFront = 14;
constexpr quint32 osdPictureRegister = 0x13412000; ///< a byte a picture: there is one
constexpr int osdPictureCount = 8;

constexpr quint32 cabinetRegister = 0x02100006; ///< width, then height
constexpr int cabinetLength = 4;
constexpr quint32 screenPortRegister =
    0x02810016; ///< a record a port: rows, columns; the first is the quick form
constexpr quint32 cardGammaRegister = 0x02000000; ///< of the receiving cards
constexpr quint32 cardBrightnessRegister = 0x02000001;
constexpr quint32 cardColoursRegister = 0x02000002; ///< red, green, blue
