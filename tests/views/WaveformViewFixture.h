// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The waveform strip in a horizontal scroll area, fed from a real engine that
// analysed a generated recording, with a named label font. What it draws is
// judged by the pixels of the rendered view: rows are counted from the top of
// the image, so the number band is rows 0-19, the upper markers 20-34, the
// waveform 35..H-36, the lower markers H-35..H-21 and the ruler H-20..H-1.

#include "audio/AudioManager.h"
#include "audio/NullAudioOutput.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "support/TestSupport.h"
#include "views/WaveformView.h"

#include <QApplication>
#include <QFont>
#include <QImage>
#include <QScrollArea>
#include <QScrollBar>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

inline constexpr int kHeight = 200;

inline bool sameColour(QRgb pixel, const QColor& expected, int tolerance = 2)
{
    return std::abs(qRed(pixel) - expected.red()) <= tolerance &&
           std::abs(qGreen(pixel) - expected.green()) <= tolerance &&
           std::abs(qBlue(pixel) - expected.blue()) <= tolerance;
}

inline int countPixels(const QImage& image, const QRect& area,
                       const std::function<bool(QRgb)>& match)
{
    int n = 0;
    const QRect r = area.intersected(image.rect());
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x)
            n += match(image.pixel(x, y)) ? 1 : 0;
    return n;
}

// A blue marker pixel, antialiased edges included.
inline bool isMarkerBlue(QRgb p)
{
    return qBlue(p) > 200 && qRed(p) < 200 && qBlue(p) - qRed(p) > 60;
}

// Text and ticks of the ruler: a neutral grey well darker than the window.
inline bool isDarkGrey(QRgb p)
{
    return qRed(p) < 170 && std::abs(qRed(p) - qBlue(p)) < 12 && std::abs(qRed(p) - qGreen(p)) < 12;
}

inline bool isRed(QRgb p)
{
    return qRed(p) > 200 && qGreen(p) < 60 && qBlue(p) < 60;
}

inline bool isGreen(QRgb p)
{
    return qGreen(p) > 120 && qGreen(p) - qRed(p) > 60 && qGreen(p) - qBlue(p) > 40;
}

// Segments of `length` seconds each, covering `duration`.
inline SegmentList evenSegments(double first, double length, double duration)
{
    SegmentList list;
    for (double t = first; t < duration - 1e-9; t += length)
        list.append({t, std::min(length, duration - t)});
    return list;
}

class WaveformViewTest : public ::testing::Test
{
protected:
    // The view takes its label font from the application's when it is made.
    void SetUp() override
    {
        m_appFont = QApplication::font();
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPointSizeF(9.0);
        QApplication::setFont(font);
    }
    void TearDown() override { QApplication::setFont(m_appFont); }

    void load(const QString& name)
    {
        engine.setOutputFactory(
            [] { return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::Manual); });
        bool ok = false;
        engine.processAudioFile(TestSupport::fixture(name), [&](bool success) { ok = success; });
        ASSERT_TRUE(ok) << engine.lastError().toStdString();
        TestSupport::processEvents(); // the waveform hand-back
        ASSERT_FALSE(engine.waveformData().isEmpty());
    }

    // The strip as the session controller sets it up after an analysis.
    void showStrip(int viewportWidth, bool withData = true)
    {
        area = std::make_unique<QScrollArea>();
        area->setFrameShape(QFrame::NoFrame);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setWidgetResizable(false);
        view = new WaveformView(engine, center);
        area->setWidget(view);
        area->resize(viewportWidth, kHeight + area->horizontalScrollBar()->sizeHint().height());
        area->show();
        TestSupport::processEvents();
        view->updateWithSegments(engine.segments());
        if (withData)
            view->updateWaveformData(engine.waveformData());
        view->updateContentWidth();
        TestSupport::processEvents();
    }

    QImage shot() const { return view->grab().toImage().convertToFormat(QImage::Format_RGB32); }
    int bar() const { return area->horizontalScrollBar()->value(); }
    int H() const { return view->height(); }

    void postPosition(double seconds)
    {
        center.post(Notifications::AudioPlaybackPositionDidUpdate, QVariant::fromValue(&engine),
                    {{"position", seconds}});
    }

    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    AudioManager engine{defaults.store(), center};
    std::unique_ptr<QScrollArea> area;
    WaveformView* view = nullptr; // owned by the scroll area

private:
    QFont m_appFont;
};
