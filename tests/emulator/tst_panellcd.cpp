// The virtual LCD: what a window draws reaches the mapped file, and windows become active as on the board.
#include "emulator/device/lcd.h"
#include "fpd_hostlink.h"
#include "tests/testprogram.h"

#include <QApplication>
#include <QDialog>
#include <QTemporaryDir>
#include <QTimer>

namespace
{
/// A page in one colour.
class Page : public QWidget
{
public:
    explicit Page(const QColor &colour)
    {
        setWindowFlag(Qt::FramelessWindowHint);
        resize(hostlink::lcdWidth, hostlink::lcdHeight);
        setColour(colour);
    }
    void setColour(const QColor &colour)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, colour);
        setPalette(palette);
    }
};
} // namespace

static void drawOnTheVirtualLcd()
{
    static const QTemporaryDir folder;
    qputenv("FPD_STATE", folder.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "panellcd");
    qputenv("QT_QPA_PLATFORM_PLUGIN_PATH", FPD_PLUGINS);
}

class TestPanelLcd : public QObject
{
    Q_OBJECT
private slots:
    void drawingReachesTheFile()
    {
        Page page(QColor("#3939ad"));
        page.show();
        Lcd lcd(m_folder);
        QTRY_COMPARE(lcd.picture().pixel(0, 0), qRgb(0x39, 0x39, 0xad));
        QCOMPARE(lcd.picture().pixel(319, 239), qRgb(0x39, 0x39, 0xad));
        const quint64 before = lcd.changes();
        page.setColour(QColor("#ebc613"));
        QTRY_COMPARE(lcd.picture().pixel(160, 120), qRgb(0xeb, 0xc6, 0x13));
        QVERIFY(lcd.changes() > before);
    }

    void onlyTheChangedPartIsDrawn()
    {
        Page page(Qt::black);
        page.show();
        Lcd lcd(m_folder);
        QTRY_COMPARE(lcd.picture().pixel(5, 5), qRgb(0, 0, 0));
        QTest::qWait(50);
        const quint64 before = lcd.changes();
        page.update(10, 10, 4, 4);
        QTRY_VERIFY(lcd.changes() > before);
        QTest::qWait(50);
        QCOMPARE(lcd.changes(), before + 1);
    }

    void pageBelowIsActiveAgain()
    {
        Page home(Qt::black), page(Qt::blue);
        home.show();
        page.show();
        QTRY_COMPARE(QApplication::activeWindow(), &page);
        QDialog dialog(&page);
        QTimer::singleShot(50, &dialog, [&dialog] {
            QCOMPARE(QApplication::activeWindow(), &dialog);
            dialog.accept();
        });
        dialog.exec();
        QTRY_COMPARE(QApplication::activeWindow(), &page);
        page.hide();
        QTRY_COMPARE(QApplication::activeWindow(), &home);
        Lcd lcd(m_folder);
        QTRY_COMPARE(lcd.picture().pixel(160, 120), qRgb(0, 0, 0));
    }

private:
    const QString m_folder = qEnvironmentVariable("FPD_STATE");
};

FPD_TEST_IN(TestPanelLcd, Gui, drawOnTheVirtualLcd)
#include "tst_panellcd.moc"
