// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/ContentFingerprint.h"

#include <QCryptographicHash>
#include <QtEndian>
#include <cstring>

namespace ContentFingerprint {

namespace {
// Names the layout below, so that a later one can never produce a match.
constexpr char kLayout[] = "kelmora-content-1";
} // namespace

QString of(const QList<float>& rmsValues, double sampleRate, qint64 frames)
{
    if (rmsValues.isEmpty() || frames <= 0)
        return {};
    // BLAKE2b rather than SHA-256: both give 256 bits, but Qt's SHA-256 has
    // no hardware path and takes about 7 ms over an hour's values, which the
    // opening waits for; BLAKE2b takes under 1 ms.
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    hash.addData(QByteArrayView(kLayout, sizeof kLayout - 1));
    quint64 rateBits = 0;
    std::memcpy(&rateBits, &sampleRate, sizeof rateBits);
    const quint64 header[2] = {qToLittleEndian(rateBits), qToLittleEndian(quint64(frames))};
    hash.addData(QByteArrayView(reinterpret_cast<const char*>(header), sizeof header));
    // The values are hashed as they are, unquantised: the decoders are exact,
    // so a copy of the same audio yields the same bits.
    static_assert(sizeof(float) == sizeof(quint32));
    if constexpr (QSysInfo::ByteOrder == QSysInfo::LittleEndian) {
        hash.addData(QByteArrayView(reinterpret_cast<const char*>(rmsValues.constData()),
                                    rmsValues.size() * qsizetype(sizeof(float))));
    } else {
        QList<quint32> little(rmsValues.size());
        for (qsizetype i = 0; i < rmsValues.size(); ++i) {
            quint32 bits = 0;
            std::memcpy(&bits, &rmsValues[i], sizeof bits);
            little[i] = qToLittleEndian(bits);
        }
        hash.addData(QByteArrayView(reinterpret_cast<const char*>(little.constData()),
                                    little.size() * qsizetype(sizeof(quint32))));
    }
    return QString::fromLatin1(hash.result().toHex());
}

bool isWellFormed(const QString& text)
{
    if (text.size() != 64)
        return false;
    for (const QChar c : text) {
        if (!((c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f')))
            return false;
    }
    return true;
}

} // namespace ContentFingerprint
