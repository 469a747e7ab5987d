// Sound of the device and of its inputs, and whether the inputs take protected pictures.
#include "emulator/model/subject.h"

namespace
{
struct Audio {
    int output = 1; ///< 0 off, 1 to 3 the layers, 240 line in
    int volume = 50;
};

constexpr quint32 outputRegister = 0x1300009E; ///< output, then volume
constexpr int outputLength = 2;
constexpr quint32 protectionRegister = 0x13019004;
constexpr quint32 inputRegister = 0x13019005;
constexpr quint32 inputStride = 16;
constexpr int inputCount = 8;
constexpr quint32 reportOffset = 16; ///< reports count the inputs from one on
constexpr const char *inputNames[inputCount] = {"hdmi1", "hdmi2", "dvi",  "dvi2",
                                                "sdi",   "opt1",  "opt2", "mosaic"};

Audio read(const Registers &registers)
{
    return {registers.u8(outputRegister), registers.u8(outputRegister + 1)};
}

Report inputReport(const Registers &registers, int input)
{
    const quint32 address = inputRegister + inputStride * quint32(input);
    return {address + reportOffset, registers.read(address, 1)};
}

Reports obeyInput(Registers &registers, const RegisterRow &row, int input, const Write &write)
{
    const Reports reports = obey::storeAndReport(registers, row, input, write);
    return reports.isEmpty() ? Reports() : Reports{inputReport(registers, input)};
}

Reports allReports(const Registers &registers)
{
    Reports list = {{outputRegister, registers.read(outputRegister, outputLength)}};
    for (int input = 0; input < inputCount; ++input)
        list.append(inputReport(registers, input));
    return list;
}

QString outputText(int output)
{
    constexpr int lineIn = 240;
    constexpr const char *names[] = {"off", "main layer", "PIP 1", "PIP 2"};
    if (output == lineIn)
        return "line in";
    return output < int(std::size(names)) ? names[output] : QString("unknown %1").arg(output);
}

QString soundText(int sound)
{
    constexpr const char *names[] = {"none", "embedded", "audio in"};
    return sound < int(std::size(names)) ? names[sound] : QString("unknown %1").arg(sound);
}

QStringList describe(const Registers &registers)
{
    const Audio audio = read(registers);
    QStringList lines = {"audio output: " + outputText(audio.output), QString("volume: %1").arg(audio.volume),
                         "protected pictures: " + onOff((registers.u8(protectionRegister) & 1) == 0)};
    for (int input = 0; input < inputCount; ++input)
        lines.append(QString("sound of %1: %2")
                         .arg(inputNames[input])
                         .arg(soundText(registers.u8(inputRegister + inputStride * quint32(input)))));
    return lines;
}
} // namespace

Subject audioSubject()
{
    return {"audio",
            {{outputRegister, outputLength, 1, 0, obey::storeAndReport},
             {inputRegister, 1, inputCount, inputStride, obeyInput}},
            allReports,
            describe};
}
