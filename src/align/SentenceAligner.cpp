// SPDX-License-Identifier: GPL-3.0-or-later
#include "align/SentenceAligner.h"

#include "align/AlignmentLanguages.h"
#include "align/BandedWarp.h"
#include "align/Mfcc.h"
#include "align/PauseSnapper.h"
#include "align/RecordingFeatures.h"
#include "align/SpeechSynthesizer.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

constexpr int kRate = SpeechSynthesizer::kSampleRate;
// The warp steps 40 ms at a time (four feature frames): boundaries need only
// land near their pause, and the pause's own edges give the precision.
constexpr int kPooling = 4;
// Silence put between the synthesised sentences: about the pause a reader
// leaves, so that the reading's timeline runs like the recording's.
constexpr int kGapSamples = kRate / 2;
// Above this, the text's sound finds its place in the recording no better
// than beside it (see pathContrast()): midway between the read lessons
// (0.65 at most) and other languages or music (0.8 at least).
constexpr double kMismatchContrast = 0.73;
// A sentence's synthesis starts at its first sample above this share of its
// loudest and ends after its last.
constexpr double kSoundShare = 0.02;

// The synthesis of the whole text as one stream: each sentence's leading and
// trailing silence replaced by a fixed gap, so that the sound of sentence k
// runs from speechStart[k] to speechEnd[k] (in samples of the stream).
class SynthesisStream
{
public:
    SynthesisStream() : m_mfcc(kRate) {}

    void addSamples(const int16_t* samples, int count)
    {
        m_sentence.insert(m_sentence.end(), samples, samples + count);
    }

    void endSentence()
    {
        int peak = 0;
        for (int16_t s : m_sentence)
            peak = std::max(peak, std::abs(int(s)));
        const int floor = std::max(1, int(peak * kSoundShare));
        auto loud = [floor](int16_t s) { return std::abs(int(s)) > floor; };
        const auto first = std::find_if(m_sentence.begin(), m_sentence.end(), loud);
        const auto last = std::find_if(m_sentence.rbegin(), m_sentence.rend(), loud).base();
        addGap();
        speechStart.push_back(m_written);
        if (first < last)
            feed(&*first, std::size_t(last - first));
        speechEnd.push_back(m_written);
        m_sentence.clear();
    }

    // The gap after the last sentence; then the features are complete.
    std::vector<float> finish(double* featureSeconds)
    {
        addGap();
        *featureSeconds = m_featureSeconds;
        return m_mfcc.takeFeatures();
    }

    int hop() const { return m_mfcc.hop(); }

    std::vector<int64_t> speechStart, speechEnd;

private:
    // Dithered rather than digital silence, so that every frame of the
    // reading has a spectrum, as the recording's pauses have.
    void addGap()
    {
        std::vector<int16_t> gap(kGapSamples);
        for (int16_t& s : gap) {
            m_noise = m_noise * 1664525u + 1013904223u;
            s = int16_t(int(m_noise >> 29) - 4); // -4..3
        }
        feed(gap.data(), gap.size());
    }

    void feed(const int16_t* samples, std::size_t count)
    {
        const Clock::time_point before = Clock::now();
        m_mfcc.add(samples, count);
        m_featureSeconds += secondsSince(before);
        m_written += int64_t(count);
    }

    Mfcc m_mfcc;
    std::vector<int16_t> m_sentence;
    int64_t m_written = 0;
    uint32_t m_noise = 1;
    double m_featureSeconds = 0.0;
};

// Time of a warp step's centre and the warp step around a sample of the stream.
struct StepClock
{
    int hop;
    int window = kRate * 25 / 1000;

    double timeOf(int step) const
    {
        const double frame = double(step) * kPooling + (kPooling - 1) / 2.0;
        return (frame * hop + window / 2.0) / kRate;
    }
    int stepAt(int64_t sample, int steps) const
    {
        const double frame = (double(sample) - window / 2.0) / hop;
        const long step = std::lround((frame - (kPooling - 1) / 2.0) / kPooling);
        return int(std::clamp(step, 0L, long(steps) - 1));
    }
};

// How sharply the warp's path picks its rows out of their neighbourhood,
// sentence by sentence: the mean distance of each of a sentence's sound
// steps to the recording row the path gives it, over the mean distance to
// rows 0.4 to 1 s before and after. The broad spectral shape (coefficients
// 1 to 3) is all that two voices share: a text read by another voice than
// the recording's still picks its rows sharply (median about 0.65 and
// below on the read lessons), while a text in another language than the
// recording's, or music, fits its neighbours about as well (0.8 and above).
// The median over sentences lets a sentence or two that the recording
// lacks pass.
double pathContrast(const std::vector<float>& rows, const std::vector<float>& columns,
                    const BandedWarp::Path& path, const std::vector<std::pair<int, int>>& sentences)
{
    constexpr int kDimensions = Mfcc::kCoefficients;
    const int rowCount = int(rows.size() / kDimensions);
    auto distance = [&](int row, int column) {
        const float* a = &rows[std::size_t(std::clamp(row, 0, rowCount - 1)) * kDimensions];
        const float* b = &columns[std::size_t(column) * kDimensions];
        float sum = 0.0f;
        for (int d = 1; d <= 3; ++d)
            sum += (a[d] - b[d]) * (a[d] - b[d]);
        return double(std::sqrt(sum));
    };
    std::vector<double> ratios;
    for (const auto& [first, last] : sentences) {
        double onPath = 0.0, beside = 0.0;
        for (int column = first; column <= last; ++column) {
            const int row =
                (path.firstRow[std::size_t(column)] + path.lastRow[std::size_t(column)]) / 2;
            onPath += distance(row, column);
            for (const int offset : {10, 15, 20, 25}) // steps of 40 ms
                beside += (distance(row - offset, column) + distance(row + offset, column)) / 8.0;
        }
        // Frames all alike (digital silence): no row stands out.
        ratios.push_back(beside > 0.0 ? onPath / beside : 1.0);
    }
    std::nth_element(ratios.begin(), ratios.begin() + std::ptrdiff_t(ratios.size() / 2),
                     ratios.end());
    return ratios[ratios.size() / 2];
}

// Runs the recording's pass on a thread of its own.
class RecordingReader
{
public:
    // A failure of the pass sets `stop`, so that the synthesis ends too.
    RecordingReader(const QString& path, std::atomic<bool>* stop)
        : m_thread([this, path, stop] {
              const Clock::time_point start = Clock::now();
              QString error;
              std::optional<RecordingFeatures> features =
                  RecordingFeatures::read(path, kRate, stop, &m_progress, &error);
              const double seconds = secondsSince(start);
              if (!features)
                  stop->store(true);
              std::lock_guard guard(m_lock);
              m_features = std::move(features);
              m_error = error;
              m_seconds = seconds;
              m_done = true;
              m_finished.notify_all();
          })
    {
    }
    ~RecordingReader() { m_thread.join(); }
    RecordingReader(const RecordingReader&) = delete;
    RecordingReader& operator=(const RecordingReader&) = delete;

    double progress() const { return m_progress.load(std::memory_order_relaxed); }
    // Waits at most `wait` for the pass to end; true once it has.
    bool waitFor(std::chrono::milliseconds wait)
    {
        std::unique_lock guard(m_lock);
        return m_finished.wait_for(guard, wait, [this] { return m_done; });
    }
    // After waitFor() said true.
    std::optional<RecordingFeatures>& features() { return m_features; }
    const QString& error() const { return m_error; }
    double seconds() const { return m_seconds; }

private:
    std::atomic<double> m_progress{0.0};
    std::mutex m_lock;
    std::condition_variable m_finished;
    bool m_done = false;
    std::optional<RecordingFeatures> m_features;
    QString m_error;
    double m_seconds = 0.0;
    std::thread m_thread; // last: starts once everything above exists
};

} // namespace

std::optional<AlignedSentences>
SentenceAligner::align(const QString& audioPath, const QStringList& sentences,
                       const QString& language, const Progress& progress,
                       const std::atomic<bool>* cancel, QString* error, Timing* timing)
{
    auto fail = [error](const QString& message) -> std::optional<AlignedSentences> {
        if (error)
            *error = message;
        return std::nullopt;
    };
    auto cancelled = [cancel] { return cancel && cancel->load(std::memory_order_relaxed); };
    auto report = [&progress](double fraction) {
        if (progress)
            progress(std::clamp(fraction, 0.0, 1.0));
    };
    QStringList texts;
    for (const QString& s : sentences) {
        if (!s.trimmed().isEmpty())
            texts.append(s.trimmed());
    }
    if (texts.isEmpty())
        return fail(QStringLiteral("The text has no sentence to align"));
    const QString voice = AlignmentLanguages::voice(language);
    if (voice.isEmpty())
        return fail(QStringLiteral("No voice reads the language \"%1\"").arg(language));
    Timing spent;

    // The recording's pass runs while the text is spoken; either side's
    // failure or a cancel stops the other through `stop`.
    std::atomic<bool> stop{false};
    RecordingReader reading(audioPath, &stop);
    auto phaseOne = [&](double spoken) { return 0.7 * (0.5 * spoken + 0.5 * reading.progress()); };

    SynthesisStream stream;
    QString synthesisError;
    const Clock::time_point synthesisStart = Clock::now();
    const bool spoken = SpeechSynthesizer::speak(
        texts, voice,
        [&](const int16_t* samples, int count) {
            if (cancelled() || stop.load(std::memory_order_relaxed))
                return false;
            stream.addSamples(samples, count);
            return true;
        },
        [&](qsizetype index) {
            stream.endSentence();
            report(phaseOne(double(index + 1) / double(texts.size())));
        },
        cancel, &synthesisError);
    double synthesisFeatureSeconds = 0.0;
    std::vector<float> synthesis = stream.finish(&synthesisFeatureSeconds);
    spent.synthesisSeconds = secondsSince(synthesisStart) - synthesisFeatureSeconds;
    if (!spoken)
        stop = true;
    while (!reading.waitFor(std::chrono::milliseconds(50))) {
        if (cancelled())
            stop = true;
        report(phaseOne(1.0));
    }
    if (cancelled())
        return fail(QStringLiteral("Cancelled"));
    // Whichever side failed first stopped the other, which then reports
    // "Cancelled": the first one's message is the one to give.
    const QString stopped = QStringLiteral("Cancelled");
    if (!spoken && synthesisError != stopped)
        return fail(synthesisError);
    if (!reading.features())
        return fail(reading.error());
    if (!spoken)
        return fail(synthesisError);
    RecordingFeatures& recording = *reading.features();
    spent.decodeSeconds = reading.seconds() - recording.featureSeconds;

    if (recording.mfcc.empty())
        return fail(QStringLiteral("The recording is too short to align"));
    const Clock::time_point poolingStart = Clock::now();
    std::vector<float> rows = Mfcc::pooled(recording.mfcc, kPooling);
    std::vector<float>().swap(recording.mfcc);
    std::vector<float> columns = Mfcc::pooled(synthesis, kPooling);
    std::vector<float>().swap(synthesis);
    Mfcc::normalise(rows);
    Mfcc::normalise(columns);
    spent.featureSeconds =
        recording.featureSeconds + synthesisFeatureSeconds + secondsSince(poolingStart);
    report(0.7);

    const StepClock recordingClock{recording.hop};
    const StepClock synthesisClock{stream.hop()};
    const int halfWidth =
        int(std::ceil(kBandHalfSeconds / (recordingClock.timeOf(1) - recordingClock.timeOf(0))));
    const Clock::time_point warpStart = Clock::now();
    QString warpError;
    const std::optional<BandedWarp::Path> path = BandedWarp::align(
        rows, columns, Mfcc::kCoefficients, halfWidth, cancel,
        [&](double fraction) { report(0.7 + 0.3 * fraction); }, &warpError);
    spent.warpSeconds = secondsSince(warpStart);
    if (timing)
        *timing = spent;
    if (!path)
        return fail(warpError);

    // A text in another language than the recording's, or a recording of
    // music, still warps into a well-formed result whose boundaries mostly
    // land in pauses, only on the wrong words: every boundary is then
    // marked uncertain. Not refused: the limit was drawn on synthetic
    // voices, and a real one that fits less sharply loses nothing but marks.
    const PauseSnapper snapper(recording.loudness, recording.duration);
    const int steps = int(columns.size() / Mfcc::kCoefficients);
    bool mismatched = false;
    if (snapper.hasSpeech()) {
        std::vector<std::pair<int, int>> sounds;
        for (std::size_t k = 0; k < std::size_t(texts.size()); ++k) {
            sounds.emplace_back(synthesisClock.stepAt(stream.speechStart[k], steps),
                                synthesisClock.stepAt(stream.speechEnd[k], steps));
        }
        mismatched = pathContrast(rows, columns, *path, sounds) > kMismatchContrast;
    }

    // Each boundary of the reading, carried over: the end of one sentence's
    // sound and the start of the next's, each where the path takes it, and
    // the middle of the two, settled into the recording's nearest pause.
    AlignedSentences out;
    double previous = snapper.speechStart();
    for (qsizetype k = 0; k < texts.size(); ++k) {
        AlignedSentence sentence;
        sentence.text = texts[k];
        if (k == 0) {
            sentence.start = snapper.speechStart();
            sentence.uncertain = !snapper.hasSpeech();
        } else {
            const int ending = synthesisClock.stepAt(stream.speechEnd[std::size_t(k - 1)], steps);
            const int starting = synthesisClock.stepAt(stream.speechStart[std::size_t(k)], steps);
            const double estimate = (recordingClock.timeOf(path->lastRow[std::size_t(ending)]) +
                                     recordingClock.timeOf(path->firstRow[std::size_t(starting)])) /
                                    2.0;
            const PauseSnapper::Snapped snapped = snapper.snap(estimate);
            // Never before the sentence in front: a sentence the recording
            // lacks is squeezed to nothing rather than reordered.
            sentence.start = std::clamp(snapped.time, previous, snapper.speechEnd());
            sentence.uncertain = snapped.uncertain || sentence.start != snapped.time;
            out.last().end = sentence.start;
        }
        previous = sentence.start;
        out.append(sentence);
    }
    out.last().end = std::max(out.last().start, snapper.speechEnd());
    if (mismatched) {
        for (AlignedSentence& sentence : out)
            sentence.uncertain = true;
    }
    report(1.0);
    return out;
}
