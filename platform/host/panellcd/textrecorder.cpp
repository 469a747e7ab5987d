#include "platform/host/panellcd/textrecorder.h"

#include "fpd_hostlink.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

namespace
{
constexpr double joined = 1.5; ///< pixels between two pieces of one line
constexpr double inchMm = 25.4;
constexpr int opaque = 255;
} // namespace

/// Takes everything, so that the painter hands texts over whole, and keeps texts and opaque areas.
class TextRecorder::Engine : public QPaintEngine
{
public:
    explicit Engine(TextRecorder &recorder) : QPaintEngine(AllFeatures), m_recorder(recorder) {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &state) override
    {
        if (state.state() & DirtyTransform)
            m_transform = state.transform();
        if (state.state() & DirtyPen)
            m_colour = state.pen().color();
        if (state.state() & DirtyBrush)
            m_fills = state.brush().style() == Qt::SolidPattern && state.brush().color().alpha() == opaque;
        if (state.state() & DirtyOpacity)
            m_seen = state.opacity() >= 1;
    }

    void drawTextItem(const QPointF &place, const QTextItem &item) override
    {
        m_recorder.addText(place, item, m_transform, m_colour);
    }
    void drawRects(const QRectF *rects, int count) override
    {
        for (int i = 0; m_fills && i < count; ++i)
            cover(rects[i]);
    }
    void drawRects(const QRect *rects, int count) override
    {
        for (int i = 0; m_fills && i < count; ++i)
            cover(rects[i]);
    }
    void drawPixmap(const QRectF &place, const QPixmap &picture, const QRectF &) override
    {
        if (!picture.hasAlpha())
            cover(place);
    }
    void drawImage(const QRectF &place, const QImage &picture, const QRectF &,
                   Qt::ImageConversionFlags) override
    {
        if (!picture.hasAlphaChannel())
            cover(place);
    }
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawPolygon(const QPoint *, int, PolygonDrawMode) override {}

private:
    void cover(const QRectF &place)
    {
        if (m_seen)
            m_recorder.cover(m_transform.mapRect(place));
    }

    TextRecorder &m_recorder;
    QTransform m_transform;
    QColor m_colour;
    bool m_fills = false;
    bool m_seen = true;
};

TextRecorder::TextRecorder(int dotsPerInch)
    : m_engine(std::make_unique<Engine>(*this)), m_dotsPerInch(dotsPerInch)
{
}

TextRecorder::~TextRecorder() = default;

void TextRecorder::setWidget(int number, const QPoint &origin, const QRegion &clip)
{
    m_widget = number;
    m_origin = origin;
    m_clip = clip;
}

QPaintEngine *TextRecorder::paintEngine() const
{
    return m_engine.get();
}

void TextRecorder::addText(const QPointF &place, const QTextItem &item, const QTransform &transform,
                           const QColor &colour)
{
    const QRectF ink = QFontMetricsF(item.font(), this).tightBoundingRect(item.text()).translated(place);
    const QRectF onLcd = transform.mapRect(ink).translated(m_origin);
    const QRegion inked = onLcd.toAlignedRect(), visible = m_clip & inked;
    const QPointF begin = transform.map(place) + m_origin;
    const QPointF end = transform.map(place + QPointF(item.width(), 0)) + m_origin;
    DrawnText *last = m_texts.isEmpty() ? nullptr : &m_texts.last();
    if (last && last->widget == m_widget && (last->end - begin).manhattanLength() < joined) {
        last->text += item.text();
        last->place |= onLcd;
        last->ink |= inked;
        last->visible |= visible;
        last->end = end;
    } else {
        m_texts.append({item.text(), onLcd, inked, visible, colour, m_widget, end});
    }
}

void TextRecorder::cover(const QRectF &place)
{
    // Only pixels that are wholly covered.
    const QRectF onLcd = place.translated(m_origin);
    const QPoint from(int(std::ceil(onLcd.left())), int(std::ceil(onLcd.top())));
    const QPoint to(int(std::floor(onLcd.right())) - 1, int(std::floor(onLcd.bottom())) - 1);
    const QRegion covered = m_clip & QRect(from, to);
    for (DrawnText &text : m_texts)
        text.visible -= covered;
}

int TextRecorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return hostlink::lcdWidth;
    case PdmHeight:
        return hostlink::lcdHeight;
    case PdmWidthMM:
        return int(hostlink::lcdWidth * inchMm / m_dotsPerInch);
    case PdmHeightMM:
        return int(hostlink::lcdHeight * inchMm / m_dotsPerInch);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return m_dotsPerInch;
    case PdmDepth:
        return 32;
    case PdmNumColors:
        return 1 << 24;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
    }
    return 0;
}
