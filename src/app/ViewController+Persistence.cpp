// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the table for the file that was opened, and saving what was
// typed: in the background as the learner moves on, by export, on close.

#include "app/AutoSaveQueue.h"
#include "app/FileIdentity.h"
#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "common/Log.h"
#include "dialogs/Dialogs.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "transcript/DocumentManager.h"
#include "transcript/TranscriptionManager.h"
#include "views/TranscriptionTableView.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <QStatusBar>
#include <QStringList>

QString ViewController::transcriptionStorePath() const
{
    const std::optional<QString> identifier =
        FileIdentity::uniqueIdentifierForFileAtPath(m_currentAudioPath);
    if (!identifier)
        return {};
    return FileIdentity::transcriptionPathForIdentifier(*identifier, m_documents);
}

void ViewController::initTranscription()
{
    const QString path = transcriptionStorePath();
    m_storeRefused = false;
    m_unusedStore.clear();
    if (path.isEmpty() || !m_transcriptions.loadTranscriptionsFromFile(path)) {
        qCInfo(lcApp, "Failed to load transcription");
        using Fault = TranscriptionManager::LoadFault;
        const Fault fault = m_transcriptions.lastLoadFault();
        if (!path.isEmpty() && fault == Fault::NotARegularFile) {
            m_storeRefused = true;
            qCWarning(lcApp, "Transcription store file refused, kept and not saved over: %s",
                      qUtf8Printable(m_transcriptions.lastError()));
        } else if (!path.isEmpty() && fault != Fault::Missing) {
            m_unusedStore = path; // too large, unreadable, not UTF-8
        }
        initEmptyTranscriptions();
        return;
    }
    // The boundaries the file was typed under come back with its texts,
    // whatever their number: a dictation recovered or imported, or typed
    // before the shortest-segment setting changed, has fewer rows than a
    // fresh cutting, and dropping it would throw the learner's work away.
    // Starts that rise, each within the audio, are the test.
    const SegmentList& segments = m_transcriptions.mutableSegments();
    bool rising = true;
    for (qsizetype i = 1; i < segments.size(); ++i)
        rising = rising && segments[i].start > segments[i - 1].start;
    if (!rising || !m_engine.updateSegments(segments)) {
        m_unusedStore = path;
        initEmptyTranscriptions();
        return;
    }
    // A line skipped or folded onto a neighbour would be gone from the file
    // after the next save: the file as it was is kept aside then.
    if (!m_transcriptions.loadedWhole())
        m_unusedStore = path;
    m_table->updateTranscriptions(m_transcriptions.textsPerSegment());
}

void ViewController::initEmptyTranscriptions()
{
    QStringList rows;
    const qsizetype count = m_engine.numberOfSegments();
    rows.reserve(count);
    for (qsizetype i = 0; i < count; ++i)
        rows.append(QString());
    m_table->updateTranscriptions(rows);
}

void ViewController::stageTranscriptions(TranscriptionManager& store) const
{
    const QStringList texts = m_table->mutableTranscriptions();
    store.clearAllTranscriptions();
    for (qsizetype i = 0; i < texts.size(); ++i)
        store.setTranscription(m_table->generateLRCStringForText(texts[i], i), i);
}

void ViewController::autoSaveTranscription(bool now)
{
    if (!now && m_autoSave.isThrottled())
        return;
    const QStringList& texts = m_table->mutableTranscriptions();
    if (texts.isEmpty() || m_currentAudioPath.isEmpty() || m_foundDictationSheet)
        return;
    if (m_storeRefused || (!m_unusedStore.isEmpty() &&
                           !setAsideUnusedStore(transcriptionStorePath()))) {
        qCInfo(lcApp, "Auto save skipped: the store file was not loaded");
        storeSaveFinished(false);
        return;
    }
    // The job gets copies: it must not read the table or the engine, which
    // this thread goes on changing.
    AutoSaveQueue::Snapshot snapshot;
    snapshot.audioPath = m_currentAudioPath;
    snapshot.transcriptionsFolder =
        m_documents.pathForFilename(DocumentManager::TranscriptionsFolder);
    snapshot.texts = texts;
    snapshot.fingerprint = fingerprintForSave();
    const SegmentList& segments = m_engine.segments();
    snapshot.starts.reserve(texts.size());
    for (qsizetype i = 0; i < texts.size(); ++i)
        snapshot.starts.append(i < segments.size() ? segments[i].start : 0.0);
    // The journal's records up to the snapshot go once it is on disk.
    QPointer<ViewController> self(this);
    m_autoSave.enqueue(
        std::move(snapshot),
        [self, journal = journalPath(), sequence = journalSequence()](bool saved, const QString&) {
            if (!self)
                return;
            if (saved)
                self->journalSaved(journal, sequence);
            self->storeSaveFinished(saved);
        });
}

void ViewController::storeSaveFinished(bool saved)
{
    const QString notice = LocalizedString(Texts::SaveFailedNotice);
    if (!saved) {
        m_lastSaveFailed = true;
        m_statusBar->showMessage(notice);
        return;
    }
    m_lastSaveFailed = false;
    // Another message (the journal's, say) is left alone.
    if (m_statusBar->currentMessage() == notice)
        m_statusBar->clearMessage();
}

bool ViewController::saveTranscriptionToSandbox()
{
    const std::optional<QString> identifier =
        FileIdentity::uniqueIdentifierForFileAtPath(m_currentAudioPath);
    if (!identifier)
        return false;
    qCInfo(lcApp, "File identifier: %s", qUtf8Printable(*identifier));
    const QString path = FileIdentity::transcriptionPathForIdentifier(*identifier, m_documents);
    if (path.isEmpty())
        return false;
    bool saved = false;
    if (m_storeRefused || !setAsideUnusedStore(path))
        qCInfo(lcApp, "Store save skipped: the store file was not loaded");
    else if (QDir().mkpath(QFileInfo(path).path())) // the folder may have been deleted
        saved = m_transcriptions.saveTranscriptionsToFile(path);
    if (saved)
        recordFingerprint(*identifier);
    storeSaveFinished(saved);
    return saved;
}

void ViewController::saveTranscriptionWithCompletion(const std::function<void(bool)>& completion)
{
    // The panel of Export: the learner may name a new file.
    QFileDialog* panel = Dialogs::transcriptSavePanel(
        window(), QFileInfo(m_currentAudioPath).completeBaseName() + QStringLiteral(".lrc"));
    connect(panel, &QFileDialog::finished, this, [this, panel, completion](int result) {
        const QString path =
            result == QDialog::Accepted ? panel->selectedFiles().value(0) : QString();
        if (path.isEmpty()) {
            qCInfo(lcApp, "No file selected");
            completion(false);
            return;
        }
        const quint64 sequence = journalSequence();
        stageTranscriptions(m_transcriptions);
        const bool saved = m_transcriptions.saveTranscriptionsToFile(path);
        if (!saved)
            Dialogs::showMsg(LocalizedString(Texts::SaveError),
                             LocalizedString(Texts::ErrorWritingToFile));
        else if (saveTranscriptionToSandbox())
            journalSaved(journalPath(), sequence);
        completion(saved);
    });
    panel->open();
}

void ViewController::saveTranscription()
{
    if (isProcessing() || m_engine.numberOfSegments() == 0)
        return;
    QFileDialog* panel = Dialogs::transcriptSavePanel(
        window(), QFileInfo(m_currentAudioPath).completeBaseName() + QStringLiteral(".lrc"));
    connect(panel, &QFileDialog::fileSelected, this, &ViewController::exportTranscriptionTo);
    panel->open();
}

void ViewController::exportTranscriptionTo(const QString& path)
{
    if (path.isEmpty())
        return;
    const quint64 sequence = journalSequence();
    stageTranscriptions(m_transcriptions);
    if (!m_transcriptions.saveTranscriptionsToFile(path)) {
        Dialogs::showMsg(LocalizedString(Texts::SaveError),
                         LocalizedString(Texts::ErrorWritingToFile));
        return;
    }
    if (saveTranscriptionToSandbox())
        journalSaved(journalPath(), sequence);
}

void ViewController::importTranscription()
{
    if (isProcessing()) {
        // The rows the import would fill are not there yet.
        showError(LocalizedString(Texts::Warning), LocalizedString(Texts::StillAnalysing));
        return;
    }
    if (m_engine.numberOfSegments() == 0) {
        showError(LocalizedString(Texts::Warning), LocalizedString(Texts::OpenAudioFileFirst));
        return;
    }
    std::optional<Dialogs::FileSelectionError> error;
    const std::optional<QString> path = Dialogs::asyncSelectTranscript(&error);
    if (error) {
        qCInfo(lcApp, "Error: %s", qUtf8Printable(error->localizedDescription));
        return;
    }
    if (!path) {
        qCInfo(lcApp, "importTranscription filepath is nil");
        return;
    }
    importTranscriptionFrom(*path);
}

void ViewController::importTranscriptionFrom(const QString& path, bool inTimeOrder)
{
    qCInfo(lcApp, "Selected file: %s", qUtf8Printable(path));
    if (!m_transcriptions.loadTranscriptionsFromFile(path, inTimeOrder)) {
        using Fault = TranscriptionManager::LoadFault;
        const Fault fault = m_transcriptions.lastLoadFault();
        const char* message = fault == Fault::TooLarge          ? Texts::TranscriptTooLarge
                              : fault == Fault::NotARegularFile ? Texts::TranscriptNotAFile
                                                                : Texts::FailedToLoadTranscription;
        Dialogs::showModalAlert(LocalizedString(Texts::Error), LocalizedString(message),
                                LocalizedString(Texts::OK));
        return;
    }
    if (inTimeOrder)
        m_transcriptions.orderByTime();
    // Lines whose stamps run backwards join a neighbour's row: one row per
    // segment, every word kept.
    const QStringList texts = m_transcriptions.textsPerSegment();
    const SegmentList segments = m_transcriptions.mutableSegments();
    const double end = segments.isEmpty() ? 0.0 : segments.last().start + segments.last().duration;
    if (m_engine.getTotalDuration() >= end) {
        // Rows and boundaries change together, as one step that can be undone.
        if (!segments.isEmpty() && texts.size() == segments.size())
            pushCuttingEdit(Texts::EditImport, LessonCutting{segments, texts}, 0, std::nullopt);
    } else {
        showError(LocalizedString(Texts::InvalidFile),
                  LocalizedString(Texts::LyricDurationTooLong));
    }
    showEngineSegmentsAndPlay();
}

void ViewController::clearTranscription()
{
    if (isProcessing() || m_engine.numberOfSegments() == 0)
        return;
    QPointer<ViewController> self(this);
    Dialogs::showAlertWithTitle(LocalizedString(Texts::Warning),
                                LocalizedString(Texts::ConfirmClearDictation),
                                LocalizedString(Texts::OK), LocalizedString(Texts::Cancel),
                                window(), [self](bool confirmed) {
                                    if (!confirmed || self.isNull())
                                        return;
                                    ViewController* session = self.data();
                                    session->clearAllRows();
                                    session->playFirstSegment();
                                });
}

QString ViewController::applicationSupportDirectory()
{
    const QString path = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (path.isEmpty() || !QDir().mkpath(path)) {
        qCInfo(lcApp, "Error creating application support directory: %s",
               qUtf8Printable(path.isEmpty() ? QStringLiteral("no data location") : path));
        return {};
    }
    return path;
}
