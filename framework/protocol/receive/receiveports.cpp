// Reports about the Ethernet ports and the optical links. The device tells the ten ports in groups, a
// register a group.
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "menu/itemindex.h"

#include <QDebug>
#include <iterator>

namespace VASK
{
namespace
{
constexpr int portsOfGroup[] = {4, 4, 2};
constexpr int groupSize = 4;
constexpr int portsOfByte[] = {8, 2};
constexpr int byteSize = 8;

bool bit(int byte, int number)
{
    return (byte >> number & 1) != 0;
}

int ParseNetLinkState(const Report &report)
{
    for (int i = 0; i < portsOfGroup[report.member]; ++i)
        report.parse.report(nth(PARA_PortLink, groupSize * report.member + i), bit(report.u8(0), i));
    return 0;
}

int ParseNetBackupState(const Report &report)
{
    constexpr int isBackup = 0x80;
    for (int i = 0; i < portsOfGroup[report.member]; ++i) {
        const bool backup = report.u8(i) == isBackup;
        qDebug() << "Backup == " << backup;
        report.parse.report(nth(PARA_PortBackup, groupSize * report.member + i), backup);
    }
    return 0;
}

/// Two bits a port, of which the upper one says that the backup is engaged.
int backupEngaged(const Report &report, ENUM_MenuIndex first)
{
    for (int i = 0; i < portsOfGroup[report.member]; ++i) {
        const bool on = bit(report.u8(0), 2 * i + 1);
        qDebug() << "BackupOn == " << on;
        report.parse.report(nth(first, groupSize * report.member + i), on);
    }
    return 0;
}

int ParseNetBackupOnState(const Report &report)
{
    return backupEngaged(report, PARA_PortBackupEngaged);
}

int ParseOPT1NetBackupOnState(const Report &report)
{
    return backupEngaged(report, PARA_OPT1BackupEngaged);
}

int ParseOPT2NetBackupOnState(const Report &report)
{
    return backupEngaged(report, PARA_OPT2BackupEngaged);
}

int ParseOPTLinkState(const Report &report)
{
    qDebug() << "netState:" << report.u8(0);
    report.parse.report(PARA_OPT1Link, bit(report.u8(0), 0));
    report.parse.report(PARA_OPT2Link, bit(report.u8(0), 1));
    return 0;
}

int opticalPortLink(const Report &report, ENUM_MenuIndex first)
{
    for (int i = 0; i < portsOfByte[report.member]; ++i) {
        const int port = byteSize * report.member + i;
        qDebug() << "network" << port << ", netState" << bit(report.u8(0), i);
        report.parse.report(nth(first, port), bit(report.u8(0), i));
    }
    return 0;
}

int ParseOPT1PortLinkState(const Report &report)
{
    return opticalPortLink(report, PARA_OPT1PortLink);
}

int ParseOPT2PortLinkState(const Report &report)
{
    return opticalPortLink(report, PARA_OPT2PortLink);
}

/// A set bit tells of a port at rest.
int ParsePortACTState(const Report &report)
{
    for (int i = 0; i < portsOfByte[report.member]; ++i)
        report.parse.report(nth(PARA_PortActive, byteSize * report.member + i), !bit(report.u8(0), i));
    return 0;
}

constexpr ReportRow rows[] = {
    {0x0200001F, 0, 1, 0, 1, ParseNetLinkState},         {0x0200009F, 0, 1, 1, 1, ParseNetLinkState},
    {0x02000126, 0, 1, 2, 1, ParseNetLinkState},         {0x02000018, 0, 1, 0, 4, ParseNetBackupState},
    {0x02000098, 0, 1, 1, 4, ParseNetBackupState},       {0x02000100, 0, 1, 2, 2, ParseNetBackupState},
    {0x0200001E, 0, 1, 0, 1, ParseNetBackupOnState},     {0x0200009E, 0, 1, 1, 1, ParseNetBackupOnState},
    {0x02000120, 0, 1, 2, 1, ParseNetBackupOnState},     {0x020001F6, 1, 3, 0, 1, ParseOPT1NetBackupOnState},
    {0x020001F9, 1, 3, 0, 1, ParseOPT2NetBackupOnState}, {0x020001D7, 0, 1, 0, 1, ParseOPTLinkState},
    {0x020001F2, 1, 2, 0, 1, ParseOPT1PortLinkState},    {0x020001F4, 1, 2, 0, 1, ParseOPT2PortLinkState},
    {0x020001E0, 1, 2, 0, 1, ParsePortACTState},
};
} // namespace

ReportFamily portReports()
{
    return {rows, static_cast<int>(std::size(rows))};
}
} // namespace VASK
