// What the commands to the device send that take it some seconds: cabinet files, with more of them on the
// board than the page has rows, saving, self test.
#include "tests/system/frames/framedrive.h"
#include "tests/testprogram.h"

#include <QDir>
#include <QFile>

using namespace VASK;
using frames::path;

class TestFramesSystem : public FramesTest
{
    QVector<NamedFrames> table() const override
    {
        constexpr int fileRows = 8;
        QVector<NamedFrames> lines{
            {"save, refused", path(MENU_AdvancedSetting, MENU_ScreenSetting, MENU_SavetoRVCard), "no", ""},
            {"save", path(MENU_AdvancedSetting, MENU_ScreenSetting, MENU_SavetoRVCard), "yes closed2",
             "01000011 01 00"},
            {"self test, refused", path(MENU_SystemSetting, MENU_SelfTest), "no", ""},
            {"self test", path(MENU_SystemSetting, MENU_SelfTest), "yes closed esc", "13800000 00 00"},
        };
        // A register for each row. Each takes seven seconds of messages, so only the ends are tried.
        for (int file : {0, fileRows - 1})
            lines.append({"file " + QByteArray::number(file + 1),
                          path(MENU_AdvancedSetting, MENU_ScreenSetting, MENU_LoadCabFiles,
                               ENUM_MenuIndex(MENU_CabinetFile1 + file)),
                          "closed2",
                          {QString("0ff001%1 00 01").arg(file, 2, 16, QChar('0'))}});
        return lines;
    }

    void prepare() override
    {
        constexpr int fileCount = 9, fieldBytes = 64;
        const QDir folder(m_panel.file("/usr/vask/etc/fpd/cabCfg"));
        for (const QString &old : folder.entryList(QDir::Files))
            QVERIFY(QFile::remove(folder.filePath(old)));
        const auto write = [&folder](const QString &name, const QByteArray &bytes) {
            QFile file(folder.filePath(name));
            return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        };
        // Names in the index: UTF-16, the last field is empty.
        QByteArray index;
        for (int i = 0; i < fileCount; ++i) {
            const QString name = QString("P%1.rcfgx").arg(i + 1);
            QVERIFY(write(name, "cabinet"));
            index += QByteArray(reinterpret_cast<const char *>(name.utf16()), 2 * name.size())
                         .leftJustified(fieldBytes, '\0');
        }
        QVERIFY(write("AllCabCfgFileName", index + QByteArray(fieldBytes, '\0')));
    }
};

FPD_TEST(TestFramesSystem)
