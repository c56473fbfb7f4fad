// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/TimeStretcher.h"

#include <algorithm>
#include <rubberband/RubberBandStretcher.h>

using RubberBand::RubberBandStretcher;

TimeStretcher::TimeStretcher(int sampleRate, int channels, int maxBlock)
    : m_sampleRate(sampleRate), m_channels(channels), m_maxBlock(maxBlock),
      m_planes(static_cast<size_t>(channels), std::vector<float>(static_cast<size_t>(maxBlock))),
      m_pointers(static_cast<size_t>(channels))
{
    for (size_t c = 0; c < m_planes.size(); ++c)
        m_pointers[c] = m_planes[c].data();
    reset(1.0);
}

TimeStretcher::~TimeStretcher() = default;

void TimeStretcher::reset(double rate)
{
    // A new stretcher made at the target ratio rather than reset(): a reset one
    // remembers its earlier ratio and eases from it, so the same segment would
    // sound slightly different depending on what was played before.
    // Sped up, every second heard takes in several seconds of source; the
    // short window keeps 3.0x affordable. Slowed speech, where the learner
    // listens hardest, keeps the standard window.
    RubberBandStretcher::Options options =
        RubberBandStretcher::OptionProcessRealTime | RubberBandStretcher::OptionEngineFiner;
    if (rate > 1.0)
        options |= RubberBandStretcher::OptionWindowShort;
    m_stretcher = std::make_unique<RubberBandStretcher>(static_cast<size_t>(m_sampleRate),
                                                        static_cast<size_t>(m_channels), options,
                                                        1.0 / rate, 1.0);
    m_stretcher->setMaxProcessSize(static_cast<size_t>(m_maxBlock));
}

qsizetype TimeStretcher::startPad() const
{
    return static_cast<qsizetype>(m_stretcher->getPreferredStartPad());
}

qsizetype TimeStretcher::startDelay() const
{
    return static_cast<qsizetype>(m_stretcher->getStartDelay());
}

void TimeStretcher::process(const float* interleaved, qsizetype frames, bool final)
{
    const auto n = static_cast<size_t>(std::min<qsizetype>(frames, m_maxBlock));
    const auto channels = static_cast<size_t>(m_channels);
    for (size_t c = 0; c < channels; ++c) {
        float* plane = m_planes[c].data();
        for (size_t i = 0; i < n; ++i)
            plane[i] = interleaved ? interleaved[i * channels + c] : 0.0f;
    }
    m_stretcher->process(m_pointers.data(), n, final);
}

qsizetype TimeStretcher::available() const
{
    return m_stretcher->available();
}

qsizetype TimeStretcher::retrieve(float* interleaved, qsizetype maxFrames)
{
    const auto want = static_cast<size_t>(std::min<qsizetype>(maxFrames, m_maxBlock));
    const size_t got = m_stretcher->retrieve(m_pointers.data(), want);
    const auto channels = static_cast<size_t>(m_channels);
    for (size_t c = 0; c < channels; ++c) {
        const float* plane = m_planes[c].data();
        for (size_t i = 0; i < got; ++i)
            interleaved[i * channels + c] = plane[i];
    }
    return static_cast<qsizetype>(got);
}
