// The device as a whole: hands what comes in to the subject that it concerns. Main thread.
#pragma once

#include "emulator/model/subject.h"

class DeviceModel
{
public:
    explicit DeviceModel(FlashImage &flash) : m_registers(flash) {}

    Registers &registers() { return m_registers; }
    const Registers &registers() const { return m_registers; }

    /// Obeys a write of the panel; what the device reports of it.
    Reports obey(const Write &write);
    /// All that the device reports when it has started.
    Reports reports() const;
    /// Takes over what a report tells, so that the device holds it, too; what it reports because of it.
    Reports adopt(const Report &report);
    /// The whole state in plain text: a heading a subject, "  what: value" a line.
    QStringList describe() const;

private:
    Registers m_registers;
};
