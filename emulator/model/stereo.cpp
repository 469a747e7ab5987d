// 3D: on the sending side switch, format, eye and where the right eye starts; at the emitter its switch and
// the delay of its signal.
#include "emulator/model/block.h"
#include "emulator/model/subject.h"

namespace
{
constexpr quint32 switchRegister = 0x02000039;
constexpr quint32 eyeRegister = 0x02000041;
constexpr quint32 formatRegister = 0x02000042;
constexpr quint32 startRegister = 0x02000089; ///< side by side, then top and bottom
constexpr int startLength = 4;
constexpr int topOffset = 2;
constexpr quint32 emitterRegister = 0x02000001;
constexpr quint32 delayRegister = 0x02000002;
constexpr int delayLength = 3;
constexpr int ticksPerUs = 125; ///< of 8 ns

enum Format { sideBySide = 40, topAndBottom = 8, frameSequential = 24 };

struct Stereo {
    bool on = false;
    Format format = sideBySide;
    bool rightEyeFirst = false;
    int startSide = 0, startTop = 0;
    bool emitter = false;
    int delayUs = 0;
};

Stereo read(const Registers &registers)
{
    constexpr int rightEye = 50;
    const Block delay(registers.read(stereoEmitter, delayRegister, delayLength), sizeof(qint32));
    Stereo state;
    state.on = registers.u8(switchRegister) == deviceOn;
    state.format = Format(registers.u8(formatRegister));
    state.rightEyeFirst = registers.u8(eyeRegister) == rightEye;
    state.startSide = registers.u16(startRegister);
    state.startTop = registers.u16(startRegister + topOffset);
    state.emitter = registers.read(stereoEmitter, emitterRegister, 1).at(0) != 0;
    state.delayUs = delay.i32(0) / ticksPerUs;
    return state;
}

/// The first number is that of the format in use, which must not reach the other format's start.
Reports obeyStart(Registers &registers, const RegisterRow &, int, const Write &write)
{
    const bool isTop = read(registers).format == topAndBottom;
    const quint32 address = startRegister + (isTop ? topOffset : 0);
    const QByteArray before = registers.read(startRegister, startLength);
    if (isTop && write.address == startRegister && write.bytes.size() == startLength)
        registers.write(address, write.bytes.left(topOffset));
    else
        registers.write(write.address, write.bytes);
    if (before == registers.read(startRegister, startLength))
        return {};
    return {{address, registers.read(address, topOffset)}};
}

Reports noReports(const Registers &)
{
    return {}; // the flash tells all of it at the start
}

QString formatText(Format format)
{
    switch (format) {
    case sideBySide:
        return "side by side";
    case topAndBottom:
        return "top and bottom";
    case frameSequential:
        return "frame sequential";
    }
    return QString("unknown format %1").arg(int(format));
}

QStringList describe(const Registers &registers)
{
    const Stereo state = read(registers);
    return {"3D: " + onOff(state.on), "format: " + formatText(state.format),
            QString("first eye: %1").arg(state.rightEyeFirst ? "right" : "left"),
            QString("right eye starts at %1 side by side, %2 top and bottom")
                .arg(state.startSide)
                .arg(state.startTop),
            QString("emitter: %1, delay %2 us").arg(onOff(state.emitter)).arg(state.delayUs)};
}
} // namespace

/// Switch and delay of the emitter are not told when the panel sets them: it would pass a report of them on
/// to the emitter once more.
Subject stereoSubject()
{
    return {"3D",
            {{switchRegister, 1, 1, 0, obey::storeAndReport},
             {eyeRegister, 1, 1, 0, obey::storeAndReport},
             {formatRegister, 1, 1, 0, obey::storeAndReport},
             {startRegister, startLength, 1, 0, obeyStart},
             {emitterRegister, 1, 1, 0, obey::store, stereoEmitter},
             {delayRegister, delayLength, 1, 0, obey::store, stereoEmitter}},
            noReports,
            describe};
}
