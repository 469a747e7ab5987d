#include "framework/protocol/packet/packagebase.h"

namespace VASK
{
std::atomic<unsigned char> PackageBase::serialNum{0};

PackageBase::PackageBase(int timeOut, const QString &tag, CommResults commResult, enum_ProtoType protoType,
                         ReadTypes readType)
    : m_commResult(commResult), m_serialNum(serialNum++), m_tag(tag), m_timeOut(timeOut),
      m_protoType(protoType), m_readType(readType)
{
}

void PackageBase::CacuRevise(const QByteArray &array, int start, int count, unsigned short *result)
{
    constexpr unsigned int seed = 0x5555;
    unsigned int sum = seed;
    for (int i = qMax(start, 0); i < array.size() && i - start < count; ++i)
        sum += static_cast<unsigned char>(array[i]);
    *result = static_cast<unsigned short>(sum);
}

bool PackageBase::ReviseOk(const QByteArray &array, int start, int size)
{
    constexpr int header = 2;
    constexpr int trailer = 2;
    if (array.size() < header + trailer)
        return false;
    unsigned short expected = 0;
    CacuRevise(array, start + header, size - header - trailer, &expected);
    const int end = array.size();
    const auto low = static_cast<unsigned char>(array[end - 2]);
    const auto high = static_cast<unsigned char>(array[end - 1]);
    return expected == (low | high << 8);
}
} // namespace VASK
