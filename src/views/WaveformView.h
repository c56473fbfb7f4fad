// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/Segment.h"

#include <QFont>
#include <QHash>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QPointer>
#include <QRectF>
#include <QSet>
#include <QStaticText>
#include <QTransform>
#include <QWidget>
#include <vector>

class AudioManager;
class NotificationCenter;
class QColor;
class QPainter;
class QScrollArea;

// The waveform strip: the whole recording on a time axis, the segment
// boundaries marked, the current segment shaded, the playhead, a time ruler
// and the segment numbers. It sits in a horizontal QScrollArea and is as wide
// as the recording at pixelsPerSecond(). A click selects a segment; a drag of
// a start marker (any but the first) proposes a new boundary, which the view
// reports and leaves to the session to apply.
//
// Shapes are drawn with y growing upward from the bottom edge (one flip in the
// painter), so the bands read from the bottom: ruler 0-20, lower markers
// 20-35, waveform 35..H-35, upper markers H-35..H-20, numbers H-20..H.
class WaveformView : public QWidget
{
    Q_OBJECT
public:
    // Observes the playback position and pause/resume on `center`; reads the
    // duration and the repeat mode from `engine`.
    WaveformView(AudioManager& engine, NotificationCenter& center, QWidget* parent = nullptr);
    ~WaveformView() override;

    void updateWithSegments(const SegmentList& segments);
    void updateWaveformData(const QList<float>& peaks);
    void setCurrentSegment(qint64 index);
    // The segments whose start is an uncertain boundary: drawn in their own
    // colour and solid, draggable like any other. A new segment list clears them.
    void setUncertainStarts(const QSet<qint64>& indices);
    const QSet<qint64>& uncertainStarts() const { return m_uncertainStarts; }
    // Width = the viewport's, or the recording's when there is waveform data.
    void updateViewWidth();
    // Width = the larger of the viewport's and the recording's, data or not.
    void updateContentWidth();

    qint64 segmentIndexForPoint(const QPointF& point) const;
    // True from a press on a draggable marker until its release, Escape, or
    // a new segment list.
    bool isDraggingBoundary() const { return m_drag.index >= 0; }
    qint64 currentSegmentIndex() const { return m_currentSegmentIndex; }
    const SegmentList& segments() const { return m_segments; }
    double pixelsPerSecond() const { return m_pixelsPerSecond; }
    double currentPlaybackPosition() const { return m_currentPlaybackPosition; }
    bool autoUpdatePos() const { return m_autoUpdatePos; }
    void setAutoUpdatePos(bool on) { m_autoUpdatePos = on; }
    // Held for the session controller; the view never calls it.
    void setTranscriptionDelegate(QObject* delegate) { m_transcriptionDelegate = delegate; }
    QObject* transcriptionDelegate() const { return m_transcriptionDelegate; }

    // The part of the view shown in the scroll area's viewport (the whole view
    // outside a scroll area), in view coordinates.
    QRectF visibleRect() const;

    // Empties the label cache; updateLineNumbers() also repaints.
    void clearLineNumberCache();
    void updateLineNumbers();

signals:
    // Segment `index`'s start was dragged to `seconds`: clamped to 0.1 s
    // inside its neighbours, not rounded. Not emitted for a cancelled drag.
    void boundaryMoved(qint64 index, double seconds);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void audioPlaybackPositionDidUpdate(const QVariantMap& userInfo);
    void audioPlaybackDidPause() {}
    void audioPlaybackDidResume() {}

    QScrollArea* scrollArea() const;
    // The width the view is at least as wide as: the viewport's in a scroll
    // area, else the parent's.
    double superviewWidth() const;
    // The viewport's height in a scroll area, else the view's own.
    int followedHeight() const;
    void attachToViewport();
    // Scrolls the least distance that shows [left, left + width).
    void scrollToShow(double left, double width);

    // Dragging a boundary (WaveformView+Drag.cpp). The segment whose start
    // marker is under `point` and can move, or -1.
    qint64 draggableMarkerAt(const QPointF& point) const;
    bool beginBoundaryDrag(const QPointF& point);
    void dragBoundaryTo(double x);
    void endBoundaryDrag();
    // Escape, from whichever widget has the focus, cancels a drag.
    bool filterDragKey(QEvent* event);
    // Where segment i's start is drawn: its start, or where it is being dragged.
    double boundarySeconds(qint64 i) const;
    // Repaints the stripe a start marker at time `seconds` covers.
    void updateBoundaryStripe(double seconds);

    // What one paint works with. x in view coordinates; the dirty span is
    // the part of the visible span this paint has to cover.
    struct Frame
    {
        double width = 0;     // W
        double height = 0;    // H
        double duration = 0;  // D
        double extent = 0;    // E = min(W, D * pixelsPerSecond)
        double visibleX = 0;  // V.x
        double visibleW = 0;  // V.width
        double dirtyLeft = 0; // dirty rectangle, horizontally
        double dirtyRight = 0;
        double scale = 1;    // device pixels per point
        QTransform upward;   // y grows upward from the bottom edge
        QTransform downward; // the painter's own, for text
    };
    // Drawing, each step in the flipped (y-up) coordinates unless it says so.
    void drawShading(QPainter& painter, const Frame& f) const;
    void drawWaveform(QPainter& painter, const Frame& f);
    // The envelope's stroke as one run per device column, in device pixels.
    void drawRuns(QPainter& painter, const Frame& f);
    static void appendColumnRuns(const std::vector<QPointF>& points, const Frame& f,
                                 std::vector<QRect>& runs);
    void drawBoundaries(QPainter& painter, const Frame& f) const;
    void drawTimeRuler(QPainter& painter, const Frame& f);
    void drawPlayhead(QPainter& painter, const Frame& f);
    void drawLineNumbers(QPainter& painter, const Frame& f);
    static void drawTriangle(QPainter& painter, const QRectF& rect, bool inverted, bool rightAngle,
                             bool leftDirection, const QColor& color);
    static void drawDashedSeparator(QPainter& painter, double x, double fromY, double toY);
    static void drawSolidSeparator(QPainter& painter, double x, double fromY, double toY,
                                   const QColor& color);
    const QStaticText& rulerLabel(qint64 seconds);
    const QStaticText& lineNumberLabel(qint64 number);

    AudioManager& m_engine;
    NotificationCenter& m_center;

    SegmentList m_segments;
    QSet<qint64> m_uncertainStarts;
    qint64 m_currentSegmentIndex = -1;
    QList<float> m_waveformData;
    double m_totalDuration = 0.0; // D, as of the segments shown
    double m_pixelsPerSecond = 20.0;
    double m_currentPlaybackPosition = 0.0;
    double m_lastPlaybackPosition = 0.0;
    bool m_autoUpdatePos = true;
    QPointer<QObject> m_transcriptionDelegate;
    QPointer<QWidget> m_viewport; // the scroll area's viewport we follow
    QFont m_labelFont;            // ruler labels and segment numbers

    struct BoundaryDrag
    {
        qint64 index = -1;     // the segment whose start moves; -1 with no drag
        double pressX = 0.0;   // where the press was: the marker keeps its offset
        double original = 0.0; // the start before the drag
        double seconds = 0.0;  // the start as drawn now, clamped
    };
    BoundaryDrag m_drag;

    // Styled labels, made once each: segment numbers by number (emptied with
    // the segment list and on resizes), ruler labels by second.
    QHash<qint64, QStaticText> m_lineNumberCache;
    QHash<qint64, QStaticText> m_rulerLabelCache;
    // Envelope points, kept between paints so that a repaint allocates nothing.
    std::vector<QPointF> m_upperPoints;
    std::vector<QPointF> m_lowerPoints;
    std::vector<QRect> m_runs; // the envelope's strokes, one per device column
    QImage m_envelope;         // where the runs are set before they are laid on the band
    bool m_painting = false;
};
