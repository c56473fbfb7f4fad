// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AutoSaveQueue.h"

#include "app/FileIdentity.h"
#include "common/DurableWrite.h"
#include "common/Log.h"
#include "common/ThreadHandOff.h"
#include "transcript/FingerprintIndex.h"
#include "transcript/LrcLine.h"
#include "transcript/TranscriptionManager.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QThreadPool>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>

namespace {

double secondsNow()
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

// Hands a log line (and the caller's callback) to the main thread, where the
// session's own log lines come from.
void onMainThread(std::function<void()> work)
{
    if (QCoreApplication* app = QCoreApplication::instance())
        postHandedOver(app, std::move(work));
}

} // namespace

AutoSaveQueue::AutoSaveQueue(TimeSource now) : m_now(now ? std::move(now) : secondsNow) {}

AutoSaveQueue::~AutoSaveQueue()
{
    waitForDone();
}

AutoSaveQueue& AutoSaveQueue::shared()
{
    static AutoSaveQueue queue;
    return queue;
}

bool AutoSaveQueue::isThrottled() const
{
    return m_now() - m_lastAutoSaveTime < kThrottleSeconds;
}

void AutoSaveQueue::enqueue(Snapshot snapshot, Finished finished)
{
    if (!m_queue) {
        m_queue = std::make_unique<QThreadPool>();
        m_queue->setObjectName(QStringLiteral("com.kelmora.autosave"));
        m_queue->setMaxThreadCount(1);
        // The thread stays: a learner saves every few seconds for hours.
        m_queue->setExpiryTimeout(-1);
    }
    m_lastAutoSaveTime = m_now();
    startHandedOver(m_queue.get(), [snapshot = std::move(snapshot),
                                    finished = std::move(finished)] {
        try {
            QString identifier;
            const bool saved = save(snapshot, &identifier);
            onMainThread([saved, identifier, finished] {
                if (saved)
                    qCInfo(lcApp, "Auto save completed for file: %s", qUtf8Printable(identifier));
                else
                    qCInfo(lcApp, "Auto save failed for file: %s", qUtf8Printable(identifier));
                if (finished)
                    finished(saved, identifier);
            });
        } catch (const std::exception& exception) {
            const QString what = QString::fromLocal8Bit(exception.what());
            qCInfo(lcApp, "Auto save exception: %s", qUtf8Printable(what));
            onMainThread([what, finished] {
                qCInfo(lcApp, "Auto save failed with exception: %s", qUtf8Printable(what));
                if (finished)
                    finished(false, QString());
            });
        }
    });
}

void AutoSaveQueue::waitForDone()
{
    if (m_queue)
        m_queue->waitForDone();
}

QStringList AutoSaveQueue::linesForSnapshot(const Snapshot& snapshot)
{
    QStringList lines;
    lines.reserve(snapshot.texts.size());
    for (qsizetype i = 0; i < snapshot.texts.size(); ++i)
        lines.append(Lrc::formatLine(snapshot.starts.value(i, 0.0), snapshot.texts[i]));
    return lines;
}

bool AutoSaveQueue::save(const Snapshot& snapshot, QString* identifierOut)
{
    // The identity is taken now, on this thread, from the file as it is.
    const std::optional<QString> identifier =
        FileIdentity::uniqueIdentifierForFileAtPath(snapshot.audioPath);
    if (identifierOut)
        *identifierOut = identifier.value_or(QString());
    if (!identifier || snapshot.transcriptionsFolder.isEmpty())
        return false;
    const QString storePath =
        QStringLiteral("%1/%2").arg(snapshot.transcriptionsFolder, *identifier);

    // A folder deleted while the lesson was open comes back with this save.
    if (!QDir().mkpath(snapshot.transcriptionsFolder)) {
        qCInfo(lcApp, "Failed to create folder: %s", qUtf8Printable(snapshot.transcriptionsFolder));
        return false;
    }
    const QString tempPath = storePath + QStringLiteral(".temp");
    // A staging list of this job's own: the main thread's saves use theirs.
    TranscriptionManager staging([] { return 0.0; });
    staging.setTranscriptions(linesForSnapshot(snapshot));
    if (!staging.saveTranscriptionsToFile(tempPath))
        return false;
    // rename() puts the new file in the old one's place in one step, so a
    // crash at any moment leaves either the old transcript or the new one.
    if (std::rename(QFile::encodeName(tempPath).constData(),
                    QFile::encodeName(storePath).constData()) != 0) {
        qCInfo(lcApp, "Failed to replace file: %s", std::strerror(errno));
        return false;
    }
    // The rename reaches the disk with the folder.
    QString error;
    if (!syncFolder(snapshot.transcriptionsFolder, &error)) {
        qCInfo(lcApp, "Failed to replace file: %s", qUtf8Printable(error));
        return false;
    }
    if (!snapshot.fingerprint.isEmpty() &&
        !FingerprintIndex(snapshot.transcriptionsFolder)
             .record(snapshot.fingerprint,
                     {*identifier, snapshot.audioPath, QDateTime::currentDateTimeUtc()}, &error))
        qCWarning(lcApp, "Fingerprint index not updated: %s", qUtf8Printable(error));
    return true;
}
