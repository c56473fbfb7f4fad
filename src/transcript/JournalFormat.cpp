// SPDX-License-Identifier: GPL-3.0-or-later
#include "JournalFormat.h"

#include <QStringDecoder>
#include <array>
#include <cstring>

namespace JournalFormat {

namespace {

constexpr std::array<quint32, 256> makeCrcTable()
{
    std::array<quint32, 256> table{};
    for (quint32 i = 0; i < 256; ++i) {
        quint32 c = i;
        for (int k = 0; k < 8; ++k)
            c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
        table[i] = c;
    }
    return table;
}

constexpr std::array<quint32, 256> kCrcTable = makeCrcTable();

template <typename T>
void put(QByteArray& out, T value)
{
    for (size_t i = 0; i < sizeof(T); ++i)
        out.append(char(quint8(value >> (8 * i))));
}

template <typename T>
T get(const char* at)
{
    T value = 0;
    for (size_t i = 0; i < sizeof(T); ++i)
        value |= T(quint8(at[i])) << (8 * i);
    return value;
}

QByteArray record(Kind kind, quint64 sequence, quint32 row, const char* body, qsizetype bodySize)
{
    QByteArray out;
    out.reserve(kRecordOverhead + bodySize);
    put<quint32>(out, quint32(13 + bodySize));
    out.append(char(kind));
    put<quint64>(out, sequence);
    put<quint32>(out, row);
    out.append(body, bodySize);
    put<quint32>(out, crc32(out.constData(), out.size()));
    return out;
}

} // namespace

quint32 crc32(const char* data, qsizetype size)
{
    quint32 c = 0xFFFFFFFFu;
    for (qsizetype i = 0; i < size; ++i)
        c = kCrcTable[(c ^ quint8(data[i])) & 0xFF] ^ (c >> 8);
    return c ^ 0xFFFFFFFFu;
}

QByteArray header()
{
    QByteArray out(kMagic, sizeof kMagic);
    put<quint16>(out, kVersion);
    put<quint16>(out, 0);
    put<quint32>(out, crc32(out.constData(), out.size()));
    return out;
}

QByteArray rowRecord(quint64 sequence, int row, const QByteArray& utf8Text)
{
    return record(Kind::RowText, sequence, quint32(row), utf8Text.constData(), utf8Text.size());
}

QByteArray droppedThroughRecord(quint64 sequence, quint64 droppedThrough)
{
    QByteArray body;
    put<quint64>(body, droppedThrough);
    return record(Kind::DroppedThrough, sequence, 0, body.constData(), body.size());
}

HeaderCheck checkHeader(const QByteArray& bytes)
{
    const QByteArray ours = header();
    if (bytes.size() < kHeaderSize)
        return ours.startsWith(bytes) ? HeaderCheck::Empty : HeaderCheck::Foreign;
    return bytes.startsWith(ours) ? HeaderCheck::Ours : HeaderCheck::Foreign;
}

Parsed parse(const QByteArray& bytes)
{
    Parsed parsed;
    parsed.goodBytes = kHeaderSize;
    const char* data = bytes.constData();
    const qsizetype size = bytes.size();
    quint64 lastSequence = 0;
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);

    qsizetype at = kHeaderSize;
    while (size - at >= kRecordOverhead) {
        const quint32 length = get<quint32>(data + at);
        if (length < 13 || length > 13 + kMaxTextBytes || qsizetype(length) + 8 > size - at)
            break;
        const qsizetype end = at + 4 + length;
        if (get<quint32>(data + end) != crc32(data + at, 4 + length))
            break;
        Record r;
        r.kind = Kind(quint8(data[at + 4]));
        r.sequence = get<quint64>(data + at + 5);
        const quint32 row = get<quint32>(data + at + 13);
        const char* body = data + at + 17;
        const qsizetype bodySize = length - 13;
        if (r.sequence <= lastSequence)
            break;
        if (r.kind == Kind::RowText) {
            if (row > quint32(std::numeric_limits<int>::max()))
                break;
            r.row = int(row);
            r.text = utf8.decode(QByteArrayView(body, bodySize));
            if (utf8.hasError()) {
                utf8.resetState();
                break;
            }
        } else if (r.kind == Kind::DroppedThrough && bodySize == 8) {
            r.droppedThrough = get<quint64>(body);
        } else {
            break;
        }
        lastSequence = r.sequence;
        parsed.records.append(std::move(r));
        at = end + 4;
        parsed.goodBytes = at;
    }
    return parsed;
}

} // namespace JournalFormat
