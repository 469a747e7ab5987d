// A paint device that draws nothing and notes the texts that are drawn on it, as they are drawn: shortened,
// in that colour, at that place. What is painted over with something opaque is no longer visible. GUI thread.
#pragma once

#include <QColor>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QRegion>
#include <QTransform>
#include <QVector>
#include <memory>

/// The texts of one line that follow each other in one widget.
struct DrawnText {
    QString text;
    QRectF place;    ///< of its ink on the LCD
    QRegion ink;     ///< the same, each piece for itself
    QRegion visible; ///< what of it no other drawing has covered
    QColor colour;
    int widget;  ///< the number of the widget that drew it
    QPointF end; ///< on the base line, where a next piece would begin
};

class TextRecorder : public QPaintDevice
{
public:
    explicit TextRecorder(int dotsPerInch);
    ~TextRecorder() override;

    /// What is drawn from now on comes from this widget, at that place of the LCD, and is seen within the
    /// clip.
    void setWidget(int number, const QPoint &origin, const QRegion &clip);
    const QVector<DrawnText> &texts() const { return m_texts; }

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    void addText(const QPointF &place, const QTextItem &item, const QTransform &transform,
                 const QColor &colour);
    void cover(const QRectF &place);

    std::unique_ptr<Engine> m_engine;
    const int m_dotsPerInch;
    int m_widget = 0;
    QPoint m_origin;
    QRegion m_clip;
    QVector<DrawnText> m_texts;
};
