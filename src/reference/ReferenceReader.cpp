// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ReferenceReader.h"

#include "common/Log.h"
#include "reference/LrcReferenceReader.h"
#include "reference/PlainTextReader.h"
#include "reference/SubRipReader.h"
#include "reference/TimedUnitFilter.h"
#include "reference/WebVttReader.h"
#include "transcript/LrcReader.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

namespace {

using Kind = ReferenceReadError::Kind;

std::optional<ReferenceText> fail(ReferenceReadError* error, Kind kind, const QString& message)
{
    qCInfo(lcReference).noquote() << QStringLiteral("Error reading a reference text: ") + message;
    if (error)
        *error = ReferenceReadError{kind, message};
    return std::nullopt;
}

QString quoted(const QString& fileName)
{
    return QStringLiteral("\u201c%1\u201d").arg(fileName);
}

std::optional<ReferenceText> unknownFormat(ReferenceReadError* error, const QString& fileName)
{
    return fail(error, Kind::UnknownFormat,
                QStringLiteral("%1 cannot be a reference text: only .txt, .srt, .vtt and .lrc "
                               "files are read.")
                    .arg(quoted(fileName)));
}

bool hasUtf16ByteOrderMark(const QByteArray& bytes)
{
    return bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff");
}

bool onlyWhiteSpace(const QString& text)
{
    for (const QChar c : text) {
        if (!c.isSpace())
            return false;
    }
    return true;
}

} // namespace

QStringList ReferenceReader::extensions()
{
    return {QStringLiteral("txt"), QStringLiteral("srt"), QStringLiteral("vtt"),
            QStringLiteral("lrc")};
}

std::optional<ReferenceText> ReferenceReader::readFile(const QString& path, double audioDuration,
                                                       ReferenceReadError* error)
{
    const QString fileName = QFileInfo(path).fileName();
    if (!extensions().contains(QFileInfo(path).suffix().toLower()))
        return unknownFormat(error, fileName);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(
            error, Kind::Unreadable,
            QStringLiteral("%1 cannot be opened: %2").arg(quoted(fileName), file.errorString()));
    // One byte more than allowed tells a file that is too large, without
    // reading it all; a device with no size (a pipe) is caught the same way.
    const QByteArray bytes = file.read(MaximumSize + 1);
    if (file.error() != QFileDevice::NoError)
        return fail(
            error, Kind::Unreadable,
            QStringLiteral("%1 cannot be read: %2").arg(quoted(fileName), file.errorString()));
    return readBytes(bytes, fileName, audioDuration, error);
}

std::optional<ReferenceText> ReferenceReader::readBytes(const QByteArray& bytes,
                                                        const QString& fileName,
                                                        double audioDuration,
                                                        ReferenceReadError* error)
{
    const QString name = quoted(fileName);
    const QString extension = QFileInfo(fileName).suffix().toLower();
    if (!extensions().contains(extension))
        return unknownFormat(error, fileName);
    if (bytes.size() > MaximumSize)
        return fail(error, Kind::TooLarge,
                    QStringLiteral("%1 is too large for a reference text (at most %2 MB).")
                        .arg(name)
                        .arg(MaximumSize / (1024 * 1024)));
    if (hasUtf16ByteOrderMark(bytes))
        return fail(error, Kind::NotUtf8,
                    QStringLiteral("%1 is UTF-16 text; only UTF-8 can be read.").arg(name));
    if (bytes.contains('\0'))
        return fail(error, Kind::NotText, QStringLiteral("%1 is not a text file.").arg(name));
    std::optional<QString> text = Lrc::decodeUtf8(bytes);
    if (!text)
        return fail(error, Kind::NotUtf8, QStringLiteral("%1 is not UTF-8 text.").arg(name));
    // Byte-order marks left inside by joining files are no text; they would
    // also hide a cue number, and Qt's JSON drops one that begins a string.
    text->remove(QChar(0xFEFF));
    if (onlyWhiteSpace(*text))
        return fail(error, Kind::Empty, QStringLiteral("%1 is empty.").arg(name));

    QList<ReferenceUnit> units;
    if (extension == QLatin1String("txt")) {
        units = PlainTextReader::read(*text);
    } else {
        SubtitleSyntax::ParsedUnits parsed;
        QString place = QStringLiteral("the cue at line %1");
        if (extension == QLatin1String("srt")) {
            parsed = SubRipReader::read(*text);
        } else if (extension == QLatin1String("vtt")) {
            std::optional<SubtitleSyntax::ParsedUnits> cues = WebVttReader::read(*text);
            if (!cues)
                return fail(error, Kind::NotWebVtt,
                            QStringLiteral("%1 is not a WebVTT file: it does not begin with "
                                           "\u201cWEBVTT\u201d.")
                                .arg(name));
            parsed = std::move(*cues);
        } else {
            parsed = LrcReferenceReader::read(*text, audioDuration);
            place = QStringLiteral("stamped line %1");
        }
        if (parsed.isEmpty())
            return fail(error, Kind::NothingUsable,
                        extension == QLatin1String("lrc")
                            ? QStringLiteral("%1 holds no time-stamped lines with text.").arg(name)
                            : QStringLiteral("%1 holds no subtitles.").arg(name));
        QString firstDrop;
        units = TimedUnitFilter::keepUsable(std::move(parsed), audioDuration, fileName, place,
                                            &firstDrop);
        if (units.isEmpty())
            return fail(
                error, Kind::NothingUsable,
                QStringLiteral("%1 has nothing that can be used: %2.").arg(name, firstDrop));
    }
    qCInfo(lcReference).noquote()
        << QStringLiteral("Read the reference text %1: %2 units").arg(name).arg(units.size());
    return ReferenceText(fileName, std::move(units));
}
