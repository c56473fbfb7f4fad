// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QLoggingCategory>
#include <QString>
#include <optional>

class DocumentManager;

// One kind of file kept beside a lesson's transcript:
// "Transcriptions/<identity><extension>" in the documents folder, where the
// identity is the one the transcript is stored under. An identity holding a
// "/" or "\", or starting with ".", is refused, so that nothing lands outside
// the folder. Every failure is said in `error` (naming the file as `what`,
// "the reference text") and in the log.
class LessonFile
{
public:
    using Category = const QLoggingCategory& (*)();
    // The documents must outlive this.
    LessonFile(const DocumentManager& documents, QString extension, QString what,
               Category category);

    // The file for an identity; a null string when the identity is refused
    // or there is no documents folder.
    QString pathForIdentity(const QString& identity) const;
    bool contains(const QString& identity) const;
    // The stored bytes; nothing when there is no file (`error` left empty)
    // or it cannot be read, or is larger than `maxBytes` when that is set.
    std::optional<QByteArray> read(const QString& identity, qint64 maxBytes, QString* error) const;
    // A missing file counts as removed.
    bool remove(const QString& identity, QString* error) const;
    // Says `reason` in `error` and the log; always false.
    bool fail(QString* error, const QString& reason) const;
    // The name relative to the documents folder, or why there is none.
    std::optional<QString> nameFor(const QString& identity, QString* error) const;

    const DocumentManager& documents() const { return m_documents; }
    const QString& what() const { return m_what; }

private:
    const DocumentManager& m_documents;
    QString m_extension;
    QString m_what;
    Category m_category;
};
