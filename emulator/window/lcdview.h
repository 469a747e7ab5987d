// Shows the LCD and follows it: each of its pixels is a square of whole pixels of the screen. An LCD whose
// panel does not run is grey, with the reason on it. Main thread.
#pragma once

#include "emulator/device/lcd.h"

#include <QTimer>
#include <QWidget>

class LcdView : public QWidget
{
    Q_OBJECT
public:
    explicit LcdView(const Lcd &lcd, QWidget *parent = nullptr);

    /// Pixels of the screen to a pixel of the LCD; as many more as the screen has to an inch.
    void setZoom(int zoom);
    /// Why there is nothing to see; empty while the panel runs.
    void setNotice(const QString &notice);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// A whole number of the screen's own pixels.
    int devicePixels() const;
    void paintNotice(QPainter &painter, const QRectF &area) const;

    const Lcd &m_lcd;
    int m_zoom = 2;
    QString m_notice;
    quint64 m_shown = 0;
    QTimer m_look;
};
