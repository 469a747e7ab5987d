#include "framework/engine/sourcenames.h"

#include <iterator>

namespace VASK
{
namespace
{
constexpr unsigned familyBits = 0xF0;
constexpr unsigned numberBits = 0x0F;

struct SourceName {
    unsigned char code; ///< its upper four bits
    const char *name;
};

/// A mosaic of SDI inputs has a code of its own, though the look-up by the upper four bits finds plain SDI.
constexpr SourceName sourceNames[] = {
    {0x00, "DVI"},     {0x10, "HDMI1.0"},   {0x20, "VGA"},     {0x30, "SDI "},   {0x34, "SDI MOSAIC"},
    {0x40, "CVBS"},    {0x50, "Dual DVI"},  {0x60, "HDMI1.4"}, {0x70, "DP1.1"},  {0x80, "DP1.2"},
    {0x90, "HDMI2.0"}, {0xA0, "USB-DRIVE"}, {0xB0, "EXT"},     {0xE0, "MOSAIC"}, {0xF0, "Demo"},
};

constexpr const char *inputNames[] = {"HDMI1", "HDMI2", "DVI", "SDI"};
} // namespace

QString inputName(const QString &key)
{
    for (int input = 0; input < int(std::size(inputNames)); ++input)
        if (key == QString::number(input))
            return inputNames[input];
    return {};
}

QString sourceName(unsigned char code)
{
    for (const SourceName &source : sourceNames)
        if (source.code == (code & familyBits))
            return source.name + QString::number((code & numberBits) + 1);
    return {};
}
} // namespace VASK
