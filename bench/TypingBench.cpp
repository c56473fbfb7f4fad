// SPDX-License-Identifier: GPL-3.0-or-later
// Typing into the dictation table, offscreen at 1280x600:
//  1. a key typed into a row of a 700-row table (and, for comparison, a
//     20-row one): from sending the key event to the end of the repaint of
//     the row that shows the new glyph;
//  2. updateTranscriptions with 700 rows: the call itself, and until the
//     first row is selected and the table painted.
// Usage: typing_bench [ROWS]

#include "BenchSupport.h"
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

// Counts the paint events an editor gets, to show that the timed repaint
// really drew the row's text field.
class PaintCounter : public QObject
{
public:
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

double ms(qint64 ns)
{
    return double(ns) / 1e6;
}

double percentile(std::vector<double> values, double p)
{
    std::sort(values.begin(), values.end());
    return values[size_t(p * double(values.size() - 1))];
}

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

void drain()
{
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

// Types `keys` keys into the current row's editor, half of them letters and
// half Backspace, so the line stays the length of a sentence.
std::vector<double> typeKeys(TranscriptionTableView& table, int keys, int* paints = nullptr)
{
    PaintCounter counter;
    table.editorForRow(table.currentIndex())->installEventFilter(&counter);
    std::vector<double> times;
    times.reserve(size_t(keys));
    QElapsedTimer clock;
    const QString word = QStringLiteral("dictation practice ");
    for (int i = 0; i < keys; ++i) {
        QWidget* editor = table.editorForRow(table.currentIndex());
        const bool erase = (i / 40) % 2 == 1;
        const int key = erase ? Qt::Key_Backspace : Qt::Key_A;
        const QString text = erase ? QString() : QString(word[i % word.size()]);
        const QRect row = table.visualRect(table.model()->index(int(table.currentIndex()), 1));
        clock.start();
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(editor, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
        QApplication::sendEvent(editor, &release);
        const int before = counter.paints;
        table.viewport()->repaint(row);
        times.push_back(ms(clock.nsecsElapsed()));
        if (paints && counter.paints > before)
            ++*paints;
        QApplication::processEvents(); // let the caret blink and deferred work run between keys
    }
    table.editorForRow(table.currentIndex())->removeEventFilter(&counter);
    return times;
}

void reportTyping(const char* label, TranscriptionTableView& table)
{
    int painted = 0;
    const std::vector<double> times = typeKeys(table, 800, &painted);
    std::printf("%-28s median %.3f ms   p95 %.3f ms   max %.3f ms   (%zu keys, editor painted "
                "within the timing for %d)\n",
                label, Bench::median(times), percentile(times, 0.95),
                *std::max_element(times.begin(), times.end()), times.size(), painted);
}

} // namespace

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
    typeKeys(table, 40); // warm-up: glyph caches
    reportTyping(qPrintable(QStringLiteral("key to glyph, %1 rows").arg(rows)), table);

    table.updateTranscriptions(lessonTexts(20));
    drain();
    table.setCurrentSegment(10);
    table.editorForRow(10)->setFocus();
    drain();
    typeKeys(table, 40);
    reportTyping("key to glyph, 20 rows", table);
    return 0;
}
