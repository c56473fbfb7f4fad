// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Typing keys into the dictation table's current row and timing each, from
// sending the key event to the end of the repaint of the row that shows it.

#include "BenchSupport.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace Bench {

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

inline double ms(qint64 ns)
{
    return double(ns) / 1e6;
}

inline double percentile(std::vector<double> values, double p)
{
    std::sort(values.begin(), values.end());
    return values[size_t(p * double(values.size() - 1))];
}

inline void drain()
{
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

// Types `keys` keys into the current row's editor, half of them letters and
// half Backspace, so the line stays the length of a sentence.
inline std::vector<double> typeKeys(TranscriptionTableView& table, int keys, int* paints = nullptr)
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

inline void reportTyping(const char* label, TranscriptionTableView& table)
{
    int painted = 0;
    const std::vector<double> times = typeKeys(table, 800, &painted);
    std::printf("%-28s median %.3f ms   p95 %.3f ms   max %.3f ms   (%zu keys, editor painted "
                "within the timing for %d)\n",
                label, median(times), percentile(times, 0.95),
                *std::max_element(times.begin(), times.end()), times.size(), painted);
}

} // namespace Bench
