// Cabinet configuration files that a board carries, with their index file. Samples.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

constexpr const char *cabinetFolder = "/usr/vask/etc/fpd/cabCfg";

struct CabinetFile {
    QString name;
    QByteArray content;
};

/// The cabinet files and, last, the index "AllCabCfgFileName".
QVector<CabinetFile> cabinetFiles();
