// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/TranscriptionManager.h"

#include "audio/AudioManager.h"
#include "common/Log.h"
#include "transcript/LrcReader.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringEncoder>

TranscriptionManager& TranscriptionManager::sharedInstance()
{
    static TranscriptionManager instance;
    return instance;
}

TranscriptionManager::TranscriptionManager(DurationProvider totalDuration)
    : m_totalDuration(std::move(totalDuration))
{
    if (!m_totalDuration)
        m_totalDuration = [] { return AudioManager::sharedInstance().getTotalDuration(); };
}

SegmentList& TranscriptionManager::mutableSegments()
{
    if (!m_segments)
        m_segments.emplace();
    return *m_segments;
}

void TranscriptionManager::setTranscription(const QString& text, qsizetype index)
{
    if (index < 0)
        return;
    while (m_transcriptions.size() <= index)
        m_transcriptions.append(QStringLiteral(""));
    m_transcriptions[index] = text.isNull() ? QStringLiteral("") : text;
}

QString TranscriptionManager::transcriptionForSegment(qsizetype index) const
{
    if (index >= 0 && index < m_transcriptions.size())
        return m_transcriptions[index];
    return QStringLiteral("");
}

void TranscriptionManager::clearAllSegments()
{
    if (m_segments)
        m_segments->clear();
}

bool TranscriptionManager::saveTranscriptionsToFile(const QString& path)
{
    const auto fail = [this](const QString& error) {
        m_lastError = error;
        qCInfo(lcTranscript).noquote() << QStringLiteral("Error writing to file: ") + error;
        return false;
    };

    // Each element followed by a line feed, then the last line feed removed.
    const QString text = m_transcriptions.join(u'\n');

    // A lone surrogate has no UTF-8 form; refuse rather than write a
    // replacement character over what the user typed.
    QStringEncoder encoder(QStringEncoder::Utf8);
    const QByteArray bytes = encoder.encode(text);
    if (encoder.hasError())
        return fail(QStringLiteral("%1: the text cannot be encoded as UTF-8").arg(path));

    // QSaveFile writes a temporary file beside the target and renames it over
    // the target only once everything is on disk; on any failure the target
    // is left as it was.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return fail(QStringLiteral("%1: %2").arg(path, file.errorString()));
    if (file.write(bytes) != bytes.size()) {
        const QString error = file.errorString();
        file.cancelWriting();
        return fail(QStringLiteral("%1: %2").arg(path, error));
    }
    if (!file.commit())
        return fail(QStringLiteral("%1: %2").arg(path, file.errorString()));

    m_lastError.clear();
    qCInfo(lcTranscript, "Successfully wrote to file.");
    return true;
}

bool TranscriptionManager::loadTranscriptionsFromFile(const QString& path)
{
    if (!QFileInfo::exists(path)) {
        // The path itself is not printed; this line has always read (null).
        m_lastError = QStringLiteral("%1: no such file").arg(path);
        qCInfo(lcTranscript, "Error file path: (null)");
        return false;
    }

    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    std::optional<QString> text;
    if (file.error() != QFileDevice::NoError) {
        m_lastError = QStringLiteral("%1: %2").arg(path, file.errorString());
    } else if (!(text = Lrc::decodeUtf8(bytes))) {
        m_lastError = QStringLiteral("The file \u201c%1\u201d couldn\u2019t be opened using text "
                                     "encoding Unicode (UTF-8).")
                          .arg(QFileInfo(path).fileName());
    }
    if (!text) {
        qCInfo(lcTranscript).noquote() << QStringLiteral("Error reading file: ") + m_lastError;
        return false;
    }

    Lrc::StampedLines lines = Lrc::readStampedLines(*text);
    const double total = m_totalDuration();
    SegmentList segments = Lrc::buildSegments(lines.stamps, total);

    m_transcriptions = std::move(lines.texts);
    m_segments = std::move(segments);
    m_lastError.clear();
    return true;
}

QString TranscriptionManager::exportToText() const
{
    QString out;
    for (qsizetype i = 0; i < m_transcriptions.size(); ++i)
        out += QString::number(i + 1) + QStringLiteral(". ") + m_transcriptions[i] + u'\n';
    return out;
}
