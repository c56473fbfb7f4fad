// SPDX-License-Identifier: GPL-3.0-or-later
// The waveform strip: state, geometry, scrolling and input. Painting lives in
// WaveformView+Drawing.cpp.

#include "views/WaveformView.h"

#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"

#include <QEvent>
#include <QMetaObject>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

namespace {
// Playhead moves smaller than this are not worth a repaint.
constexpr double kPositionFilter = 0.03;
} // namespace

WaveformView::WaveformView(AudioManager& engine, NotificationCenter& center, QWidget* parent)
    : QWidget(parent), m_engine(engine), m_center(center)
{
    // Every pixel is painted, so Qt need not clear anything first.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    // Hovering a draggable marker shows the resize cursor.
    setMouseTracking(true);
    m_labelFont = font();
    m_labelFont.setPointSizeF(9.0);

    m_center.addObserver(Notifications::AudioPlaybackPositionDidUpdate, this,
                         [this](const NotificationCenter::Notification& n) {
                             audioPlaybackPositionDidUpdate(n.userInfo);
                         });
    m_center.addObserver(
        Notifications::AudioPlaybackDidPause, this,
        [this](const NotificationCenter::Notification&) { audioPlaybackDidPause(); });
    m_center.addObserver(
        Notifications::AudioPlaybackDidResume, this,
        [this](const NotificationCenter::Notification&) { audioPlaybackDidResume(); });
    attachToViewport();
}

WaveformView::~WaveformView()
{
    m_center.removeObserver(this);
    if (QWidget* viewport = m_viewport.data())
        viewport->removeEventFilter(this);
}

void WaveformView::updateWithSegments(const SegmentList& segments)
{
    // The engine's duration is read with its segments: a later analysis
    // rewrites it on a worker while the strip still shows this file.
    m_totalDuration = m_engine.getTotalDuration();
    // A drag of the old cutting means nothing in the new one.
    if (isDraggingBoundary()) {
        endBoundaryDrag();
        unsetCursor();
    }
    m_segments = segments;
    m_uncertainStarts.clear();
    m_lineNumberCache.clear();
    m_currentSegmentIndex = -1;
    update();
}

void WaveformView::setUncertainStarts(const QSet<qint64>& indices)
{
    if (indices == m_uncertainStarts)
        return;
    m_uncertainStarts = indices;
    update();
}

void WaveformView::updateWaveformData(const QList<float>& peaks)
{
    m_waveformData = peaks;
    update();
}

void WaveformView::setCurrentSegment(qint64 index)
{
    if (index == m_currentSegmentIndex)
        return;
    m_currentSegmentIndex = index;
    if (index < 0 || index >= m_segments.size()) {
        update();
        return;
    }
    const double x = m_pixelsPerSecond * m_segments[index].start;
    const double w =
        index + 1 < m_segments.size()
            ? m_pixelsPerSecond * (m_segments[index + 1].start - m_segments[index].start)
            : width() - x;
    const QRectF v = visibleRect();
    if (x < v.left() || x + w > v.right()) {
        // A fifth of the visible width of margin on each side.
        const double left = x - 0.2 * v.width();
        const double span = w + 0.4 * v.width();
        if (m_painting) {
            // Moving the widget while it paints would upset the paint in
            // progress; scroll as soon as it is over.
            QMetaObject::invokeMethod(
                this, [this, left, span] { scrollToShow(left, span); }, Qt::QueuedConnection);
        } else {
            scrollToShow(left, span);
        }
    }
    update();
}

double WaveformView::superviewWidth() const
{
    if (QWidget* viewport = m_viewport.data())
        return viewport->width();
    return parentWidget() ? parentWidget()->width() : 0.0;
}

int WaveformView::followedHeight() const
{
    const QWidget* viewport = m_viewport.data();
    return viewport ? viewport->height() : height();
}

void WaveformView::updateViewWidth()
{
    double w = superviewWidth();
    if (!m_waveformData.isEmpty())
        w = std::max(w, m_pixelsPerSecond * m_totalDuration);
    resize(static_cast<int>(std::ceil(w)), followedHeight());
    update();
}

void WaveformView::updateContentWidth()
{
    m_totalDuration = m_engine.getTotalDuration();
    const double w = std::max(superviewWidth(), m_totalDuration * m_pixelsPerSecond);
    resize(static_cast<int>(std::ceil(w)), followedHeight());
    updateLineNumbers();
}

qint64 WaveformView::segmentIndexForPoint(const QPointF& point) const
{
    if (m_segments.isEmpty())
        return -1;
    const double t = point.x() / m_pixelsPerSecond;
    const qint64 count = m_segments.size();
    for (qint64 i = 0; i < count; ++i) {
        if (m_segments[i].start <= t && (i == count - 1 || m_segments[i + 1].start > t))
            return i;
    }
    return -1;
}

QRectF WaveformView::visibleRect() const
{
    QWidget* viewport = m_viewport.data();
    if (!viewport)
        return QRectF(rect());
    const QRect shown(mapFrom(viewport, QPoint(0, 0)), viewport->size());
    return QRectF(shown.intersected(rect()));
}

void WaveformView::clearLineNumberCache()
{
    m_lineNumberCache.clear();
}

void WaveformView::updateLineNumbers()
{
    clearLineNumberCache();
    update();
}

void WaveformView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    if (beginBoundaryDrag(event->position()))
        return;
    const qint64 index = segmentIndexForPoint(event->position());
    if (index == -1 || index == m_currentSegmentIndex)
        return;
    setCurrentSegment(index);
    m_center.post(Notifications::MouseDownSelectSegment, QVariant::fromValue<qint64>(index));
}

void WaveformView::audioPlaybackPositionDidUpdate(const QVariantMap& userInfo)
{
    const auto found = userInfo.constFind(QStringLiteral("position"));
    if (found == userInfo.constEnd())
        return;
    bool ok = false;
    const double position = found->toDouble(&ok);
    if (!ok || std::abs(position - m_lastPlaybackPosition) < kPositionFilter)
        return;

    const double old = m_currentPlaybackPosition;
    m_currentPlaybackPosition = position;
    m_lastPlaybackPosition = position;

    // Repaint only the stripe the playhead crossed, with room for its width.
    const double xo = m_pixelsPerSecond * old;
    const double xn = m_pixelsPerSecond * position;
    const double left = std::min(xo, xn) - 4.0;
    const double right = std::max(xo, xn) + 4.0;
    update(QRectF(left, 0.0, right - left, height()).toAlignedRect());

    const QRectF v = visibleRect();
    if (v.left() <= xn && v.right() >= xn + 5.0)
        return;
    // Follow the playhead.
    scrollToShow(xn - 0.2 * v.width(), 0.4 * v.width() + 5.0);
    update();
}

QScrollArea* WaveformView::scrollArea() const
{
    QWidget* viewport = m_viewport.data();
    if (!viewport)
        return nullptr;
    auto* area = qobject_cast<QScrollArea*>(viewport->parentWidget());
    return area && area->viewport() == viewport ? area : nullptr;
}

void WaveformView::attachToViewport()
{
    QWidget* parent = parentWidget();
    auto* area = parent ? qobject_cast<QScrollArea*>(parent->parentWidget()) : nullptr;
    QWidget* viewport = area && area->viewport() == parent ? parent : nullptr;
    if (viewport == m_viewport)
        return;
    if (QWidget* old = m_viewport.data())
        old->removeEventFilter(this);
    m_viewport = viewport;
    // The viewport's size gives the view its height and its least width.
    if (viewport)
        viewport->installEventFilter(this);
    updateViewWidth();
}

void WaveformView::scrollToShow(double left, double span)
{
    QScrollArea* area = scrollArea();
    if (!area)
        return;
    const QRectF v = visibleRect();
    const double right = left + span;
    QScrollBar* bar = area->horizontalScrollBar();
    if (left < v.left() || span >= v.width())
        bar->setValue(static_cast<int>(std::floor(left)));
    else if (right > v.right())
        bar->setValue(static_cast<int>(std::ceil(right - v.width())));
}

void WaveformView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    updateLineNumbers();
}

void WaveformView::showEvent(QShowEvent* event)
{
    // QScrollArea turns background filling on for its widget; every pixel is
    // painted here anyway, so that fill would only cost time.
    setAutoFillBackground(false);
    QWidget::showEvent(event);
}

bool WaveformView::event(QEvent* event)
{
    if (event->type() == QEvent::ParentChange)
        attachToViewport();
    return QWidget::event(event);
}

bool WaveformView::eventFilter(QObject* watched, QEvent* event)
{
    if (filterDragKey(event))
        return true;
    if (watched == m_viewport && event->type() == QEvent::Resize)
        updateViewWidth();
    return QWidget::eventFilter(watched, event);
}
