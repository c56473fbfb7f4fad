// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/ReferenceText.h"
#include "transcript/LessonFile.h"

#include <QString>
#include <optional>

class DocumentManager;

// Keeps a lesson's reference text in the transcript store, beside its
// transcript: "Transcriptions/<identity>.reference" in the documents folder,
// where the identity is the one the transcript is stored under.
//
// An identity is a plain file name; one holding a "/" or "\", or starting
// with ".", is refused, so that no reference lands outside the folder.
class ReferenceStore
{
public:
    static inline const QString Extension = QStringLiteral(".reference");

    // The store lives with these documents; they must outlive it.
    explicit ReferenceStore(const DocumentManager& documents);

    // The file for an identity; a null string when the identity is refused
    // or there is no documents folder.
    QString pathForIdentity(const QString& identity) const;
    bool contains(const QString& identity) const;

    // Replaces the stored reference in one step (a temporary file renamed
    // over it): after a failure the previous one is still there, whole.
    bool save(const QString& identity, const ReferenceText& reference,
              QString* error = nullptr) const;
    // Nothing when there is no stored reference (`error` left empty) or the
    // stored one cannot be read (`error` names the file and what is wrong).
    std::optional<ReferenceText> load(const QString& identity, QString* error = nullptr) const;
    // A missing reference counts as removed.
    bool remove(const QString& identity, QString* error = nullptr) const;

private:
    LessonFile m_file;
};
