// The inputs of the device, by a number, as its reports name them. Filled on the report thread, read on every
// thread that sends: each access takes a short lock.
#pragma once

#include <QMap>
#include <QMutex>

namespace VASK
{
/// One input: its place among all inputs of the device and the code by which the device knows it.
struct inputSource {
    unsigned char index = 0;
    unsigned char SourceCode = 0;
};

class InputTable
{
public:
    /// What keyOfCode gives for a code that no input has.
    static constexpr unsigned char noKey = 255;

    void insert(unsigned char key, inputSource source);
    /// The input under a number; index 0 and code 0 if there is none.
    inputSource value(unsigned char key) const;
    /// The lowest number of an input with that code, noKey if there is none.
    unsigned char keyOfCode(unsigned char code) const;
    /// A copy of the whole table, in the order of the numbers.
    QMap<unsigned char, inputSource> entries() const;
    void clear();

private:
    mutable QMutex m_mutex;
    QMap<unsigned char, inputSource> m_entries;
};
} // namespace VASK
