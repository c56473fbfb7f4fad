// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

// What a recording sounds like, as a name: unlike the file identity it stays
// the same when the file is moved, copied, renamed or re-tagged, because tags
// and container bytes never reach the decoded audio the analysis measures.
// Two files of the same size with different audio get different names.
namespace ContentFingerprint {

// 64 lower-case hexadecimal digits: the SHA-256 of the sample rate, the
// number of decoded sample frames and every loudness value (one per 20 ms
// analysis frame) as its exact IEEE-754 bits, all little-endian. Empty when
// there is no audio (no frames or no loudness values).
QString of(const QList<float>& rmsValues, double sampleRate, qint64 frames);

// Whether a text has the form of a fingerprint (or a file identity, which
// shares it): 64 lower-case hexadecimal digits.
bool isWellFormed(const QString& text);

} // namespace ContentFingerprint
