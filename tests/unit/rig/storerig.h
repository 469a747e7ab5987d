// The store in a state folder of its own, in memory where there is such a place: every save ends in a "sync".
#pragma once

#include "boardio.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

namespace storerig
{
const QString folder = "/usr/vask/etc/fpd/config/";
const QStringList names{"config.xml", "config_backup.xml", "config_factory.xml"};

inline QString path(const QString &name)
{
    return board::filePath(folder + name);
}

inline QByteArray contents(const QString &name)
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void write(const QString &name, const QByteArray &bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

inline std::unique_ptr<QTemporaryDir> freshState()
{
    const QString place = QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath();
    auto state = std::make_unique<QTemporaryDir>(place + "/fpdstore-XXXXXX");
    qputenv("FPD_STATE", state->path().toUtf8());
    QDir().mkpath(path(""));
    QDir().mkpath(board::filePath("/fault"));
    return state;
}

/// The store as it stands after its start.
class Store : public VASK::MenuAnalysis
{
public:
    Store() : MenuAnalysis(VASK::ENUM_MENUANALYSIS) { initlize(); }

    void write(VASK::ENUM_MenuIndex index, const QString &value)
    {
        UpdataItemCurValue(index, value);
        slot_updateXml();
    }

    QString value(VASK::ENUM_MenuIndex index = VASK::MENU_ScreenBrightness) const
    {
        QString value;
        GetItemCurValue(index, value);
        return value;
    }
};

/// What the next start finds.
inline QString valueAfterRestart(VASK::ENUM_MenuIndex index = VASK::MENU_ScreenBrightness)
{
    return Store().value(index);
}

inline QByteArray withoutItem(QByteArray file, VASK::ENUM_MenuIndex index)
{
    const int from = file.indexOf("    <Items Index=\"" + QByteArray::number(index) + "\">");
    const QByteArray end = "</Items>\n";
    return file.remove(from, file.indexOf(end, from) + end.size() - from);
}
} // namespace storerig
