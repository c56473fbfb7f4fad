// SPDX-License-Identifier: GPL-3.0-or-later
// Dragging a segment boundary in the waveform strip. The view only proposes:
// it draws the start where the pointer takes it and reports the new time on
// release; the session moves the cutting and hands the view its new segments.

#include "views/WaveformView.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>

namespace {

// The marker bands in widget coordinates (y down), as the painter draws them.
constexpr double kBandOffset = 20.0; // from the top (upper) or the bottom (lower) edge
constexpr double kMarkerHeight = 15.0;
constexpr double kMarkerHalfWidth = 7.5;
// A few points either side of a marker still take it.
constexpr double kSlack = 3.0;
// How close a dragged start may come to its neighbours.
constexpr double kMinimumGap = 0.1;

} // namespace

qint64 WaveformView::draggableMarkerAt(const QPointF& point) const
{
    const double y = point.y();
    const double h = height();
    const bool inUpper = y >= kBandOffset && y <= kBandOffset + kMarkerHeight;
    const bool inLower = y >= h - kBandOffset - kMarkerHeight && y <= h - kBandOffset;
    const qint64 count = m_segments.size();
    if ((!inUpper && !inLower) || count < 2 || m_waveformData.isEmpty() || m_pixelsPerSecond <= 0)
        return -1;
    // Starts are in order: only the two around the pointer can be nearest.
    const double t = point.x() / m_pixelsPerSecond;
    const auto after = std::lower_bound(m_segments.cbegin() + 1, m_segments.cend(), t,
                                        [](const Segment& s, double v) { return s.start < v; });
    const qint64 k = after - m_segments.cbegin();
    const double extent = std::min(double(width()), m_totalDuration * m_pixelsPerSecond);
    qint64 best = -1;
    double bestDistance = kMarkerHalfWidth + kSlack;
    for (const qint64 i : {k - 1, k}) {
        if (i < 1 || i >= count)
            continue;
        const double x = m_pixelsPerSecond * m_segments[i].start;
        const double distance = std::abs(point.x() - x);
        if (x <= extent && distance <= bestDistance) {
            best = i;
            bestDistance = distance;
        }
    }
    if (best < 0)
        return -1;
    // A start with no room between its neighbours cannot move.
    const double next = best + 1 < count ? m_segments[best + 1].start : m_segments[best].end();
    return next - m_segments[best - 1].start > 2 * kMinimumGap ? best : -1;
}

bool WaveformView::beginBoundaryDrag(const QPointF& point)
{
    const qint64 index = draggableMarkerAt(point);
    if (index < 0)
        return false;
    m_drag = {index, point.x(), m_segments[index].start, m_segments[index].start};
    setCursor(Qt::SplitHCursor);
    // Escape has to reach the strip whichever widget has the focus; not all
    // platforms grant a keyboard grab, so the application's keys are watched.
    QCoreApplication::instance()->installEventFilter(this);
    return true;
}

void WaveformView::dragBoundaryTo(double x)
{
    const qint64 i = m_drag.index;
    const double lower = m_segments[i - 1].start + kMinimumGap;
    const double upper =
        (i + 1 < m_segments.size() ? m_segments[i + 1].start : m_segments[i].end()) - kMinimumGap;
    // Back where it was pressed, the start is exactly where it was.
    const double dx = x - m_drag.pressX;
    const double seconds = dx == 0.0
                               ? m_drag.original
                               : std::clamp(m_drag.original + dx / m_pixelsPerSecond, lower, upper);
    if (seconds == m_drag.seconds)
        return;
    updateBoundaryStripe(m_drag.seconds);
    m_drag.seconds = seconds;
    updateBoundaryStripe(seconds);
}

void WaveformView::endBoundaryDrag()
{
    if (!isDraggingBoundary())
        return;
    updateBoundaryStripe(m_drag.seconds);
    updateBoundaryStripe(m_drag.original);
    m_drag = {};
    QCoreApplication::instance()->removeEventFilter(this);
}

double WaveformView::boundarySeconds(qint64 i) const
{
    return i == m_drag.index ? m_drag.seconds : m_segments[i].start;
}

void WaveformView::updateBoundaryStripe(double seconds)
{
    // The marker's width with a point to spare for antialiasing.
    const double x = m_pixelsPerSecond * seconds;
    const double reach = kMarkerHalfWidth + 2.0;
    update(QRectF(x - reach, 0.0, 2 * reach, height()).toAlignedRect());
}

void WaveformView::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF point = event->position();
    if (isDraggingBoundary()) {
        dragBoundaryTo(point.x());
        return;
    }
    // Only the split cursor is ever set here; touched only when it changes.
    const bool overMarker = draggableMarkerAt(point) >= 0;
    if (overMarker != testAttribute(Qt::WA_SetCursor)) {
        if (overMarker)
            setCursor(Qt::SplitHCursor);
        else
            unsetCursor();
    }
    QWidget::mouseMoveEvent(event);
}

void WaveformView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!isDraggingBoundary() || event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    const QPointF point = event->position();
    const bool inside = QRectF(rect()).contains(point);
    if (inside)
        dragBoundaryTo(point.x());
    const qint64 index = m_drag.index;
    const double seconds = m_drag.seconds;
    const bool moved = inside && seconds != m_drag.original;
    endBoundaryDrag();
    if (draggableMarkerAt(point) < 0)
        unsetCursor();
    if (moved)
        emit boundaryMoved(index, seconds);
}

bool WaveformView::filterDragKey(QEvent* event)
{
    const auto type = event->type();
    if (!isDraggingBoundary() || (type != QEvent::KeyPress && type != QEvent::ShortcutOverride) ||
        static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return false;
    // Claimed before any shortcut can take it; the press that follows cancels.
    event->accept();
    if (type == QEvent::KeyPress)
        endBoundaryDrag();
    return true;
}
