// SPDX-License-Identifier: GPL-3.0-or-later
// Checking typed text against a reference:
//  1. one 60-word sentence with a typo, a wrong, a missing and an extra word:
//     median of single checks (target 0.2 ms);
//  2. all 720 rows of a 60-minute lesson checked again, with the lesson
//     score: median of whole passes (target 30 ms).
// Usage: check_bench

#include "BenchSupport.h"
#include "LessonSentences.h"
#include "reference/Checker.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QStringList>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

double ms(qint64 ns)
{
    return double(ns) / 1e6;
}

const QStringList& kSentences = Bench::lessonSentences();

// What a learner might have typed for a sentence: one typo, one word left
// out, one word too many, case and punctuation loose.
QString typedFor(const QString& sentence)
{
    QStringList words = sentence.toLower().split(' ');
    words[1] = words[1].size() > 4 ? words[1].left(2) + words[1][3] + words[1][2] + words[1].mid(4)
                                   : words[1];
    words.removeAt(words.size() / 2);
    words.insert(words.size() - 1, QStringLiteral("really"));
    return words.join(' ').remove(',');
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const Checker checker;
    QElapsedTimer clock;

    // 1. One long sentence.
    QStringList reference;
    QStringList typed;
    int words = 0;
    for (int i = 0; words < 60; ++i) {
        const QString s = kSentences[i % kSentences.size()];
        reference << s;
        typed << typedFor(s);
        words += int(s.split(' ').size());
    }
    const QString sentence = reference.join(' ').section(' ', 0, 59);
    const QString typing = typed.join(' ').section(' ', 0, 59);
    const CheckResult sample = checker.check(sentence, typing);
    std::vector<double> single;
    for (int run = 0; run < 3000; ++run) {
        clock.start();
        const CheckResult r = checker.check(sentence, typing);
        single.push_back(ms(clock.nsecsElapsed()));
    }
    std::printf("one sentence, %d reference words, %lld typed: median %.4f ms, max %.4f ms "
                "(score %.3f)\n",
                sample.words, static_cast<long long>(sample.typed.size()), Bench::median(single),
                *std::max_element(single.begin(), single.end()), sample.score.value_or(-1));

    // 2. A lesson's rows, all checked again.
    constexpr int kRows = 720;
    QStringList rowReference;
    QStringList rowTyped;
    for (int i = 0; i < kRows; ++i) {
        rowReference << kSentences[i % kSentences.size()];
        rowTyped << (i % 7 == 6 ? QString() : typedFor(rowReference.last()));
    }
    std::vector<double> passes;
    double score = 0;
    for (int run = 0; run < 30; ++run) {
        clock.start();
        QList<CheckResult> rows;
        rows.reserve(kRows);
        for (int i = 0; i < kRows; ++i)
            rows.append(checker.check(rowReference[i], rowTyped[i]));
        score = lessonScore(rows).value_or(-1);
        passes.push_back(ms(clock.nsecsElapsed()));
    }
    std::printf("%d rows checked again: median %.3f ms, max %.3f ms (lesson score %.3f)\n", kRows,
                Bench::median(passes), *std::max_element(passes.begin(), passes.end()), score);
    return 0;
}
