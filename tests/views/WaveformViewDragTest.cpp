// SPDX-License-Identifier: GPL-3.0-or-later
// Dragging a segment's start marker in the waveform strip: the proposed time,
// the cursor, what is drawn meanwhile, the ways a drag comes to nothing, and
// an uncertain start drawn apart from the others.

#include "WaveformViewFixture.h"

#include <QSignalSpy>
#include <QTest>

TEST_F(WaveformViewTest, DraggingAStartMarkerProposesAClampedBoundary)
{
    load("lesson_95s.wav");
    showStrip(800);
    const SegmentList segments{{0.0, 6.0}, {6.0, 6.0}, {12.0, 6.0}, {18.0, 4.0}};
    // Starts at 0, 120, 240 and 360 points; the last segment ends at 440.
    view->updateWithSegments(segments);
    QSignalSpy moved(view, &WaveformView::boundaryMoved);
    QList<qint64> selected;
    QObject observer;
    center.addObserver(Notifications::MouseDownSelectSegment, &observer,
                       [&](const NotificationCenter::Notification& n) {
                           selected.append(n.object.value<qint64>());
                       });
    const int h = H();
    const int upper = 24, lower = h - 27, middle = h / 2; // rows: marker bands, waveform
    // A marker in both bands: its middle columns lit next to each base.
    auto markerAt = [&](const QImage& image, int x) {
        auto row = [&](int y) { return countPixels(image, QRect(x - 3, y, 7, 1), isMarkerBlue); };
        return row(21) == 7 && row(h - 22) == 7;
    };
    auto noMarkerAt = [&](const QImage& image, int x) {
        return countPixels(image, QRect(x - 3, 21, 7, 1), isMarkerBlue) == 0 &&
               countPixels(image, QRect(x - 3, h - 22, 7, 1), isMarkerBlue) == 0;
    };

    // The split cursor over a movable marker, in either band; not over the
    // first segment's, between markers or over the waveform.
    for (const auto& [point, shape] : {std::pair{QPoint(240, upper), Qt::SplitHCursor},
                                       {QPoint(236, lower), Qt::SplitHCursor},
                                       {QPoint(240, middle), Qt::ArrowCursor},
                                       {QPoint(5, upper), Qt::ArrowCursor},
                                       {QPoint(180, upper), Qt::ArrowCursor}}) {
        QTest::mouseMove(view, point);
        EXPECT_EQ(view->cursor().shape(), shape) << point.x() << "," << point.y();
    }

    // Segment 2's start taken from 12 s to 15 s: drawn there during the drag,
    // dashed line and both triangles, and gone from where it was.
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(240, upper));
    ASSERT_TRUE(view->isDraggingBoundary());
    QTest::mouseMove(view, QPoint(300, middle));
    EXPECT_EQ(view->cursor().shape(), Qt::SplitHCursor) << "off the band, still dragging";
    QImage image = shot();
    EXPECT_TRUE(markerAt(image, 300));
    EXPECT_TRUE(noMarkerAt(image, 240));
    EXPECT_GT(countPixels(image, QRect(299, 40, 2, h - 80), isMarkerBlue), (h - 80) / 3);
    EXPECT_EQ(countPixels(image, QRect(239, 40, 2, h - 80), isMarkerBlue), 0);
    QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(300, middle));
    ASSERT_EQ(moved.size(), 1);
    EXPECT_EQ(moved[0][0].value<qint64>(), 2);
    EXPECT_DOUBLE_EQ(moved[0][1].toDouble(), 15.0);
    EXPECT_FALSE(view->isDraggingBoundary());
    EXPECT_EQ(view->segments(), segments) << "the session moves it, not the view";
    EXPECT_TRUE(markerAt(shot(), 240));
    moved.clear();

    // Clamps, a press off the marker's centre, and the drags that come to
    // nothing. The old start is drawn again afterwards in every case.
    enum class End
    {
        Release,
        ReleaseOutside,
        Escape,
        NewSegments
    };
    struct Case
    {
        const char* what;
        QPoint press;
        std::vector<int> moves; // x of each move, in the press's row
        End end;
        qint64 index;    // the segment dragged
        double expected; // the time emitted, or < 0 for none
    };
    const Case cases[] = {
        {"past the previous start", {240, upper}, {20}, End::Release, 2, 6.0 + 0.1},
        {"past the next start", {240, upper}, {700}, End::Release, 2, 18.0 - 0.1},
        {"the last past its end", {360, upper}, {700}, End::Release, 3, 22.0 - 0.1},
        {"off centre, lower band", {124, lower}, {164}, End::Release, 1, 8.0},
        {"back where it was", {243, upper}, {280, 243}, End::Release, 2, -1.0},
        {"released outside", {240, upper}, {300}, End::ReleaseOutside, 2, -1.0},
        {"escape", {240, upper}, {300}, End::Escape, 2, -1.0},
        {"new segments", {240, lower}, {300}, End::NewSegments, 2, -1.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        QTest::mousePress(view, Qt::LeftButton, {}, c.press);
        ASSERT_TRUE(view->isDraggingBoundary());
        QPoint at = c.press;
        for (const int x : c.moves) {
            at.setX(x);
            QTest::mouseMove(view, at);
        }
        if (c.end == End::Escape) {
            // Whichever widget has the focus.
            QTest::keyClick(area.get(), Qt::Key_Escape);
            EXPECT_FALSE(view->isDraggingBoundary());
        } else if (c.end == End::NewSegments) {
            view->updateWithSegments(segments);
            EXPECT_FALSE(view->isDraggingBoundary());
        } else if (c.end == End::ReleaseOutside) {
            at.setY(h + 30);
        }
        QTest::mouseRelease(view, Qt::LeftButton, {}, at);
        EXPECT_FALSE(view->isDraggingBoundary());
        if (c.expected < 0) {
            EXPECT_TRUE(moved.isEmpty());
        } else {
            EXPECT_EQ(moved.size(), 1);
            EXPECT_EQ(moved.value(0).value(0).value<qint64>(), c.index);
            EXPECT_DOUBLE_EQ(moved.value(0).value(1).toDouble(), c.expected);
        }
        moved.clear();
        image = shot();
        const int from = qRound(20.0 * segments[c.index].start);
        EXPECT_TRUE(markerAt(image, from));
        EXPECT_TRUE(noMarkerAt(image, 300));
    }
    EXPECT_TRUE(selected.isEmpty()) << "a press on a marker selects nothing";

    // Anywhere else a press selects as before, the first segment's marker included.
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(300, middle));
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(5, upper));
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(180, upper));
    EXPECT_EQ(selected, (QList<qint64>{2, 0, 1}));
    EXPECT_FALSE(view->isDraggingBoundary());
    EXPECT_TRUE(moved.isEmpty());

    // An uncertain start is amber, its line solid where the others' are
    // dashed blue; it is dragged like any other, and new segments forget it.
    view->setUncertainStarts({1});
    image = shot();
    auto isAmber = [](QRgb p) {
        return qRed(p) > 200 && qGreen(p) > 120 && qGreen(p) < 200 && qBlue(p) < 60;
    };
    auto rowsLit = [&](int x, const std::function<bool(QRgb)>& match) {
        int rows = 0;
        for (int y = 40; y < h - 40; ++y)
            rows += countPixels(image, QRect(x - 2, y, 5, 1), match) > 0 ? 1 : 0;
        return rows;
    };
    EXPECT_EQ(rowsLit(120, isAmber), h - 80);
    EXPECT_EQ(rowsLit(120, isMarkerBlue), 0);
    const int dashed = rowsLit(240, isMarkerBlue);
    EXPECT_GT(dashed, (h - 80) / 3);
    EXPECT_LT(dashed, (h - 80) * 2 / 3);
    EXPECT_EQ(rowsLit(240, isAmber), 0);
    for (const int y : {21, h - 22}) {
        EXPECT_EQ(countPixels(image, QRect(117, y, 7, 1), isAmber), 7) << y;
        EXPECT_EQ(countPixels(image, QRect(237, y, 7, 1), isMarkerBlue), 7) << y;
    }
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(120, upper));
    ASSERT_TRUE(view->isDraggingBoundary());
    QTest::mouseMove(view, QPoint(160, upper));
    QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(160, upper));
    ASSERT_EQ(moved.size(), 1);
    EXPECT_DOUBLE_EQ(moved[0][1].toDouble(), 8.0);
    view->updateWithSegments(segments);
    EXPECT_TRUE(view->uncertainStarts().isEmpty());
}
