// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/KeyedArchive.h"

#include <QDataStream>
#include <QIODevice>
#include <QStringDecoder>
#include <algorithm>

namespace {

constexpr char kMagic[4] = {'K', 'L', 'A', 'R'};
constexpr int kMaxNameLength = 64;
constexpr quint32 kMaxStringBytes = 64 * 1024;
constexpr quint16 kMaxEntries = 256;

bool isPlainName(const QString& name)
{
    if (name.isEmpty() || name.size() > kMaxNameLength)
        return false;
    for (QChar c : name) {
        if (c.unicode() < 0x21 || c.unicode() > 0x7e)
            return false;
    }
    return true;
}

QDataStream& fixedStream(QDataStream& s)
{
    s.setVersion(QDataStream::Qt_6_0);
    s.setByteOrder(QDataStream::BigEndian);
    s.setFloatingPointPrecision(QDataStream::DoublePrecision);
    return s;
}

void writeName(QDataStream& out, const QString& name)
{
    const QByteArray bytes = name.toLatin1();
    out << quint8(bytes.size());
    out.writeRawData(bytes.constData(), int(bytes.size()));
}

// Reads a u8-length ASCII name; empty on any fault (stream status says why).
QString readName(QDataStream& in, QString* fault)
{
    quint8 length = 0;
    in >> length;
    if (in.status() != QDataStream::Ok)
        return {};
    if (length == 0 || length > kMaxNameLength) {
        *fault =
            QStringLiteral("a name of length %1 is outside 1..%2").arg(length).arg(kMaxNameLength);
        return {};
    }
    QByteArray bytes(length, Qt::Uninitialized);
    if (in.readRawData(bytes.data(), length) != length) {
        in.setStatus(QDataStream::ReadPastEnd);
        return {};
    }
    const QString name = QString::fromLatin1(bytes);
    if (!isPlainName(name)) {
        *fault = QStringLiteral("a name holds characters other than printable ASCII");
        return {};
    }
    return name;
}

} // namespace

KeyedArchiver::KeyedArchiver(const QString& classTag, quint16 version)
    : m_classTag(classTag), m_version(version)
{
}

void KeyedArchiver::encodeInt64(const QString& key, qint64 value)
{
    m_entries.append({key, value});
}

void KeyedArchiver::encodeUInt64(const QString& key, quint64 value)
{
    m_entries.append({key, value});
}

void KeyedArchiver::encodeDouble(const QString& key, double value)
{
    m_entries.append({key, value});
}

void KeyedArchiver::encodeString(const QString& key, const QString& value)
{
    m_entries.append({key, value});
}

std::optional<QByteArray> KeyedArchiver::archivedData(QString* error) const
{
    auto fail = [error](const QString& why) -> std::optional<QByteArray> {
        if (error)
            *error = why;
        return std::nullopt;
    };
    if (!isPlainName(m_classTag))
        return fail(
            QStringLiteral("the class tag \"%1\" is not a short ASCII name").arg(m_classTag));
    if (m_version == 0)
        return fail(QStringLiteral("version 0 is reserved"));
    if (m_entries.size() > kMaxEntries)
        return fail(QStringLiteral("too many entries"));

    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    fixedStream(out);
    out.writeRawData(kMagic, sizeof kMagic);
    writeName(out, m_classTag);
    out << m_version << quint16(m_entries.size());
    QStringList seen;
    for (const auto& [key, value] : m_entries) {
        if (!isPlainName(key))
            return fail(QStringLiteral("the key \"%1\" is not a short ASCII name").arg(key));
        if (seen.contains(key))
            return fail(QStringLiteral("the key \"%1\" is encoded twice").arg(key));
        seen.append(key);
        writeName(out, key);
        if (const auto* i = std::get_if<qint64>(&value)) {
            out << quint8('i') << *i;
        } else if (const auto* u = std::get_if<quint64>(&value)) {
            out << quint8('u') << *u;
        } else if (const auto* d = std::get_if<double>(&value)) {
            out << quint8('d') << *d;
        } else {
            const QByteArray utf8 = std::get<QString>(value).toUtf8();
            if (quint32(utf8.size()) > kMaxStringBytes)
                return fail(
                    QStringLiteral("the string under \"%1\" is longer than 64 KiB").arg(key));
            out << quint8('s') << quint32(utf8.size());
            out.writeRawData(utf8.constData(), int(utf8.size()));
        }
    }
    if (out.status() != QDataStream::Ok)
        return fail(QStringLiteral("the archive could not be written"));
    return data;
}

KeyedUnarchiver::KeyedUnarchiver(const QByteArray& data, const QString& classTag,
                                 quint16 maxVersion)
{
    parse(data, classTag, maxVersion);
    if (!m_error.isEmpty())
        m_entries.clear();
}

void KeyedUnarchiver::parse(const QByteArray& data, const QString& classTag, quint16 maxVersion)
{
    const QString truncated = QStringLiteral("the archive is truncated");
    if (data.isEmpty()) {
        m_error = QStringLiteral("the data is empty");
        return;
    }
    QDataStream in(data);
    fixedStream(in);

    char magic[sizeof kMagic] = {};
    if (in.readRawData(magic, sizeof magic) != int(sizeof magic) ||
        !std::equal(magic, magic + sizeof magic, kMagic)) {
        m_error = QStringLiteral("the data is not a Kelmora archive");
        return;
    }
    QString fault;
    const QString tag = readName(in, &fault);
    if (tag.isEmpty()) {
        m_error = fault.isEmpty() ? truncated : fault;
        return;
    }
    if (tag != classTag) {
        m_error = QStringLiteral("the archive holds a %1, not a %2").arg(tag, classTag);
        return;
    }
    quint16 count = 0;
    in >> m_version >> count;
    if (in.status() != QDataStream::Ok) {
        m_error = truncated;
        return;
    }
    if (m_version == 0 || m_version > maxVersion) {
        m_error = QStringLiteral("%1 version %2 is not readable here (1..%3)")
                      .arg(classTag)
                      .arg(m_version)
                      .arg(maxVersion);
        return;
    }
    if (count > kMaxEntries) {
        m_error = QStringLiteral("the archive claims %1 entries").arg(count);
        return;
    }
    for (quint16 n = 0; n < count; ++n) {
        const QString key = readName(in, &fault);
        if (key.isEmpty()) {
            m_error = fault.isEmpty() ? truncated : fault;
            return;
        }
        if (containsKey(key)) {
            m_error = QStringLiteral("the key \"%1\" appears twice").arg(key);
            return;
        }
        quint8 type = 0;
        in >> type;
        Value value;
        switch (type) {
        case 'i': {
            qint64 v = 0;
            in >> v;
            value = v;
            break;
        }
        case 'u': {
            quint64 v = 0;
            in >> v;
            value = v;
            break;
        }
        case 'd': {
            double v = 0;
            in >> v;
            value = v;
            break;
        }
        case 's': {
            quint32 length = 0;
            in >> length;
            if (in.status() != QDataStream::Ok)
                break;
            if (length > kMaxStringBytes || qint64(length) > in.device()->bytesAvailable()) {
                m_error = length > kMaxStringBytes
                              ? QStringLiteral("the string under \"%1\" is too long").arg(key)
                              : truncated;
                return;
            }
            QByteArray bytes(qsizetype(length), Qt::Uninitialized);
            in.readRawData(bytes.data(), int(length));
            QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
            QString text = decode(bytes);
            if (decode.hasError()) {
                m_error = QStringLiteral("the string under \"%1\" is not UTF-8").arg(key);
                return;
            }
            value = text;
            break;
        }
        default:
            if (in.status() == QDataStream::Ok) {
                m_error = QStringLiteral("unknown value type %1 under \"%2\"").arg(type).arg(key);
                return;
            }
        }
        if (in.status() != QDataStream::Ok) {
            m_error = truncated;
            return;
        }
        m_entries.append({key, value});
    }
    if (!in.atEnd())
        m_error = QStringLiteral("%1 bytes follow the archive").arg(in.device()->bytesAvailable());
}

bool KeyedUnarchiver::containsKey(const QString& key) const
{
    for (const auto& entry : m_entries) {
        if (entry.first == key)
            return true;
    }
    return false;
}

const KeyedUnarchiver::Value* KeyedUnarchiver::find(const QString& key, const char* expected)
{
    if (!m_error.isEmpty())
        return nullptr;
    for (const auto& entry : m_entries) {
        if (entry.first == key)
            return &entry.second;
    }
    m_error =
        QStringLiteral("the archive has no %1 under \"%2\"").arg(QLatin1String(expected), key);
    return nullptr;
}

void KeyedUnarchiver::failWithError(const QString& error)
{
    if (m_error.isEmpty())
        m_error = error;
}

std::optional<qint64> KeyedUnarchiver::decodeInt64(const QString& key)
{
    const Value* v = find(key, "signed integer");
    if (!v)
        return std::nullopt;
    if (const auto* i = std::get_if<qint64>(v))
        return *i;
    failWithError(QStringLiteral("the value under \"%1\" is not a signed integer").arg(key));
    return std::nullopt;
}

std::optional<quint64> KeyedUnarchiver::decodeUInt64(const QString& key)
{
    const Value* v = find(key, "unsigned integer");
    if (!v)
        return std::nullopt;
    if (const auto* u = std::get_if<quint64>(v))
        return *u;
    failWithError(QStringLiteral("the value under \"%1\" is not an unsigned integer").arg(key));
    return std::nullopt;
}

std::optional<double> KeyedUnarchiver::decodeDouble(const QString& key)
{
    const Value* v = find(key, "number");
    if (!v)
        return std::nullopt;
    if (const auto* d = std::get_if<double>(v))
        return *d;
    failWithError(QStringLiteral("the value under \"%1\" is not a number").arg(key));
    return std::nullopt;
}

std::optional<QString> KeyedUnarchiver::decodeString(const QString& key)
{
    const Value* v = find(key, "string");
    if (!v)
        return std::nullopt;
    if (const auto* s = std::get_if<QString>(v))
        return *s;
    failWithError(QStringLiteral("the value under \"%1\" is not a string").arg(key));
    return std::nullopt;
}
