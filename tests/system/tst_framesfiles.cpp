// What the rows of the cabinet files send, with more files on the board than the page has rows.
#include "tests/system/framedrive.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QtEndian>

using namespace VASK;

class TestFramesFiles : public FramesTest
{
    Q_OBJECT
    QVector<NamedFrames> table() const override;
    void prepare() override;
};

namespace
{
constexpr int fileCount = 9;
const QString folder = "/usr/vask/etc/fpd/cabCfg/";

/// Name of a file in the index: UTF-16 in a field of 64 bytes.
QByteArray indexField(const QString &name)
{
    constexpr int fieldBytes = 64;
    QByteArray field(fieldBytes, 0);
    for (int i = 0; i < name.size(); ++i)
        qToLittleEndian(name[i].unicode(), field.data() + 2 * i);
    return field;
}
} // namespace

void TestFramesFiles::prepare()
{
    QByteArray index;
    const auto write = [this](const QString &name, const QByteArray &bytes) {
        QFile file(m_panel.file(folder + name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    for (const QString &old : QDir(m_panel.file(folder)).entryList(QDir::Files))
        QVERIFY(QFile::remove(m_panel.file(folder + old)));
    for (int i = 0; i < fileCount; ++i) {
        const QString name = QString("P%1.rcfgx").arg(i + 1);
        QVERIFY(write(name, "cabinet"));
        index += indexField(name);
    }
    QVERIFY(write("AllCabCfgFileName", index + indexField(QString())));
}

QVector<NamedFrames> TestFramesFiles::table() const
{
    QVector<NamedFrames> lines;
    // The first four are driven with the files that the device comes with.
    for (int file = 4; file < 8; ++file) {
        const auto row = ENUM_MenuIndex(MENU_CabinetFile1 + file);
        lines.append({"file " + QByteArray::number(file + 1),
                      {{MENU_AdvancedSetting, MENU_ScreenSetting, MENU_LoadCabFiles, row},
                       "closed2",
                       {QString("0ff001%1 00 01").arg(file, 2, 16, QChar('0'))}}});
    }
    return lines;
}

QTEST_MAIN(TestFramesFiles)
#include "tst_framesfiles.moc"
