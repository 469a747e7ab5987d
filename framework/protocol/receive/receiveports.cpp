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
        report.parse.report(nth(PARA_PortLink, groupSize * report.member + i), bit(report.u8(), i));
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
        const bool on = bit(report.u8(), 2 * i + 1);
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
    qDebug() << "netState:" << report.u8();
    report.parse.report(PARA_OPT1Link, bit(report.u8(), 0));
    report.parse.report(PARA_OPT2Link, bit(report.u8(), 1));
    return 0;
}

int opticalPortLink(const Report &report, ENUM_MenuIndex first)
{
    for (int i = 0; i < portsOfByte[report.member]; ++i) {
        const int port = byteSize * report.member + i;
        qDebug() << "network" << port << ", netState" << bit(report.u8(), i);
        report.parse.report(nth(first, port), bit(report.u8(), i));
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
        report.parse.report(nth(PARA_PortActive, byteSize * report.member + i), !bit(report.u8(), i));
    return 0;
}

constexpr Family groups{1, int(std::size(portsOfGroup))};
constexpr Family bytes{1, int(std::size(portsOfByte))};

constexpr ReportRow rows[] = {
    report(REG_PortLink_Group1, 0, ParseNetLinkState).needs(1),
    report(REG_PortLink_Group2, 1, ParseNetLinkState).needs(1),
    report(REG_PortLink_Group3, 2, ParseNetLinkState).needs(1),
    report(REG_PortBackup_Group1, 0, ParseNetBackupState).needs(4),
    report(REG_PortBackup_Group2, 1, ParseNetBackupState).needs(4),
    report(REG_PortBackup_Group3, 2, ParseNetBackupState).needs(2),
    report(REG_PortBackupEngaged_Group1, 0, ParseNetBackupOnState).needs(1),
    report(REG_PortBackupEngaged_Group2, 1, ParseNetBackupOnState).needs(1),
    report(REG_PortBackupEngaged_Group3, 2, ParseNetBackupOnState).needs(1),
    report(each(groups, REG_OPT1BackupEngaged), ParseOPT1NetBackupOnState).needs(1),
    report(each(groups, REG_OPT2BackupEngaged), ParseOPT2NetBackupOnState).needs(1),
    report(REG_OPTLink, ParseOPTLinkState).needs(1),
    report(each(bytes, REG_OPT1PortLink), ParseOPT1PortLinkState).needs(1),
    report(each(bytes, REG_OPT2PortLink), ParseOPT2PortLinkState).needs(1),
    report(each(bytes, REG_PortActive), ParsePortACTState).needs(1),
};
} // namespace

Table<ReportRow> portReports()
{
    return rows;
}
} // namespace VASK
