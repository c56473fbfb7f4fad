// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/ChunkedAnalysis.h"

#include "audio/AnalysisPass.h"
#include "audio/AudioDecoder.h"
#include "audio/FourCC.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace {

// Frames compared at each border; no more than the shortest part.
constexpr int64_t kWindowFrames = 2048;

} // namespace

bool ChunkedAnalysis::decodesExactlyAfterSeek(uint32_t formatID)
{
    switch (formatID) {
    case FourCC::MP3: // exact once its bit reservoir and overlap have run in
    case FourCC::FLAC:
    case FourCC::ALAC:
    case FourCC::LinearPCM: // these decode every frame on its own
        return true;
    case FourCC::AAC:
        // FFmpeg's AAC decoder fills noise-substituted bands (PNS, on by
        // default in encoders) from a random state carried across frames,
        // so after a seek its samples differ from a reading from the start,
        // and only where a band is next substituted, past any border check.
    default:
        // Other codecs have not been shown to be exact here.
        return false;
    }
}

ChunkedAnalysis::ChunkedAnalysis(const QString& path, AudioDecoder& decoder,
                                 const AnalysisPlan& plan, uint32_t frameLength)
    : m_path(path), m_decoder(decoder), m_plan(plan), m_frameLength(frameLength)
{
}

std::optional<ChunkedAnalysis::Result> ChunkedAnalysis::run()
{
    const int parts = m_plan.parts();
    const int64_t expected = std::max<int64_t>(m_plan.expectedFrames(), 1);
    int64_t window = kWindowFrames;
    for (int k = 1; k < parts; ++k)
        window = std::min(window, m_plan.begin(k) - m_plan.begin(k - 1));

    // Every part but the last writes its values in place; the last one's
    // length is only known at the end of the stream.
    Result result;
    const qsizetype inPlace = m_plan.firstValue(parts - 1);
    result.rmsValues.reserve(inPlace + inPlace / (parts - 1) + 1);
    result.rmsValues.resize(inPlace);

    std::atomic<int64_t> done{0};
    std::atomic<bool> stop{false};
    const auto report = [this, &done, expected](int64_t frames) {
        const int64_t total = done.fetch_add(frames, std::memory_order_relaxed) + frames;
        if (m_progress)
            m_progress(std::min(0.99, static_cast<double>(total) / static_cast<double>(expected)));
    };
    // The codec's sample format is what the first buffer has: every part
    // converts to it, as one reading from the start does.
    const int sampleFormat = m_decoder.codecSampleFormat();

    std::vector<std::unique_ptr<AnalysisPass>> passes;
    std::vector<AnalysisPass::Outcome> outcomes(static_cast<std::size_t>(parts));
    for (int k = 0; k < parts; ++k) {
        const bool last = k == parts - 1;
        auto pass = std::make_unique<AnalysisPass>(
            m_plan.begin(k), m_plan.end(k), m_frameLength,
            last ? nullptr : result.rmsValues.data() + m_plan.firstValue(k),
            last ? 0 : m_plan.values(k));
        pass->setChecked(window);
        pass->setProgress(report);
        pass->setStopFlag(&stop);
        passes.push_back(std::move(pass));
    }
    const auto runPart = [&](int k, AudioDecoder& decoder) {
        auto& outcome = outcomes[static_cast<std::size_t>(k)];
        outcome = passes[static_cast<std::size_t>(k)]->run(decoder);
        if (outcome != AnalysisPass::Outcome::Done)
            stop.store(true, std::memory_order_relaxed);
    };

    std::vector<std::thread> threads;
    for (int k = 1; k < parts; ++k) {
        threads.emplace_back([&, k] {
            AudioDecoder decoder;
            decoder.setConformFormat(sampleFormat);
            if (!decoder.open(m_path) || !decoder.openCodec()) {
                outcomes[static_cast<std::size_t>(k)] = AnalysisPass::Outcome::Error;
                stop.store(true, std::memory_order_relaxed);
                return;
            }
            runPart(k, decoder);
        });
    }
    m_decoder.setConformFormat(sampleFormat);
    runPart(0, m_decoder);
    for (std::thread& thread : threads)
        thread.join();

    // The part that failed, not one it stopped.
    for (const auto failed : {AnalysisPass::Outcome::Inexact, AnalysisPass::Outcome::Error,
                              AnalysisPass::Outcome::Stopped}) {
        const auto at = std::find(outcomes.begin(), outcomes.end(), failed);
        if (at != outcomes.end()) {
            const auto k = static_cast<std::size_t>(at - outcomes.begin());
            m_refusal = QStringLiteral("part %1 of %2 cannot vouch for its samples %3")
                            .arg(k + 1)
                            .arg(parts)
                            .arg(passes[k]->errorString());
            return std::nullopt;
        }
    }
    // The stream may end before the container said: the part it ends in is
    // the last with samples, and those after it must have found none.
    int end = 0;
    while (end < parts - 1 && !passes[static_cast<std::size_t>(end)]->endedEarly())
        ++end;
    for (int k = end + 1; k < parts; ++k) {
        if (passes[static_cast<std::size_t>(k)]->frames() > 0) {
            m_refusal = QStringLiteral("part %1 has samples after the end of part %2")
                            .arg(k + 1)
                            .arg(end + 1);
            return std::nullopt;
        }
    }
    for (int k = 1; k <= end; ++k) {
        const AnalysisPass& before = *passes[static_cast<std::size_t>(k - 1)];
        const AnalysisPass& after = *passes[static_cast<std::size_t>(k)];
        if (before.tail().channel0.size() != static_cast<std::size_t>(window) ||
            !(before.tail() == after.head())) {
            m_refusal = QStringLiteral("parts %1 and %2 decode different samples at their border")
                            .arg(k)
                            .arg(k + 1);
            return std::nullopt;
        }
    }

    for (int k = 0; k <= end; ++k) {
        AnalysisPass& pass = *passes[static_cast<std::size_t>(k)];
        if (k < parts - 1 && k < end && pass.valueCount() != m_plan.values(k)) {
            m_refusal = QStringLiteral("part %1 measured %2 values for %3")
                            .arg(k + 1)
                            .arg(pass.valueCount())
                            .arg(m_plan.values(k));
            return std::nullopt;
        }
        result.peaks.append(pass.peaks());
        result.frames += pass.frames();
    }
    AnalysisPass& closing = *passes[static_cast<std::size_t>(end)];
    if (end < parts - 1)
        result.rmsValues.resize(m_plan.firstValue(end) + closing.valueCount());
    else
        result.rmsValues.append(closing.takeRmsValues());
    return result;
}
