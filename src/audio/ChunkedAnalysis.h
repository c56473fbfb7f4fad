// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/AnalysisPlan.h"
#include "audio/WaveformPeaks.h"

#include <QList>
#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

class AudioDecoder;

// The analysis of a file decoded in parts side by side, one thread each, and
// joined in order into exactly what one pass from the start measures. Only
// codecs known to decode exactly after a seek are split. Every part checks
// that its time stamps run on without a gap, and the samples each part
// decoded just before its start must equal, bit for bit, those its
// predecessor decoded there; when anything disagrees the result is refused
// and the caller reads the file in one pass instead. (The comparison shows
// that a part is placed right and its codec has run in; it cannot see state
// that only diverges later, such as AAC's noise generator: hence the list.)
class ChunkedAnalysis
{
public:
    struct Result
    {
        QList<float> rmsValues;
        WaveformPeaks peaks;
        qint64 frames = 0;
    };

    // Whether a codec's samples after a seek and its run-in are those of a
    // reading from the start.
    static bool decodesExactlyAfterSeek(uint32_t formatID);

    // `decoder` is open, with its codec, at the start of `path`; it reads the
    // first part, the others open the file again.
    ChunkedAnalysis(const QString& path, AudioDecoder& decoder, const AnalysisPlan& plan,
                    uint32_t frameLength);

    // Fraction done, 0..1, from whichever thread measured the last buffer.
    void setProgress(std::function<void(double)> progress) { m_progress = std::move(progress); }

    // The joined result, or nullopt when the file is to be read in one pass.
    std::optional<Result> run();
    // Why run() refused, for the log.
    QString refusal() const { return m_refusal; }

private:
    QString m_path;
    AudioDecoder& m_decoder;
    AnalysisPlan m_plan;
    uint32_t m_frameLength;
    std::function<void(double)> m_progress;
    QString m_refusal;
};
