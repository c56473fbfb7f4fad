// SPDX-License-Identifier: GPL-3.0-or-later
// The aligner on read lessons whose pauses are known exactly (made by
// tests/fixtures/make-lessons.sh with other voices than the aligner's and
// noise laid over), on texts that do not quite match, and on bad input.

#include "align/SentenceAligner.h"

#include "support/TestSupport.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <gtest/gtest.h>
#include <thread>

using TestSupport::fixture;

namespace {

struct Pause
{
    double start = 0.0;
    double end = 0.0;
    double middle() const { return (start + end) / 2.0; }
};

struct Lesson
{
    QString audio;
    QStringList sentences;
    QList<Pause> pauses; // pauses[k] lies between sentences k and k + 1
};

QStringList lines(const QString& path)
{
    QStringList out;
    for (const QString& line : QString::fromUtf8(TestSupport::readFile(path)).split(u'\n')) {
        if (!line.trimmed().isEmpty())
            out.append(line.trimmed());
    }
    return out;
}

Lesson lesson(const QString& language)
{
    Lesson l;
    const QString flac = fixture("lessons/" + language + ".flac");
    l.audio = QFileInfo::exists(flac) ? flac : fixture("lessons/" + language + ".wav");
    l.sentences = lines(fixture("lessons/" + language + ".txt"));
    for (const QString& line : lines(fixture("lessons/" + language + ".pauses"))) {
        const QStringList times = line.split(u' ');
        l.pauses.append({times.value(0).toDouble(), times.value(1).toDouble()});
    }
    return l;
}

// The shape every result has, whatever its accuracy: the text as given, one
// sentence after another without gaps or overlaps, inside the recording.
void expectWellFormed(const AlignedSentences& result, const QStringList& sentences, double duration)
{
    ASSERT_EQ(result.size(), sentences.size());
    for (qsizetype k = 0; k < result.size(); ++k) {
        EXPECT_EQ(result[k].text, sentences[k]);
        EXPECT_LE(result[k].start, result[k].end) << k;
        if (k > 0) {
            EXPECT_DOUBLE_EQ(result[k].start, result[k - 1].end) << k;
        }
    }
    EXPECT_GE(result.first().start, 0.0);
    EXPECT_LE(result.last().end, duration + 1e-6);
}

std::optional<AlignedSentences> align(const QString& audio, const QStringList& sentences,
                                      const QString& language, QString* error = nullptr,
                                      const SentenceAligner::Progress& progress = {},
                                      const std::atomic<bool>* cancel = nullptr)
{
    return SentenceAligner::align(audio, sentences, language, progress, cancel, error);
}

} // namespace

class ReadLesson : public ::testing::TestWithParam<const char*>
{
};

TEST_P(ReadLesson, EveryBoundaryLandsInItsPause)
{
    const QString language = QString::fromLatin1(GetParam());
    const Lesson l = lesson(language);
    ASSERT_EQ(l.pauses.size(), l.sentences.size() - 1);
    ASSERT_GE(l.sentences.size(), 20);

    QList<double> reported;
    QString error;
    const auto result =
        align(l.audio, l.sentences, language, &error, [&](double f) { reported.append(f); });
    ASSERT_TRUE(result) << error.toStdString();
    expectWellFormed(*result, l.sentences, l.pauses.last().end + 60.0);

    int inside = 0, near = 0;
    for (qsizetype k = 0; k < l.pauses.size(); ++k) {
        const double boundary = (*result)[k + 1].start;
        const Pause& p = l.pauses[k];
        inside += boundary >= p.start && boundary <= p.end;
        near += std::abs(boundary - p.middle()) <= 0.1;
        EXPECT_LE(std::abs(boundary - p.middle()), 0.6 + (p.end - p.start) / 2)
            << "boundary " << k + 1 << " at " << boundary << ", pause " << p.start << "-" << p.end;
    }
    const double n = double(l.pauses.size());
    std::printf("[ %s ] %d of %d boundaries in their pause (%.0f %%), %d within 100 ms of its "
                "middle (%.0f %%)\n",
                GetParam(), inside, int(n), 100.0 * inside / n, near, 100.0 * near / n);
    EXPECT_GE(inside / n, 0.98);
    EXPECT_GE(near / n, 0.90);
    // The first sentence starts before its first sound (0.6 s in), not long before.
    EXPECT_GT(result->first().start, 0.3);
    EXPECT_LE(result->first().start, 0.6);

    ASSERT_FALSE(reported.isEmpty());
    EXPECT_TRUE(std::is_sorted(reported.begin(), reported.end()));
    EXPECT_GE(reported.first(), 0.0);
    EXPECT_DOUBLE_EQ(reported.last(), 1.0);
}

INSTANTIATE_TEST_SUITE_P(Languages, ReadLesson, ::testing::Values("en", "fr", "de", "es", "cmn"),
                         [](const auto& language) { return std::string(language.param); });

// A sentence the recording lacks, or one the text lacks, disturbs the
// boundaries near it only: no boundary moves past the true pause before or
// after its own (it stays within its sentences), and all but the few
// around the difference stay in their own pause.
void expectBoundariesKeepTheirPlace(const AlignedSentences& result, const QList<Pause>& pauses,
                                    const QList<qsizetype>& pauseOf)
{
    int inOwn = 0, counted = 0;
    for (qsizetype k = 1; k < result.size(); ++k) {
        const qsizetype own = pauseOf[k];
        if (own < 0)
            continue;
        const double boundary = result[k].start;
        const double earliest = own > 0 ? pauses[own - 1].end : 0.0;
        const double latest = own + 1 < pauses.size() ? pauses[own + 1].start : 1e9;
        EXPECT_GT(boundary, earliest) << "boundary " << k;
        EXPECT_LT(boundary, latest) << "boundary " << k;
        inOwn += boundary >= pauses[own].start && boundary <= pauses[own].end;
        ++counted;
    }
    EXPECT_GE(inOwn, counted - 3);
}

TEST(SentenceAligner, TextAndRecordingThatDifferByASentence)
{
    const Lesson l = lesson("en");
    constexpr qsizetype kAt = 12;

    // The text has a sentence the recording lacks, before sentence 12; the
    // two boundaries around it are only checked to keep their order.
    QStringList longer = l.sentences;
    longer.insert(kAt, "The orchestra rehearsed the whole symphony twice before the concert.");
    auto result = align(l.audio, longer, "en");
    ASSERT_TRUE(result);
    expectWellFormed(*result, longer, l.pauses.last().end + 60.0);
    QList<qsizetype> pauseOf{-1};
    for (qsizetype k = 1; k < longer.size(); ++k)
        pauseOf.append(k == kAt || k == kAt + 1 ? -1 : k < kAt ? k - 1 : k - 2);
    expectBoundariesKeepTheirPlace(*result, l.pauses, pauseOf);

    // The text lacks sentence 12, which the recording has: sentence 11 takes
    // its sound too and ends in one of the two pauses around it.
    QStringList shorter = l.sentences;
    shorter.removeAt(kAt);
    result = align(l.audio, shorter, "en");
    ASSERT_TRUE(result);
    expectWellFormed(*result, shorter, l.pauses.last().end + 60.0);
    pauseOf = {-1};
    for (qsizetype k = 1; k < shorter.size(); ++k)
        pauseOf.append(k == kAt ? -1 : k < kAt ? k - 1 : k);
    expectBoundariesKeepTheirPlace(*result, l.pauses, pauseOf);
    const double merged = (*result)[kAt].start;
    EXPECT_TRUE((merged >= l.pauses[kAt - 1].start && merged <= l.pauses[kAt - 1].end) ||
                (merged >= l.pauses[kAt].start && merged <= l.pauses[kAt].end))
        << merged;
}

TEST(SentenceAligner, BadInputGetsAOneLineReason)
{
    const Lesson l = lesson("fr");
    const struct
    {
        QString audio;
        QStringList sentences;
        QString language;
        QString reason; // found in the message
    } cases[] = {
        {l.audio, {}, "fr", "no sentence"},
        {l.audio, {" ", "\n\t"}, "fr", "no sentence"},
        {l.audio, l.sentences, "xx", "\"xx\""},
        {l.audio, l.sentences, "", "\"\""},
        {fixture("text.mp3"), l.sentences, "fr", "text.mp3"},
        {fixture("truncated-nothing-here.mp3"), l.sentences, "fr", "truncated-nothing-here.mp3"},
        {fixture("short_0.05s.wav"), l.sentences, "fr", "far longer than the recording"},
        {fixture("silent.wav"), l.sentences.mid(0, 2), "fr", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.audio.toStdString() + " / " + c.language.toStdString());
        QString error;
        const auto result = align(c.audio, c.sentences, c.language, &error);
        if (c.reason.isEmpty()) {
            // Silence: nothing to place the text on; said either way.
            if (result) {
                for (const AlignedSentence& s : *result)
                    EXPECT_TRUE(s.uncertain);
            } else {
                EXPECT_FALSE(error.isEmpty());
            }
            continue;
        }
        EXPECT_FALSE(result);
        EXPECT_TRUE(error.contains(c.reason)) << error.toStdString();
        EXPECT_FALSE(error.contains(u'\n')) << error.toStdString();
    }
}

// Sound that is not speech, or speech in another language than the text's,
// gives a result with every boundary uncertain, in both directions between languages; the
// pairs include the closest ones measured (German sound, Spanish or English
// text, and Spanish sound, French text).
TEST(SentenceAligner, MusicAndTheWrongLanguageAreFlagged)
{
    const struct
    {
        QString audio;
        const char* text; // lesson whose sentences are given
        int count;        // how many of them; 0: all
    } cases[] = {
        {fixture("lessons/music.wav"), "fr", 6}, {lesson("cmn").audio, "de", 0},
        {lesson("de").audio, "cmn", 0},          {lesson("fr").audio, "en", 0},
        {lesson("en").audio, "fr", 0},           {lesson("de").audio, "es", 0},
        {lesson("de").audio, "en", 0},           {lesson("es").audio, "fr", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.audio.toStdString() + " / " + c.text);
        QStringList sentences = lesson(c.text).sentences;
        if (c.count > 0)
            sentences = sentences.mid(0, c.count);
        QString error;
        const auto result = align(c.audio, sentences, c.text, &error);
        ASSERT_TRUE(result) << error.toStdString();
        ASSERT_EQ(result->size(), sentences.size());
        for (const AlignedSentence& sentence : *result)
            EXPECT_TRUE(sentence.uncertain) << sentence.text.toStdString();
    }
}

// A cancel stops the run in whichever phase it comes, and says so.
TEST(SentenceAligner, CancelStopsEveryPhase)
{
    const Lesson l = lesson("de");
    for (const double at : {-1.0, 0.0, 0.2, 0.75, 0.9}) {
        SCOPED_TRACE(at);
        std::atomic<bool> cancel{at < 0.0};
        bool reportedAfterCancel = false;
        QString error;
        const auto result = align(
            l.audio, l.sentences, "de", &error,
            [&](double f) {
                if (cancel)
                    reportedAfterCancel = f >= 1.0;
                if (f >= at)
                    cancel = true;
            },
            &cancel);
        EXPECT_FALSE(result);
        EXPECT_EQ(error, "Cancelled");
        EXPECT_FALSE(reportedAfterCancel) << "a cancelled run never reports completion";
    }

    // From another thread: the first report waits until the flag is set
    // there, so the run is mid-way when it sees it.
    std::atomic<bool> cancel{false};
    std::atomic<bool> started{false};
    std::thread canceller([&] {
        while (!started)
            std::this_thread::yield();
        cancel = true;
    });
    QString error;
    const auto result = align(
        l.audio, l.sentences, "de", &error,
        [&](double) {
            started = true;
            while (!cancel)
                std::this_thread::yield();
        },
        &cancel);
    canceller.join();
    EXPECT_FALSE(result);
    EXPECT_EQ(error, "Cancelled");
    // Nothing is left locked or running: the next run goes through.
    const auto again = align(l.audio, l.sentences.mid(0, 3), "de", &error);
    EXPECT_TRUE(again) << error.toStdString();
}
