// The finder of texts on the LCD must find what stands there and nothing else.
#include "testkit/lcdtext.h"
#include "tests/testprogram.h"

#include <QLabel>
#include <QTest>

class TestLcdText : public QObject
{
    Q_OBJECT
private slots:
    void findsLabels_data();
    void findsLabels();
    void fontsAreTheBoards();
};

void TestLcdText::findsLabels_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QString>("style");
    const QString chinese = QString::fromUtf8("屏幕亮度");
    QTest::newRow("english") << "ScreenBrightness"
                             << "ScreenBrightnes5"
                             << "font-family:Arial;font-size:16px;color:#b8b4cc";
    QTest::newRow("bold") << "65%"
                          << "66%"
                          << "font-family:Arial;font-size:20px;font-weight:bold;color:#ebc613";
    QTest::newRow("small and dim") << "192.168.0.10"
                                   << "192.168.0.11"
                                   << "font-family:Arial;font-size:13px;color:#54535c";
    QTest::newRow("chinese") << chinese << QString::fromUtf8("屏幕高度")
                             << QString::fromUtf8("font-family:宋体;font-size:16px;color:#b8b4cc");
}

void TestLcdText::findsLabels()
{
    QFETCH(QString, text);
    QFETCH(QString, other);
    QFETCH(QString, style);
    QLabel screen;
    screen.setStyleSheet("background:#10101c");
    screen.resize(320, 240);
    QLabel label(text, &screen);
    label.setStyleSheet(style);
    label.setGeometry(37, 91, 200, 30);
    const QImage picture = screen.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QVERIFY(label.geometry().contains(lcdtext::find(picture, text)));
    QVERIFY(lcdtext::find(picture, other).isEmpty());
    QVERIFY(lcdtext::find(picture, text, QRect(0, 0, 320, 90)).isEmpty());
}

void TestLcdText::fontsAreTheBoards()
{
    QCOMPARE(QFontInfo(QFont("Arial")).family(), QString("Liberation Sans"));
    QVERIFY(QFontInfo(QFont(QString::fromUtf8("宋体"))).family().startsWith("WenQuanYi Zen Hei"));
}

FPD_TEST(TestLcdText)
#include "tst_lcdtext.moc"
