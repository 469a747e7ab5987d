// A session of the panel as text: what its user and its device did, and when. One event a line, in the order
// in which they happened:
//
//     MS key WORD                      a key word in hex, as the keypad gave it
//     MS report ADDRESS DEVICE HEX     a report that the device gave on its own
//     MS answered ADDRESS DEVICE HEX   one that a write of the panel led to: the device gives it anew
//     MS write ADDRESS DEVICE HEX      a write that the device pushed
//     MS failed ADDRESS DEVICE ACK HEX an answer with that ack code
//     MS message LARGE SMALL HEX       a message with those labels
//
// MS are milliseconds from the start; what stands behind # is a remark. A last line without its end is cut.
#pragma once

#include "emulator/model/subject.h"

namespace session
{
enum class Kind { key, report, answered, write, failed, message };

struct Event {
    qint64 atMs = 0;
    Kind kind = Kind::key;
    quint16 word = 0;            ///< of a key event
    Report report;               ///< of a report, an answer, a write or a failure
    quint8 ack = 0;              ///< of a failure
    qint16 large = 0, small = 0; ///< labels of a message
    QByteArray payload;          ///< of a message
};

QString toText(const Event &event);
/// Empty, or what is wrong and in which line.
QString parse(const QString &text, QVector<Event> &events);
} // namespace session
