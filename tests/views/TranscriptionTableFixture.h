// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A shown dictation table over a real engine, a fresh defaults store with the
// registered look (its font set to a named monospace family, so that what is
// drawn does not depend on the machine's fixed-width font), and a private
// notification centre.

#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QFontInfo>
#include <QImage>
#include <QList>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

struct RecordingTableDelegate : TranscriptionTableDelegate
{
    QList<qint64> heard;
    void didSelectSegmentAtIndex(qint64 index) override { heard.append(index); }
};

// The two monospace families that scripts/install-deps installs; tests that
// judge drawn text run with each, as their metrics round differently.
inline const char* const kMonospaceFamilies[] = {"DejaVu Sans Mono", "Noto Sans Mono"};

class TranscriptionTableFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        regDefaultPreference(defaults.store());
        useFont(kMonospaceFamilies[0]);
    }

    // A dictation font of an installed family, at the default's 20 points.
    static QFont monospaceFont(const QString& family, qreal points = 20.0)
    {
        QFont font(family);
        font.setPointSizeF(points);
        EXPECT_EQ(QFontInfo(font).family(), family) << "not installed? see scripts/install-deps";
        return font;
    }

    // Stores the dictation font the next table is made with.
    void useFont(const QString& family, qreal points = 20.0)
    {
        ObjectStorage(defaults.store())
            .setFont(monospaceFont(family, points), PreferenceKeys::DictationTextFont);
    }

    TranscriptionTableView& makeTable(QSize size = {640, 400})
    {
        table = std::make_unique<TranscriptionTableView>(engine, center, defaults.store());
        table->setTranscriptionDelegate(&delegate);
        table->resize(size);
        table->show();
        table->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(table.get()));
        return *table;
    }

    // Loads rows and lets the deferred first-row selection happen.
    void load(const QStringList& texts)
    {
        table->updateTranscriptions(texts);
        TestSupport::processEvents();
    }

    QImage render() const { return table->grab().toImage().convertToFormat(QImage::Format_RGB32); }

    // A cell's rectangle in the table's own (rendered image) coordinates.
    QRect cellRect(int row, int column) const
    {
        const QRect r = table->visualRect(table->model()->index(row, column));
        return r.translated(table->viewport()->geometry().topLeft());
    }

    static bool near(QColor a, QColor b, int tolerance)
    {
        return std::abs(a.red() - b.red()) <= tolerance &&
               std::abs(a.green() - b.green()) <= tolerance &&
               std::abs(a.blue() - b.blue()) <= tolerance;
    }

    // Pixels of `image` inside `area` within `tolerance` of `color`.
    static int countNear(const QImage& image, QRect area, QColor color, int tolerance = 24)
    {
        area = area.intersected(image.rect());
        int n = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (near(image.pixelColor(x, y), color, tolerance))
                    ++n;
        return n;
    }

    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    AudioManager engine{defaults.store(), center};
    RecordingTableDelegate delegate;
    std::unique_ptr<TranscriptionTableView> table;
};
