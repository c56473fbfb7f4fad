// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/ReferenceText.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

// Why a reference file could not be read.
struct ReferenceReadError
{
    enum class Kind
    {
        Unreadable,    // the file system refused it
        UnknownFormat, // not .txt, .srt, .vtt or .lrc
        TooLarge,      // over ReferenceReader::MaximumSize
        NotText,       // binary
        NotUtf8,       // text in another encoding
        Empty,         // nothing but white space
        NotWebVtt,     // a .vtt without its header
        NothingUsable, // no unit, or none that lies on the audio
    };
    Kind kind = Kind::Unreadable;
    // One sentence naming the file and what is wrong with it.
    QString message;
};

// Reads a file the learner attaches as a lesson's reference text, with the
// reader its extension names (any case): .srt, .vtt, .lrc or .txt. The file
// must be UTF-8, with or without a byte-order mark. Timed units that cannot
// be placed on the audio are left out with a log line each; the rest come in
// time order. Reading takes time linear in the file's size, which is bounded.
class ReferenceReader
{
public:
    // Far more than the transcript of any lesson; bounds time and memory.
    static constexpr qint64 MaximumSize = 16 * 1024 * 1024;

    // The extensions read, lower case, without the dot.
    static QStringList extensions();

    // `audioDuration` is the lesson's length in seconds (0 or less when
    // unknown): units past it are left out, and the last line of an .lrc
    // runs to it.
    static std::optional<ReferenceText> readFile(const QString& path, double audioDuration,
                                                 ReferenceReadError* error = nullptr);
    // The same for a file's bytes; `fileName` picks the reader and names the
    // source.
    static std::optional<ReferenceText> readBytes(const QByteArray& bytes, const QString& fileName,
                                                  double audioDuration,
                                                  ReferenceReadError* error = nullptr);
};
