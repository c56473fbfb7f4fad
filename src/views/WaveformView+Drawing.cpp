// SPDX-License-Identifier: GPL-3.0-or-later
// Painting the waveform strip. Shapes are drawn with y growing upward from the
// bottom edge; text is drawn in the widget's own (downward) coordinates at the
// positions the upward geometry gives. Only the visible part of the view is
// visited, and of that only what the dirty rectangle needs.

#include "audio/AudioManager.h"
#include "views/NamedColors.h"
#include "views/WaveformView.h"

#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QPen>
#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr double kRulerHeight = 20.0;
constexpr double kMarkerHeight = 15.0;
constexpr double kWaveBottom = 35.0; // ruler + lower marker band
constexpr double kNumberBand = 20.0;

QColor markerBlue()
{
    return QColor(89, 180, 240);
}

// A start the learner should look at. The marker blue is nearly the sky blue
// of the Okabe-Ito palette, whose orange stays apart from it for every common
// kind of colour blindness; both stand 4.5:1 against the waveform's grey. The
// line is solid and twice as wide, so it differs in shape as well as colour.
QColor uncertainAmber()
{
    return QColor(230, 159, 0);
}

QColor waveformGrey()
{
    return QColor(65, 65, 65);
}

QColor shadingBlue()
{
    QColor c = markerBlue();
    c.setAlphaF(0.3f);
    return c;
}

// Horizontal overlap of [left, right] with the dirty span.
bool touches(double left, double right, double dirtyLeft, double dirtyRight)
{
    return right >= dirtyLeft && left <= dirtyRight;
}

} // namespace

void WaveformView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    Frame f;
    f.width = width();
    f.height = height();
    f.duration = m_totalDuration;
    f.extent = std::min(f.width, f.duration * m_pixelsPerSecond);
    const QRectF visible = visibleRect();
    f.visibleX = visible.x();
    f.visibleW = visible.width();
    const QRect dirty = event->rect();
    f.dirtyLeft = dirty.left();
    f.dirtyRight = dirty.left() + dirty.width();
    // The device painted into decides the pixel density (an image rendered at
    // a ratio of 2 has twice the pixels of the screen it stands for).
    const QPaintEngine* engine = painter.paintEngine();
    const QPaintDevice* target = engine ? engine->paintDevice() : nullptr;
    f.scale = target ? target->devicePixelRatioF() : devicePixelRatioF();
    f.downward = painter.worldTransform();
    f.upward = f.downward;
    f.upward.translate(0.0, f.height);
    f.upward.scale(1.0, -1.0);

    m_painting = true;
    const double H = f.height;
    const double dirtyW = f.dirtyRight - f.dirtyLeft;
    if (H >= 2 * kWaveBottom) {
        // The bands below cover all but the number band and the ruler band:
        // only those two take the background, so no pixel is written twice.
        const QColor background = NamedColors::windowBackground();
        painter.fillRect(QRectF(f.dirtyLeft, 0.0, dirtyW, kNumberBand), background);
        painter.fillRect(QRectF(f.dirtyLeft, H - kRulerHeight, dirtyW, kRulerHeight), background);
    } else {
        painter.fillRect(dirty, NamedColors::windowBackground());
    }
    painter.setWorldTransform(f.upward);
    painter.fillRect(QRectF(f.dirtyLeft, H - kWaveBottom, dirtyW, kMarkerHeight),
                     NamedColors::white());
    painter.fillRect(QRectF(f.dirtyLeft, kRulerHeight, dirtyW, kMarkerHeight),
                     NamedColors::white());
    painter.fillRect(QRectF(f.dirtyLeft, kWaveBottom, dirtyW, H - 2 * kWaveBottom), waveformGrey());

    if (!m_waveformData.isEmpty()) {
        drawShading(painter, f);
        drawWaveform(painter, f);
        drawBoundaries(painter, f);
        drawTimeRuler(painter, f);
        drawPlayhead(painter, f);
        drawLineNumbers(painter, f);
    }
    m_painting = false;
}

void WaveformView::drawShading(QPainter& painter, const Frame& f) const
{
    const qint64 i = m_currentSegmentIndex;
    if (i < 0 || i >= m_segments.size())
        return;
    const double x = m_pixelsPerSecond * m_segments[i].start;
    double w = i + 1 < m_segments.size()
                   ? m_pixelsPerSecond * (m_segments[i + 1].start - m_segments[i].start)
                   : f.extent - x;
    if (!(f.extent > x))
        return;
    w = std::min(w, f.extent - x);
    painter.fillRect(QRectF(x, kWaveBottom, w, f.height - 2 * kWaveBottom), shadingBlue());
}

void WaveformView::drawWaveform(QPainter& painter, const Frame& f)
{
    const auto n = static_cast<qint64>(m_waveformData.size());
    if (f.visibleW <= 0.0 || f.width <= 0.0 || f.extent <= 0.0)
        return;
    const double centre = kWaveBottom + (f.height - 2 * kWaveBottom) * 0.5;
    const double amplitude = (f.height - 2 * kWaveBottom) * 0.5;
    const qint64 first = std::max<qint64>(0, qint64(f.visibleX * double(n) / f.width));
    const qint64 last =
        std::min<qint64>(n, qint64((f.visibleX + f.visibleW) * double(n) / f.width));
    qint64 step = qint64(double(last - first) / (f.visibleW * f.scale));
    if (step < 2)
        step = 1;

    // The same grid of columns as a full paint, cut down to the points whose
    // segments cross the dirty span, so that a thin repaint matches exactly.
    const double perPoint = double(n) / f.extent; // columns per point of x
    const qint64 fromColumn = qint64(std::floor(f.dirtyLeft * perPoint));
    const qint64 toColumn = qint64(std::ceil(f.dirtyRight * perPoint));
    // Neighbours half a line's width (half a device pixel) away still touch the span.
    const double spacing = double(step) * f.extent / double(n);
    const qint64 margin = 2 + qint64(std::ceil(0.5 / f.scale / std::max(spacing, 1e-9)));
    const qint64 kFrom = std::max<qint64>(0, (fromColumn - first) / step - margin);
    const qint64 kTo = (toColumn - first) / step + margin;

    m_upperPoints.clear();
    m_lowerPoints.clear();
    const float* values = m_waveformData.constData();
    for (qint64 k = kFrom, i = first + kFrom * step; k <= kTo && i < last; ++k, i += step) {
        const double x = double(i) * f.extent / double(n);
        if (x > f.extent)
            break;
        const double v = values[i];
        m_upperPoints.emplace_back(x, centre + v * amplitude);
        m_lowerPoints.emplace_back(x, centre - v * amplitude);
    }
    if (m_upperPoints.empty())
        return;
    // One device pixel wide at any pixel ratio: at a ratio of 2 the envelope
    // shows its two points per point instead of the ratio-1 picture enlarged.
    if (spacing * f.scale <= 1.0 + 1e-9) {
        // Points a device pixel apart or closer (the usual case): each stroke
        // is, to the pixel, a vertical run per device column.
        m_runs.clear();
        appendColumnRuns(m_upperPoints, f, m_runs);
        appendColumnRuns(m_lowerPoints, f, m_runs);
        drawRuns(painter, f);
        return;
    }
    QPen pen(NamedColors::systemGreen(), 1.0);
    pen.setCosmetic(true);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.drawPolyline(m_upperPoints.data(), int(m_upperPoints.size()));
    painter.drawPolyline(m_lowerPoints.data(), int(m_lowerPoints.size()));
}

void WaveformView::drawRuns(QPainter& painter, const Frame& f)
{
    if (m_runs.empty())
        return;
    // Thousands of one-pixel-wide rectangles cost Qt far more per call than
    // per pixel; set in a layer of their own and laid over the band in one
    // blit, device pixel for device pixel, they cost a fraction of that.
    QRect bounds;
    for (const QRect& run : m_runs)
        bounds |= run;
    if (m_envelope.width() < bounds.width() || m_envelope.height() < bounds.height())
        m_envelope = QImage(bounds.size().expandedTo(m_envelope.size()),
                            QImage::Format_ARGB32_Premultiplied);
    const qsizetype stride = m_envelope.bytesPerLine();
    uchar* bits = m_envelope.bits();
    for (int y = 0; y < bounds.height(); ++y)
        std::memset(bits + y * stride, 0, std::size_t(bounds.width()) * sizeof(QRgb));
    const QRgb green = NamedColors::systemGreen().rgba(); // opaque: premultiplied as it is
    for (const QRect& run : m_runs) {
        uchar* line = bits + (run.top() - bounds.top()) * stride;
        const int x = run.left() - bounds.left();
        for (int y = 0; y < run.height(); ++y, line += stride)
            reinterpret_cast<QRgb*>(line)[x] = green;
    }
    painter.setWorldTransform(QTransform::fromScale(1.0 / f.scale, 1.0 / f.scale) * f.downward);
    painter.drawImage(bounds.topLeft(), m_envelope, QRect(QPoint(0, 0), bounds.size()));
    painter.setWorldTransform(f.upward);
}

void WaveformView::appendColumnRuns(const std::vector<QPointF>& points, const Frame& f,
                                    std::vector<QRect>& runs)
{
    // In device pixels, y downward. A one-pixel line from point j to j + 1
    // lights the first half of its rise in j's column and the second half in
    // the next one, so column j runs from the midpoint towards j - 1, through
    // j, to the midpoint towards j + 1.
    const auto count = points.size();
    auto deviceY = [&](std::size_t j) { return (f.height - points[j].y()) * f.scale; };
    int column = 0;
    double top = 0.0, bottom = -1.0;
    auto flush = [&] {
        if (bottom < top)
            return;
        const int from = int(std::floor(top));
        runs.emplace_back(column, from, 1, int(std::floor(bottom)) - from + 1);
    };
    for (std::size_t j = 0; j < count; ++j) {
        const double y = deviceY(j);
        const double before = j > 0 ? (deviceY(j - 1) + y) * 0.5 : y;
        const double after = j + 1 < count ? (deviceY(j + 1) + y) * 0.5 : y;
        const double low = std::min({y, before, after});
        const double high = std::max({y, before, after});
        const int c = int(std::floor(points[j].x() * f.scale));
        if (c == column && bottom >= top) {
            top = std::min(top, low);
            bottom = std::max(bottom, high);
            continue;
        }
        flush();
        column = c;
        top = low;
        bottom = high;
    }
    flush();
}

void WaveformView::drawBoundaries(QPainter& painter, const Frame& f) const
{
    const double H = f.height;
    const double vLeft = f.visibleX;
    const double vRight = f.visibleX + f.visibleW;
    const qint64 count = m_segments.size();
    for (qint64 i = 0; i < count; ++i) {
        const double x = m_pixelsPerSecond * boundarySeconds(i);
        if (x > f.extent || x < vLeft || x > vRight)
            continue;
        const bool firstSegment = i == 0;
        const double w = firstSegment ? 12.0 : 15.0;
        const double left = firstSegment ? x : x - 7.5;
        if (touches(left - 1.0, left + w + 1.0, f.dirtyLeft, f.dirtyRight)) {
            const bool uncertain = m_uncertainStarts.contains(i);
            const QColor color = uncertain ? uncertainAmber() : markerBlue();
            if (uncertain)
                drawSolidSeparator(painter, x, kWaveBottom, H - kWaveBottom, color);
            else
                drawDashedSeparator(painter, x, kWaveBottom, H - kWaveBottom);
            drawTriangle(painter, QRectF(left, H - kWaveBottom, w, kMarkerHeight), true,
                         firstSegment, false, color);
            drawTriangle(painter, QRectF(left, kRulerHeight, w, kMarkerHeight), false, firstSegment,
                         false, color);
        }
        // The end of the recording, closing the last segment.
        const double e = f.extent;
        if (i == count - 1 && e >= vLeft - 20.0 && e <= vRight + 20.0 &&
            touches(e - 13.0, e + 1.0, f.dirtyLeft, f.dirtyRight)) {
            drawDashedSeparator(painter, e, kWaveBottom, H - kWaveBottom);
            drawTriangle(painter, QRectF(e - 12.0, H - kWaveBottom, 12.0, kMarkerHeight), true,
                         true, true, markerBlue());
            drawTriangle(painter, QRectF(e - 12.0, kRulerHeight, 12.0, kMarkerHeight), false, true,
                         true, markerBlue());
        }
    }
}

void WaveformView::drawTriangle(QPainter& painter, const QRectF& r, bool inverted, bool rightAngle,
                                bool leftDirection, const QColor& color)
{
    const double x = r.x(), y = r.y(), w = r.width(), h = r.height();
    // Base on the band edge away from the waveform, apex towards it.
    const double base = inverted ? y + h : y;
    const double apexY = inverted ? y : y + h;
    QPointF points[3];
    if (!rightAngle) {
        points[0] = {x, base};
        points[1] = {x + w, base};
        points[2] = {x + w / 2.0, apexY};
    } else if (!leftDirection) {
        points[0] = {x, base};
        points[1] = {x + w, base};
        points[2] = {x, apexY};
    } else {
        points[0] = {x + w, base};
        points[1] = {x, base};
        points[2] = {x + w, apexY};
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(points, 3);
    painter.restore();
}

void WaveformView::drawDashedSeparator(QPainter& painter, double x, double fromY, double toY)
{
    QPen pen(markerBlue(), 1.0);
    pen.setDashPattern({3.0, 3.0});
    pen.setDashOffset(0.0);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.drawLine(QPointF(x, fromY), QPointF(x, toY));
}

void WaveformView::drawSolidSeparator(QPainter& painter, double x, double fromY, double toY,
                                      const QColor& color)
{
    QPen pen(color, 2.0);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.drawLine(QPointF(x, fromY), QPointF(x, toY));
}

void WaveformView::drawTimeRuler(QPainter& painter, const Frame& f)
{
    const double d = f.duration;
    if (d <= 0.0)
        return;
    const double top = kRulerHeight; // r.y + r.height
    const double lo = f.visibleX - 20.0;
    const double hi = f.visibleX + f.visibleW + 20.0;
    // Labels are about 25 points wide; anything further off cannot reach the dirty span.
    const double reach = 40.0;

    painter.setPen(QPen(NamedColors::darkGray(), 1.0));
    for (qint64 t = 0; double(t) <= d; t += 10) {
        const double x = m_pixelsPerSecond * double(t);
        if (x >= lo && x <= hi && touches(x, x, f.dirtyLeft - 1.0, f.dirtyRight + 1.0))
            painter.drawLine(QPointF(x, top), QPointF(x, top - 5.0));
        if (!(d > double(t)))
            continue;
        // Minor ticks run on past the end of the recording up to the next ten.
        for (int k = 1; k <= 9; ++k) {
            const double xk = m_pixelsPerSecond * double(t + k);
            if (xk >= lo && xk <= hi && touches(xk, xk, f.dirtyLeft - 1.0, f.dirtyRight + 1.0))
                painter.drawLine(QPointF(xk, top), QPointF(xk, top - 3.0));
        }
    }

    painter.setWorldTransform(f.downward);
    painter.setFont(m_labelFont);
    for (qint64 t = 0; double(t) <= d; t += 10) {
        const double x = m_pixelsPerSecond * double(t);
        if (x < lo || x > hi || !touches(x - reach, x + reach, f.dirtyLeft, f.dirtyRight))
            continue;
        const QStaticText& label = rulerLabel(t);
        const QSizeF size = label.size();
        double labelX = x - size.width() * 0.5;
        if (t == 0)
            labelX = std::max(0.0, labelX);
        if (double(t) == d)
            labelX = std::min(f.extent - size.width() - 2.0, labelX);
        // Bottom edge 2 points above the view's bottom.
        painter.drawStaticText(QPointF(labelX, f.height - 2.0 - size.height()), label);
    }
    painter.setWorldTransform(f.upward);
}

void WaveformView::drawPlayhead(QPainter& painter, const Frame& f)
{
    const double position = m_currentPlaybackPosition;
    if (!(position > 0.0))
        return;
    const double x = m_pixelsPerSecond * position;
    if (x <= f.extent && x >= f.visibleX - 2.0 && x <= f.visibleX + f.visibleW + 2.0) {
        painter.setPen(QPen(NamedColors::red(), 1.0));
        painter.drawLine(QPointF(x, kRulerHeight), QPointF(x, f.height));
    }
    // The shading follows playback from here, without a timer of its own:
    // once the playhead is past the next start, the next segment is current.
    const qint64 i = m_currentSegmentIndex;
    if (!m_engine.isRepeatMode() && m_autoUpdatePos && i >= 0 && i < m_segments.size() - 1 &&
        position > m_segments[i + 1].start)
        setCurrentSegment(i + 1);
}

void WaveformView::drawLineNumbers(QPainter& painter, const Frame& f)
{
    painter.setWorldTransform(f.downward);
    painter.setFont(m_labelFont);
    painter.setPen(NamedColors::gray());
    const QRectF visible(f.visibleX, 0.0, f.visibleW, f.height);
    // Labels are a few digits wide; a start further off cannot be drawn here.
    const double reach = 60.0;
    const qint64 count = m_segments.size();
    for (qint64 i = 0; i < count; ++i) {
        const double boundary = m_pixelsPerSecond * m_segments[i].start;
        if (!touches(boundary - reach, boundary + reach, f.visibleX, f.visibleX + f.visibleW) ||
            !touches(boundary - reach, boundary + reach, f.dirtyLeft, f.dirtyRight))
            continue;
        const QStaticText& label = lineNumberLabel(i + 1);
        const QSizeF size = label.size();
        const double x = std::max(0.0, boundary - size.width() * 0.5);
        // Centred in the top band.
        const double y = (kNumberBand - size.height()) * 0.5;
        const QRectF box(x, y, size.width(), size.height());
        if (box.intersects(visible))
            painter.drawStaticText(box.topLeft(), label);
    }
    painter.setWorldTransform(f.upward);
}

const QStaticText& WaveformView::rulerLabel(qint64 seconds)
{
    auto found = m_rulerLabelCache.find(seconds);
    if (found == m_rulerLabelCache.end()) {
        const QString text = QString::asprintf("%lld:%.2lld", static_cast<long long>(seconds / 60),
                                               static_cast<long long>(seconds % 60));
        QStaticText label(text);
        label.setTextFormat(Qt::PlainText);
        label.prepare(QTransform(), m_labelFont);
        found = m_rulerLabelCache.insert(seconds, label);
    }
    return *found;
}

const QStaticText& WaveformView::lineNumberLabel(qint64 number)
{
    auto found = m_lineNumberCache.find(number);
    if (found == m_lineNumberCache.end()) {
        QStaticText label(QString::number(number));
        label.setTextFormat(Qt::PlainText);
        label.prepare(QTransform(), m_labelFont);
        found = m_lineNumberCache.insert(number, label);
    }
    return *found;
}
