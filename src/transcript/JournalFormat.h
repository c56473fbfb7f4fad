// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QtGlobal>

// The typing journal's file, byte by byte. All integers are little-endian.
//
//   header, 16 bytes
//     0   8  magic "KELMJRNL"
//     8   2  version, 1
//    10   2  zero
//    12   4  CRC-32 of bytes 0..11
//
//   then records, each self-delimiting:
//     0   4  L, the length of bytes 4 .. 4+L-1 (at least 13)
//     4   1  kind: 1 = row text, 2 = dropped through
//     5   8  sequence number; strictly increasing through the file
//    13   4  row (kind 1) or zero
//    17 L-13 kind 1: the row's whole text, UTF-8, any bytes allowed
//            kind 2: 8 bytes, the sequence number through which earlier
//                    row records are dropped
//   4+L   4  CRC-32 (IEEE, as zlib) of bytes 0 .. 4+L-1
//
// A record says "row N now reads TEXT", so applying a record twice, or an old
// one before a newer one of the same row, ends in the same rows. A reader
// keeps the records before the first one that is short, fails its CRC, has an
// unknown kind or a sequence number that does not increase, and ignores the
// rest: that is the torn tail of a write cut short.
namespace JournalFormat {

inline constexpr char kMagic[8] = {'K', 'E', 'L', 'M', 'J', 'R', 'N', 'L'};
inline constexpr quint16 kVersion = 1;
inline constexpr qsizetype kHeaderSize = 16;
inline constexpr qsizetype kRecordOverhead = 4 + 13 + 4;
// A row's text beyond this is not journaled; no typed row comes near it, and
// a length past it in a file is damage, not a record to allocate for.
inline constexpr qsizetype kMaxTextBytes = 16 * 1024 * 1024;

enum class Kind : quint8 { RowText = 1, DroppedThrough = 2 };

quint32 crc32(const char* data, qsizetype size);

QByteArray header();

// One whole record, ready for a single write.
QByteArray rowRecord(quint64 sequence, int row, const QByteArray& utf8Text);
QByteArray droppedThroughRecord(quint64 sequence, quint64 droppedThrough);

struct Record
{
    Kind kind = Kind::RowText;
    quint64 sequence = 0;
    int row = 0;
    QString text;              // kind 1
    quint64 droppedThrough = 0; // kind 2
};

enum class HeaderCheck {
    Ours,     // a header this version reads
    Empty,    // no bytes, or the first bytes of our header: a file cut while created
    Foreign,  // not a Kelmora journal, or one of a later version
};

HeaderCheck checkHeader(const QByteArray& bytes);

struct Parsed
{
    QList<Record> records; // in file order
    qsizetype goodBytes = 0; // header and whole good records
};

// The good records of a file whose header checkHeader() called Ours.
Parsed parse(const QByteArray& bytes);

} // namespace JournalFormat
