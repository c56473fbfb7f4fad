// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/PracticeRecord.h"
#include "transcript/LessonFile.h"

#include <QString>
#include <optional>

class DocumentManager;

// Keeps a lesson's practice record in the transcript store, beside its
// transcript: "Transcriptions/<identity>.practice" in the documents folder,
// where the identity is the one the transcript is stored under.
//
// An identity is a plain file name; one holding a "/" or "\", or starting
// with ".", is refused, so that no record lands outside the folder.
class PracticeStore
{
public:
    static inline const QString Extension = QStringLiteral(".practice");
    // A record of every segment of a long lesson stays far below this; a
    // larger file is not a record and is not read into memory.
    static constexpr qint64 MaxFileBytes = 4 * 1024 * 1024;

    // The store lives with these documents; they must outlive it.
    explicit PracticeStore(const DocumentManager& documents);

    // The file for an identity; a null string when the identity is refused
    // or there is no documents folder.
    QString pathForIdentity(const QString& identity) const;
    bool contains(const QString& identity) const;

    // Replaces the stored record in one step (a temporary file, synced, then
    // renamed over it): after a failure or a crash the previous one is still
    // there, whole. A stored file that load() cannot read is not replaced:
    // save fails and says so, and the file stays for a look until remove().
    bool save(const QString& identity, const PracticeRecord& record,
              QString* error = nullptr) const;
    // Nothing when there is no stored record (`error` left empty) or the
    // stored one cannot be read: damaged, not a record, another format
    // version or larger than MaxFileBytes (`error` names the file and what
    // is wrong).
    std::optional<PracticeRecord> load(const QString& identity, QString* error = nullptr) const;
    // A missing record counts as removed.
    bool remove(const QString& identity, QString* error = nullptr) const;

private:
    LessonFile m_file;
};
