#include "framework/protocol/inputtable.h"

namespace VASK
{
void InputTable::insert(unsigned char key, inputSource source)
{
    QMutexLocker lock(&m_mutex);
    m_entries.insert(key, source);
}

inputSource InputTable::value(unsigned char key) const
{
    QMutexLocker lock(&m_mutex);
    return m_entries.value(key);
}

unsigned char InputTable::keyOfCode(unsigned char code) const
{
    QMutexLocker lock(&m_mutex);
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry)
        if (entry->SourceCode == code)
            return entry.key();
    return noKey;
}

QMap<unsigned char, inputSource> InputTable::entries() const
{
    QMutexLocker lock(&m_mutex);
    return m_entries;
}

void InputTable::clear()
{
    QMutexLocker lock(&m_mutex);
    m_entries.clear();
}
} // namespace VASK
