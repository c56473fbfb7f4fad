// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

// Which stored transcript was last saved for a recording's content
// fingerprint (ContentFingerprint), so that a lesson whose audio file was
// moved, copied or re-tagged, and so has a new identity, can find its
// dictation again without reading every transcript in the store.
//
// One text file in the transcripts folder, named so that it can never be
// taken for a transcript (an identity is 64 hexadecimal digits): a header
// line, then a line per recording, "<fingerprint> <identity> <saved, ms since
// 1970> <audio path, percent-encoded UTF-8>", so that a lookup finds its line
// without parsing the others. It is replaced durably at each record; a file
// without the header, too large or not a regular file reads as an empty index
// and is replaced at the next record. A line that does not have that form
// (a fingerprint or identity other than 64 lower-case hexadecimal digits
// included, so an index can never name a file outside the folder) is damage
// and is dropped.
//
// Thread-safe: records from any thread are serialised within the process.
class FingerprintIndex
{
public:
    static inline const QString FileName = QStringLiteral("fingerprints.index");
    // Far beyond any learner's library; more is damage, not an index.
    static constexpr qint64 kMaxIndexBytes = 16 * 1024 * 1024;

    struct Entry
    {
        QString identity;  // the transcript's name in the folder
        QString audioPath; // the file it was last saved for
        QDateTime saved;   // when, in UTC
    };

    explicit FingerprintIndex(const QString& transcriptionsFolder);

    QString path() const;

    // The entry for the fingerprint; nothing when there is none.
    std::optional<Entry> lookup(const QString& fingerprint) const;

    // The dictation saved for the fingerprint under another identity than
    // `identity`, when its transcript is still in the folder.
    std::optional<Entry> lookupElsewhere(const QString& fingerprint, const QString& identity) const;

    // Maps the fingerprint to the entry (replacing what it mapped to) and
    // writes the index. False, with `error`, when it could not be written;
    // the previous index is then left as it was.
    bool record(const QString& fingerprint, const Entry& entry, QString* error = nullptr) const;

    // Copies a dictation's transcript to a new identity, and its reference
    // text (the ".reference" file beside it) when there is one. Nothing is
    // ever replaced: a transcript already stored under `to` fails the copy,
    // a reference already there is kept. The files under `from` stay.
    bool copyDictation(const QString& from, const QString& to, QString* error = nullptr) const;

private:
    QString m_folder;
};
