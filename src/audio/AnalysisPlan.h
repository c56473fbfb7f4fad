// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <cstdint>

// Where the analysis of a file is cut into parts decoded side by side. Every
// border falls on an analysis-frame boundary, so each part measures whole
// frames and the parts' loudness lists join end to end.
class AnalysisPlan
{
public:
    // A part shorter than this costs more in opening and running in than it
    // saves.
    static constexpr double kMinPartSeconds = 1.0;
    // Threads beyond any machine's cores only cost memory.
    static constexpr int kMaxParts = 64;

    // Up to `parts` parts of about equal length for a stream of about
    // `expectedFrames` sample frames (the container's figure, which may be
    // off: the last part runs to the end whatever it is). One part when the
    // stream is too short to split.
    static AnalysisPlan make(int64_t expectedFrames, uint32_t frameLength, double sampleRate,
                             int parts);

    int parts() const { return static_cast<int>(m_borders.size()); }
    int64_t expectedFrames() const { return m_expectedFrames; }
    // First sample frame of a part.
    int64_t begin(int part) const { return m_borders[part]; }
    // First sample frame after a part; kOpenEnd for the last.
    static constexpr int64_t kOpenEnd = -1;
    int64_t end(int part) const { return part + 1 < parts() ? m_borders[part + 1] : kOpenEnd; }
    // Index of a part's first value in the joined loudness list.
    qsizetype firstValue(int part) const
    {
        return static_cast<qsizetype>(m_borders[part] / m_frameLength);
    }
    // Number of loudness values of a part that is not the last.
    qsizetype values(int part) const { return firstValue(part + 1) - firstValue(part); }

private:
    QList<int64_t> m_borders{0};
    int64_t m_frameLength = 1;
    int64_t m_expectedFrames = 0;
};
