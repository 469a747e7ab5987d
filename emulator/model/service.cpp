#include "emulator/model/service.h"

#include "emulator/model/devicename.h"
#include "emulator/model/factory.h"
#include "emulator/model/selftest.h"
#include "emulator/model/workmode.h"

namespace service
{
namespace
{
constexpr quint32 loadCabinetRegister = 0x0FF00100;
constexpr int cabinetFiles = 8;
constexpr quint32 cabinetLoadedRegister = 0x0FF00000;
constexpr quint32 calibrationRegister = 0x0200009C;
constexpr quint32 lowLatencyRegister = 0x02000074;
constexpr int lowLatencyOn = 120;

// How long the device takes.
constexpr int nextServiceMs = 300;
constexpr int loadCabinetMs = 500;

Reports obeyLoadCabinet(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    obey::store(registers, row, member, write);
    return {{cabinetLoadedRegister, QByteArray(1, 1), loadCabinetMs}};
}

/// Two reports of one register need a pause, since a receiver keeps only the newest.
Reports allReports(const Registers &registers)
{
    return {{lowLatencyRegister, registers.read(lowLatencyRegister, 1)},
            {upRegister, QByteArray(1, 1), 0},
            {upRegister, QByteArray(1, 2), nextServiceMs}};
}

QStringList describe(const Registers &registers)
{
    return {"name: " + devicename::nameOf(registers.flash()), "work mode: " + workmode::text(registers),
            "low latency: " + onOff(registers.u8(lowLatencyRegister) == lowLatencyOn),
            "soft calibration: " + onOff(registers.u8(calibrationRegister) == deviceOn),
            "self test: " + selftest::describe(registers)};
}
} // namespace

Reports calibrate(Registers &registers, bool on)
{
    registers.setU8(calibrationRegister, on ? deviceOn : 0);
    return {{calibrationRegister, registers.read(calibrationRegister, 1)}};
}
} // namespace service

Subject serviceSubject()
{
    return {"device",
            {selftest::row(),
             factory::resetRow(),
             {service::loadCabinetRegister, 1, service::cabinetFiles, 1, service::obeyLoadCabinet},
             {service::lowLatencyRegister, 1, 1, 0, obey::storeAndReport}},
            service::allReports,
            service::describe};
}
