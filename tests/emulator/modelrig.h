// A device without a bus: writes go in, reports and the flash come out.
#pragma once

#include "emulator/model/devicemodel.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class ModelRig
{
public:
    ModelRig() : flash(m_folder.path()), model(flash) { flash.install(); }

    Reports write(quint32 address, const QByteArray &hex, quint8 deviceType = sendingSide)
    {
        return model.obey({deviceType, address, QByteArray::fromHex(hex)});
    }
    QByteArray flashHex(quint32 address, int length) const { return flash.read(address, length).toHex(); }
    QString shown(const QString &start) const
    {
        for (const QString &line : model.describe()) {
            if (line.trimmed().startsWith(start))
                return line.trimmed();
        }
        return QString();
    }

    static const Report *find(const Reports &reports, quint32 address)
    {
        for (const Report &report : reports) {
            if (report.address == address)
                return &report;
        }
        return nullptr;
    }
    static QByteArray hexOf(const Reports &reports, quint32 address)
    {
        const Report *report = find(reports, address);
        return report ? report->bytes.toHex() : QByteArray("not reported");
    }

private:
    QTemporaryDir m_folder;

public:
    FlashImage flash;
    DeviceModel model;
};
