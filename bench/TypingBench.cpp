// SPDX-License-Identifier: GPL-3.0-or-later
// Typing into the dictation table, offscreen at 1280x600:
//  1. a key typed into a row of a 700-row table (and, for comparison, a
//     20-row one): from sending the key event to the end of the repaint of
//     the row that shows the new glyph;
//  2. updateTranscriptions with 700 rows: the call itself, and until the
//     first row is selected and the table painted.
// Usage: typing_bench [ROWS]

#include "BenchSupport.h"
#include "KeyTyping.h"
#include "WindowBenchSupport.h"
#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QFontInfo>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

QStringList lessonTexts(int rows)
{
    static const QStringList sentences = {
        "Good morning, everyone, and welcome back.",
        "Today we are going to talk about the weather in the north.",
        "",
        "It is often cold and windy, even in the middle of summer.",
        "Many people there keep a warm coat by the door all year.",
    };
    QStringList texts;
    for (int i = 0; i < rows; ++i)
        texts << sentences[i % sentences.size()];
    return texts;
}

} // namespace

using Bench::drain;
using Bench::ms;

int main(int argc, char** argv)
{
    Bench::offscreenByDefault();
    QApplication app(argc, argv);
    const int rows = argc > 1 ? std::max(1, atoi(argv[1])) : 700;
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    QFont::insertSubstitution(QStringLiteral("Menlo"), QFontInfo(fixed).family());

    QTemporaryDir dir;
    Defaults defaults(dir.filePath(QStringLiteral("bench.ini")));
    regDefaultPreference(defaults);
    NotificationCenter center;
    AudioManager engine(defaults, center);
    TranscriptionTableView table(engine, center, defaults);
    table.resize(1280, 600);
    table.show();
    table.activateWindow();
    drain();

    // Loading the rows.
    std::vector<double> call;
    std::vector<double> shown;
    QElapsedTimer clock;
    for (int run = 0; run < 20; ++run) {
        const QStringList texts = lessonTexts(rows);
        clock.start();
        table.updateTranscriptions(texts);
        call.push_back(ms(clock.nsecsElapsed()));
        QApplication::processEvents(); // the deferred first-row selection
        table.repaint();
        shown.push_back(ms(clock.nsecsElapsed()));
        drain();
    }
    std::printf("updateTranscriptions, %d rows: call median %.3f ms, until row 0 is selected and "
                "painted median %.3f ms (max %.3f ms)\n",
                rows, Bench::median(call), Bench::median(shown),
                *std::max_element(shown.begin(), shown.end()));

    // Typing in the middle of the lesson.
    table.setCurrentSegment(rows / 2);
    table.editorForRow(rows / 2)->setFocus();
    drain();
    Bench::typeKeys(table, 40); // warm-up: glyph caches
    Bench::reportTyping(qPrintable(QStringLiteral("key to glyph, %1 rows").arg(rows)), table);

    table.updateTranscriptions(lessonTexts(20));
    drain();
    table.setCurrentSegment(10);
    table.editorForRow(10)->setFocus();
    drain();
    Bench::typeKeys(table, 40);
    Bench::reportTyping("key to glyph, 20 rows", table);
    return 0;
}
