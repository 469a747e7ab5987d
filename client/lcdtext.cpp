#include "client/lcdtext.h"

#include <QHash>
#include <QPainter>
#include <algorithm>

namespace lcdtext
{
namespace
{
constexpr int smallestPixelSize = 11;
constexpr int largestPixelSize = 32;
constexpr int leastContrast = 40; ///< between text and background, in one colour channel
constexpr int tolerance = 44;     ///< of 255, for other roundings of the edges

/// Text that is aligned to the right or centred begins between two pixels, and each of its glyphs is drawn in
/// the quarter of a pixel where it falls: eighths find them all.
constexpr int phases = 8;
/// Where several glyphs share few of these places, for a text of which the font is known.
constexpr int finePhases = 32;

/// The text as coverage from 0 to 255, cut to what is inked, with a free border of one pixel.
QImage coverage(const QString &text, const QFont &font, double phase)
{
    const QFontMetrics metrics(font);
    QImage picture(metrics.horizontalAdvance(text) + 24, metrics.height() + 12, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QPointF(8 + phase, metrics.ascent() + 4), text);
    painter.end();
    const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    QRect inked;
    for (int y = 0; y < grey.height(); ++y) {
        for (int x = 0; x < grey.width(); ++x) {
            if (grey.constScanLine(y)[x] > 0)
                inked |= QRect(x, y, 1, 1);
        }
    }
    return inked.isEmpty() ? QImage() : grey.copy(inked.adjusted(-1, -1, 1, 1));
}

struct Sample {
    int x;
    int y;
    int coverage;
};

/// The pixels to compare, the telling ones first: full ink, no ink, then the edges.
QVector<Sample> samples(const QImage &mask)
{
    QVector<Sample> all;
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x)
            all.append({x, y, mask.constScanLine(y)[x]});
    }
    const auto rank = [](const Sample &sample) { return qMin(sample.coverage, 255 - sample.coverage) / 8; };
    std::stable_sort(all.begin(), all.end(), [&rank](const Sample &one, const Sample &other) {
        return rank(one) != rank(other) ? rank(one) < rank(other) : one.coverage > other.coverage;
    });
    return all;
}

int channel(QRgb colour, int number)
{
    return int(colour >> (8 * number)) & 0xff;
}

/// How one place of the screen is compared with a text.
class Match
{
public:
    Match(const QImage &screen, const QImage &mask) : m_screen(screen), m_samples(samples(mask))
    {
        const auto most =
            std::max_element(m_samples.cbegin(), m_samples.cend(),
                             [](const auto &a, const auto &b) { return a.coverage < b.coverage; });
        m_inked = *most;
    }

    bool standsAt(int left, int top) const
    {
        // The corner of the free border is background, the darkest pixel is ink.
        const QRgb paper = pixel(left, top);
        const QRgb ink = pixel(left + m_inked.x, top + m_inked.y);
        int contrast = 0;
        for (int c = 0; c < 3; ++c)
            contrast = qMax(contrast, qAbs(channel(ink, c) - channel(paper, c)));
        if (contrast < leastContrast)
            return false;
        for (const Sample &sample : m_samples) {
            const QRgb seen = pixel(left + sample.x, top + sample.y);
            for (int c = 0; c < 3; ++c) {
                const int from = channel(paper, c);
                const int wanted = from + (channel(ink, c) - from) * sample.coverage / m_inked.coverage;
                if (qAbs(channel(seen, c) - wanted) > tolerance * contrast / 255 + 4)
                    return false;
            }
        }
        return true;
    }

private:
    QRgb pixel(int x, int y) const { return reinterpret_cast<const QRgb *>(m_screen.constScanLine(y))[x]; }

    const QImage &m_screen;
    QVector<Sample> m_samples;
    Sample m_inked{};
};
QRect findPhase(const QImage &screen, const QString &text, const QFont &font, const QRect &area, double phase)
{
    const QImage mask = coverage(text, font, phase);
    const QRect within = area.isNull() ? screen.rect() : area & screen.rect();
    if (mask.isNull())
        return QRect();
    const Match match(screen, mask);
    for (int y = within.top(); y + mask.height() <= within.bottom() + 1; ++y) {
        for (int x = within.left(); x + mask.width() <= within.right() + 1; ++x) {
            if (match.standsAt(x, y))
                return QRect(x, y, mask.width(), mask.height()).adjusted(1, 1, -1, -1);
        }
    }
    return QRect();
}

QRect findInPhases(const QImage &screen, const QString &text, const QFont &font, const QRect &area, int count)
{
    for (int phase = 0; phase < count; ++phase) {
        const QRect place = findPhase(screen, text, font, area, double(phase) / count);
        if (!place.isEmpty())
            return place;
    }
    return QRect();
}
} // namespace

QRect find(const QImage &screen, const QString &text, const QFont &font, const QRect &area)
{
    return findInPhases(screen, text, font, area, finePhases);
}

QRect find(const QImage &screen, const QString &text, const QRect &area)
{
    for (const char *family : {"Arial", "宋体"}) {
        for (int size = smallestPixelSize; size <= largestPixelSize; ++size) {
            for (bool bold : {false, true}) {
                QFont font(QString::fromUtf8(family));
                font.setPixelSize(size);
                font.setBold(bold);
                const QRect place = findInPhases(screen, text, font, area, phases);
                if (!place.isEmpty())
                    return place;
            }
        }
    }
    return QRect();
}

QRgb background(const QImage &screen, const QRect &area)
{
    QHash<QRgb, int> counts;
    const QRect within = area & screen.rect();
    QRgb most = 0;
    for (int y = within.top(); y <= within.bottom(); ++y) {
        for (int x = within.left(); x <= within.right(); ++x) {
            const QRgb colour = screen.pixel(x, y);
            if (++counts[colour] > counts.value(most))
                most = colour;
        }
    }
    return most;
}
} // namespace lcdtext
