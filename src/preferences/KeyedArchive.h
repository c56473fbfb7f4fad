// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>
#include <variant>

// A small self-describing binary archive for the objects kept in the defaults
// store (colours, fonts, keyboard shortcuts). Layout, big-endian:
//
//   magic      4 bytes  "KLAR"
//   class tag  u8 length + ASCII (1..64 bytes)   e.g. "KeyboardShortcut"
//   version    u16      the class's coding version (1..)
//   count      u16      number of entries
//   entries    key (u8 length + ASCII, 1..64) + type byte + value:
//                'i' i64, 'u' u64, 'd' IEEE-754 double, 's' u32 length + UTF-8 (<= 64 KiB)
//
// Nothing may follow the last entry. A reader names the one class it accepts;
// anything else (another class, a newer version, a short or over-long buffer,
// a bad type byte, invalid UTF-8, a repeated key) is refused with a message.
class KeyedArchiver
{
public:
    KeyedArchiver(const QString& classTag, quint16 version);

    void encodeInt64(const QString& key, qint64 value);
    void encodeUInt64(const QString& key, quint64 value);
    void encodeDouble(const QString& key, double value);
    void encodeString(const QString& key, const QString& value);

    // The finished archive, or nothing with *error set when a key, the class tag
    // or a string does not fit the format.
    std::optional<QByteArray> archivedData(QString* error) const;

private:
    using Value = std::variant<qint64, quint64, double, QString>;
    QString m_classTag;
    quint16 m_version;
    QList<std::pair<QString, Value>> m_entries;
};

class KeyedUnarchiver
{
public:
    // Parses the archive and checks that it holds `classTag` at a version no newer
    // than `maxVersion`. Check isValid() before decoding.
    KeyedUnarchiver(const QByteArray& data, const QString& classTag, quint16 maxVersion);

    bool isValid() const { return m_error.isEmpty(); }
    QString errorString() const { return m_error; }
    quint16 version() const { return m_version; }

    // The value under the key; nothing, with the reader's error set, when the
    // key is missing or holds another type.
    std::optional<qint64> decodeInt64(const QString& key);
    std::optional<quint64> decodeUInt64(const QString& key);
    std::optional<double> decodeDouble(const QString& key);
    std::optional<QString> decodeString(const QString& key);
    bool containsKey(const QString& key) const;

    // Lets a class decoder refuse a value it read (out of range, say) in the
    // same way as a format error.
    void failWithError(const QString& error);

private:
    using Value = std::variant<qint64, quint64, double, QString>;
    void parse(const QByteArray& data, const QString& classTag, quint16 maxVersion);
    const Value* find(const QString& key, const char* expected);

    QString m_error;
    quint16 m_version = 0;
    QList<std::pair<QString, Value>> m_entries;
};
