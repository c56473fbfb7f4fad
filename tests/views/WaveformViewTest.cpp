// SPDX-License-Identifier: GPL-3.0-or-later
// The waveform strip's size, drawing, hit testing and playhead.

#include "WaveformViewFixture.h"
#include "views/NamedColors.h"

#include <QTest>
#include <set>

TEST_F(WaveformViewTest, FollowsTheViewportAndTheRecordingInSize)
{
    load("lesson_95s.wav");
    showStrip(800);
    EXPECT_EQ(view->width(), 1900); // 95 s at 20 points per second
    EXPECT_EQ(view->height(), kHeight);
    EXPECT_EQ(view->visibleRect(), QRectF(0, 0, 800, kHeight));

    area->resize(1000, 250 + area->horizontalScrollBar()->sizeHint().height());
    TestSupport::processEvents();
    EXPECT_EQ(view->height(), 250);
    EXPECT_EQ(view->width(), 1900);

    // Wider than the recording: the view fills the viewport.
    area->resize(2100, 250 + area->horizontalScrollBar()->sizeHint().height());
    TestSupport::processEvents();
    EXPECT_EQ(view->width(), 2100);
}

TEST_F(WaveformViewTest, WithoutWaveformDataOnlyTheBandsAreDrawn)
{
    load("speech.wav");
    showStrip(400, /*withData=*/false);
    view->setCurrentSegment(1);
    postPosition(2.0);
    const QImage image = shot();
    const int h = H();
    const QColor background = NamedColors::windowBackground();
    const QColor grey(65, 65, 65);
    const QColor white(255, 255, 255);
    auto only = [&](int top, int bottom, const QColor& colour) {
        return countPixels(image, QRect(0, top, image.width(), bottom - top),
                           [&](QRgb p) { return !sameColour(p, colour, 0); });
    };
    EXPECT_EQ(only(0, 20, background), 0) << "number band";
    EXPECT_EQ(only(20, 35, white), 0) << "upper marker band";
    EXPECT_EQ(only(35, h - 35, grey), 0) << "waveform band";
    EXPECT_EQ(only(h - 35, h - 20, white), 0) << "lower marker band";
    EXPECT_EQ(only(h - 20, h, background), 0) << "ruler band";
}

TEST_F(WaveformViewTest, DrawsShadingEnvelopeMarkersNumbersAndRuler)
{
    load("speech.wav");
    showStrip(400);
    // Segments of 3 s: boundaries at 60, 120, 180 points.
    view->updateWithSegments(evenSegments(0.0, 3.0, engine.getTotalDuration()));
    view->setCurrentSegment(1);
    const QImage image = shot();
    const int h = H();

    const QColor shaded(qRound(0.3 * 89 + 0.7 * 65), qRound(0.3 * 180 + 0.7 * 65),
                        qRound(0.3 * 240 + 0.7 * 65));
    const QRect segment1(64, 36, 52, h - 72);
    const QRect segment2(124, 36, 52, h - 72);
    auto isShaded = [&](QRgb p) { return sameColour(p, shaded, 3); };
    auto isGrey = [&](QRgb p) { return sameColour(p, QColor(65, 65, 65), 0); };
    EXPECT_GT(countPixels(image, segment1, isShaded),
              segment1.width() * segment1.height() * 8 / 10);
    EXPECT_EQ(countPixels(image, segment2, isShaded), 0);
    EXPECT_GT(countPixels(image, segment2, isGrey), segment2.width() * segment2.height() / 2);

    // The envelope: green inside the waveform band only.
    EXPECT_GT(countPixels(image, QRect(0, 35, 400, h - 70), isGreen), 200);
    EXPECT_EQ(countPixels(image, QRect(0, 0, 400, 35), isGreen), 0);
    EXPECT_EQ(countPixels(image, QRect(0, h - 35, 400, 35), isGreen), 0);

    // The dashed separator at 120: blue and grey alternate down the band.
    int blue = 0, changes = 0;
    bool last = false;
    for (int y = 40; y < h - 40; ++y) {
        const bool b = isMarkerBlue(image.pixel(120, y)) || isMarkerBlue(image.pixel(119, y));
        blue += b ? 1 : 0;
        changes += (y > 40 && b != last) ? 1 : 0;
        last = b;
    }
    EXPECT_GT(blue, (h - 80) / 3);
    EXPECT_GT(changes, (h - 80) / 4);

    // Segment numbers in the top band near each boundary; none between.
    auto isNumber = [](QRgb p) { return qRed(p) < 200 && std::abs(qRed(p) - qBlue(p)) < 12; };
    EXPECT_GT(countPixels(image, QRect(114, 2, 13, 16), isNumber), 3) << "label 3";
    EXPECT_EQ(countPixels(image, QRect(135, 0, 30, 20), isNumber), 0);
    // Ruler: a label under 0 s and a major tick at 10 s.
    EXPECT_GT(countPixels(image, QRect(0, h - 14, 20, 13), isDarkGrey), 5);
    EXPECT_GT(countPixels(image, QRect(199, h - 20, 3, 5), isDarkGrey), 2);
}

TEST_F(WaveformViewTest, FirstMarkerIsRightAngledFromTheBoundaryOthersAreCentred)
{
    load("speech.wav");
    showStrip(400);
    // Boundaries at 40 (first) and 100 (second) points; end of the audio at E.
    view->updateWithSegments({{2.0, 3.0}, {5.0, engine.getTotalDuration() - 5.0}});
    const QImage image = shot();
    const int h = H();
    // Rows next to each marker's base: the top of the upper band, the bottom
    // of the lower band.
    const int upperBase = 21, lowerBase = h - 22;
    const int upperApex = 33, lowerApex = h - 34;
    for (const int row : {upperBase, lowerBase}) {
        SCOPED_TRACE(row);
        // First: from 40 to 52, nothing left of the boundary.
        EXPECT_FALSE(isMarkerBlue(image.pixel(37, row)));
        EXPECT_TRUE(isMarkerBlue(image.pixel(41, row)));
        EXPECT_TRUE(isMarkerBlue(image.pixel(50, row)));
        EXPECT_FALSE(isMarkerBlue(image.pixel(54, row)));
        // Others: from 92.5 to 107.5, symmetric about 100.
        EXPECT_FALSE(isMarkerBlue(image.pixel(90, row)));
        EXPECT_TRUE(isMarkerBlue(image.pixel(94, row)));
        EXPECT_TRUE(isMarkerBlue(image.pixel(105, row)));
        EXPECT_FALSE(isMarkerBlue(image.pixel(109, row)));
    }
    for (const int row : {upperApex, lowerApex}) {
        SCOPED_TRACE(row);
        // Towards the waveform the right angle keeps its vertical edge at the
        // boundary, the isosceles narrows to its centre.
        EXPECT_TRUE(isMarkerBlue(image.pixel(40, row)));
        EXPECT_FALSE(isMarkerBlue(image.pixel(46, row)));
        EXPECT_TRUE(isMarkerBlue(image.pixel(100, row)) || isMarkerBlue(image.pixel(99, row)));
        EXPECT_FALSE(isMarkerBlue(image.pixel(95, row)));
        EXPECT_FALSE(isMarkerBlue(image.pixel(105, row)));
    }
    // The end of the recording: right-angled, pointing left, ending at E.
    const int e = qFloor(20.0 * engine.getTotalDuration());
    EXPECT_TRUE(isMarkerBlue(image.pixel(e - 1, upperApex)));
    EXPECT_FALSE(isMarkerBlue(image.pixel(e - 8, upperApex)));
    EXPECT_TRUE(isMarkerBlue(image.pixel(e - 10, upperBase)));
    EXPECT_FALSE(isMarkerBlue(image.pixel(e + 3, upperBase)));
}

TEST_F(WaveformViewTest, RulerOfA95SecondRecordingAt20PointsPerSecond)
{
    load("lesson_95s.wav");
    showStrip(800);
    ASSERT_EQ(view->pixelsPerSecond(), 20.0);
    ASSERT_EQ(view->width(), 1900);
    const int h = H();
    // Each label hangs below its tick, clear of the ticks' rows.
    auto labelAt = [&](const QImage& image, int x) {
        return countPixels(image, QRect(x - 14, h - 14, 29, 13), isDarkGrey);
    };
    std::set<int> labels;
    for (const int scroll : {0, 700, 1100}) {
        area->horizontalScrollBar()->setValue(scroll);
        const QImage image = shot();
        const QRectF v = view->visibleRect();
        ASSERT_EQ(v.x(), scroll);
        for (int t = 0; t <= 90; t += 10) {
            const int x = 20 * t;
            if (x < v.left() + (t == 0 ? 0 : 15) || x > v.right() - 15)
                continue;
            SCOPED_TRACE(t);
            EXPECT_GT(labelAt(image, x), 6);
            // Nothing between labels but the minor ticks above them.
            EXPECT_EQ(countPixels(image, QRect(x + 30, h - 14, 140, 13), isDarkGrey), 0);
            labels.insert(t);
        }
    }
    EXPECT_EQ(labels, (std::set<int>{0, 10, 20, 30, 40, 50, 60, 70, 80, 90})); // 0:00 ... 1:30

    // Wider than the recording: minor ticks run on to 99 s, no label at 100.
    area->resize(2100, kHeight + area->horizontalScrollBar()->sizeHint().height());
    TestSupport::processEvents();
    ASSERT_EQ(view->width(), 2100);
    const QImage image = shot();
    auto tickAt = [&](int x) { return countPixels(image, QRect(x - 1, h - 20, 3, 3), isDarkGrey); };
    for (const int second : {91, 95, 96, 99})
        EXPECT_GT(tickAt(20 * second), 0) << second;
    EXPECT_EQ(tickAt(2000), 0);
    EXPECT_EQ(tickAt(2020), 0);
    EXPECT_EQ(labelAt(image, 2000), 0);
}

TEST_F(WaveformViewTest, HitTestingAndClicksSelectSegments)
{
    load("lesson_95s.wav");
    showStrip(700);
    // Segments of 6 s from 2 s: segment i spans 40 + 120 i ... 160 + 120 i.
    view->updateWithSegments(evenSegments(2.0, 6.0, engine.getTotalDuration()));
    QList<qint64> posted;
    QObject observer;
    center.addObserver(Notifications::MouseDownSelectSegment, &observer,
                       [&](const NotificationCenter::Notification& n) {
                           posted.append(n.object.value<qint64>());
                       });

    EXPECT_EQ(view->segmentIndexForPoint({39.0, 50.0}), -1);
    EXPECT_EQ(view->segmentIndexForPoint({40.0, 50.0}), 0);
    EXPECT_EQ(view->segmentIndexForPoint({159.9, 50.0}), 0);
    EXPECT_EQ(view->segmentIndexForPoint({160.0, 50.0}), 1);
    EXPECT_EQ(view->segmentIndexForPoint({1899.0, 50.0}), view->segments().size() - 1);

    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(10, 100));
    QTest::mousePress(view, Qt::RightButton, {}, QPoint(100, 100));
    EXPECT_TRUE(posted.isEmpty());
    EXPECT_EQ(view->currentSegmentIndex(), -1);

    // Segment 5 (640 ... 760) runs past the right edge of the viewport.
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(690, 100));
    ASSERT_EQ(posted, QList<qint64>{5});
    EXPECT_EQ(view->currentSegmentIndex(), 5);
    const QRectF v = view->visibleRect();
    EXPECT_LE(v.left(), 640 - 0.2 * 700);
    EXPECT_GE(v.right(), 760 + 0.2 * 700 - 1);
    EXPECT_GT(bar(), 0);

    // The current segment again: nothing posted.
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(700, 100));
    EXPECT_EQ(posted, QList<qint64>{5});

    // A fully visible segment is selected without scrolling.
    const int before = bar();
    view->setCurrentSegment(6);
    EXPECT_EQ(bar(), before);
}

TEST_F(WaveformViewTest, PlayheadFollowsPositionsBeyondTheFilter)
{
    load("lesson_95s.wav");
    showStrip(800);
    const int h = H();
    auto redRows = [&](const QImage& image, int x) {
        return countPixels(image, QRect(x - 1, 0, 3, h), isRed);
    };
    EXPECT_EQ(countPixels(shot(), QRect(0, 0, 800, h), isRed), 0) << "no position yet";

    postPosition(10.0);
    EXPECT_EQ(view->currentPlaybackPosition(), 10.0);
    QImage image = shot();
    // From the top of the view down to the ruler, not into it.
    EXPECT_GE(redRows(image, 200), h - 21);
    EXPECT_EQ(countPixels(image, QRect(199, h - 19, 3, 19), isRed), 0);

    // Moves under 0.03 s from the last accepted position are dropped.
    postPosition(10.02);
    EXPECT_EQ(view->currentPlaybackPosition(), 10.0);
    postPosition(10.04);
    EXPECT_EQ(view->currentPlaybackPosition(), 10.04);
    center.post(Notifications::AudioPlaybackPositionDidUpdate, {}, {});
    EXPECT_EQ(view->currentPlaybackPosition(), 10.04);

    // Out of sight: the view scrolls to show it, a fifth of the width in.
    postPosition(50.0);
    TestSupport::processEvents();
    const QRectF v = view->visibleRect();
    EXPECT_LE(v.left(), 1000 - 0.2 * 800);
    EXPECT_GE(v.right(), 1000 + 5);
    image = shot();
    EXPECT_GE(redRows(image, 1000), h - 21);
    EXPECT_EQ(redRows(image, 200), 0);

    // Pause and resume leave it where it is.
    center.post(Notifications::AudioPlaybackDidPause, QVariant::fromValue(&engine),
                {{"status", 2}});
    center.post(Notifications::AudioPlaybackDidResume, QVariant::fromValue(&engine),
                {{"status", 3}});
    EXPECT_EQ(view->currentPlaybackPosition(), 50.0);
}

TEST_F(WaveformViewTest, ShadingAdvancesOneSegmentPerDrawingOutsideRepeatMode)
{
    load("lesson_95s.wav");
    showStrip(800);
    // Starts at 0, 6, 12, ... s.
    view->updateWithSegments(evenSegments(0.0, 6.0, engine.getTotalDuration()));
    view->setCurrentSegment(2);
    postPosition(40.0); // past the starts of 3 (18 s) ... 6 (36 s)

    engine.setRepeatMode(true);
    shot();
    EXPECT_EQ(view->currentSegmentIndex(), 2) << "repeat mode holds the segment";

    engine.setRepeatMode(false);
    view->setAutoUpdatePos(false);
    shot();
    EXPECT_EQ(view->currentSegmentIndex(), 2) << "automatic updates are off";

    view->setAutoUpdatePos(true);
    for (const qint64 expected : {3, 4, 5, 6, 6, 6}) {
        shot();
        EXPECT_EQ(view->currentSegmentIndex(), expected);
    }
    // The last segment is never left.
    const qint64 last = view->segments().size() - 1;
    view->setCurrentSegment(last);
    postPosition(94.9);
    shot();
    EXPECT_EQ(view->currentSegmentIndex(), last);
}

TEST_F(WaveformViewTest, DrawsAtTheDevicePixelRatioToTheDevicePixel)
{
    load("speech.wav");
    showStrip(400);
    const int h = H();
    const double extent = 20.0 * engine.getTotalDuration();
    ASSERT_LT(extent, 400.0);
    auto render = [&](int ratio, const QRegion& region) {
        QImage image(view->width() * ratio, h * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::white);
        view->render(&image, QPoint(), region, QWidget::RenderFlags());
        return image.convertToFormat(QImage::Format_RGB32);
    };
    auto greenIn = [](const QImage& image, const QRect& where) {
        return countPixels(image, where, isGreen);
    };

    // Two values per point (a few more, so that none is more than a device
    // pixel from the next), silent but for one peak of 0.5 near x = 100.5:
    // at a ratio of 2 one value per device column.
    const int n = int(std::ceil(2.0 * extent));
    QList<float> peaks(n, 0.0f);
    peaks[201] = 0.5f;
    view->updateWaveformData(peaks);
    QImage image = render(2, QRegion(view->rect()));
    ASSERT_EQ(image.size(), QSize(2 * view->width(), 2 * h));
    const int centre = h; // device rows: the band's centre line is at h / 2 points
    // Silence is a line one device pixel thick, not a 1x line enlarged.
    for (const int column : {40, 120, 300, 500}) {
        SCOPED_TRACE(column);
        EXPECT_EQ(greenIn(image, QRect(column, 0, 1, 2 * h)), 1);
        EXPECT_EQ(greenIn(image, QRect(column, centre - 1, 1, 2)), 1);
    }
    // The peak three quarters up its rise stands one device column wide,
    // above the line and mirrored below it.
    const int rise = (h - 70) / 2; // device pixels, a half of full scale
    const int peak = int(std::floor(201.0 * extent / n * 2.0));
    for (const int row : {centre - 3 * rise / 4, centre + 3 * rise / 4 - 1}) {
        SCOPED_TRACE(row);
        EXPECT_EQ(greenIn(image, QRect(0, row, image.width(), 1)), 1);
        EXPECT_EQ(greenIn(image, QRect(peak, row, 1, 1)), 1);
    }
    // Its tip reaches the peak's height and no further.
    EXPECT_EQ(greenIn(image, QRect(peak, centre - rise - 1, 1, 2)), 1);
    EXPECT_EQ(greenIn(image, QRect(0, 0, image.width(), centre - rise - 1)), 0);

    // The real recording: a thin repaint at ratio 2 (a playhead move) matches
    // the same pixels of a full one, envelope, shading and markers included.
    view->updateWaveformData(engine.waveformData());
    view->updateWithSegments(evenSegments(0.0, 3.0, engine.getTotalDuration()));
    view->setCurrentSegment(1);
    image = render(2, QRegion(view->rect()));
    EXPECT_GT(greenIn(image, QRect(0, 70, 2 * int(extent), 2 * h - 140)), 800);
    for (const int left : {57, 118, 137}) {
        SCOPED_TRACE(left);
        const QRect stripe(left, 0, 9, h);
        const QImage thin = render(2, QRegion(stripe));
        EXPECT_EQ(thin.copy(0, 0, 18, 2 * h), image.copy(2 * left, 0, 18, 2 * h));
    }
}
