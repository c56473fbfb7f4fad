// SPDX-License-Identifier: GPL-3.0-or-later
// A lesson's dictation found again after its audio file moved: each save
// records the recording's content fingerprint in the store's index, and an
// opened file with no transcript of its own is offered the one the index
// knows for its audio.

#include "app/FileIdentity.h"
#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "common/DurableWrite.h"
#include "common/Log.h"
#include "dialogs/Dialogs.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "transcript/ContentFingerprint.h"
#include "transcript/DocumentManager.h"
#include "transcript/FingerprintIndex.h"
#include "transcript/TypingJournal.h"
#include "views/TranscriptionTableView.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

namespace {
// A journal is compacted at a quarter of a megabyte; more is not a journal.
constexpr qint64 kMaxJournalCopyBytes = 64 * 1024 * 1024;
} // namespace

QString ViewController::fingerprintForSave() const
{
    // Rows with nothing typed never take the index entry from a dictation:
    // opening a moved file saves its empty rows at once.
    const QStringList& rows = m_table->mutableTranscriptions();
    const bool typed =
        std::any_of(rows.cbegin(), rows.cend(), [](const QString& row) { return !row.isEmpty(); });
    return typed ? m_contentFingerprint : QString();
}

void ViewController::recordFingerprint(const QString& identifier)
{
    const QString fingerprint = fingerprintForSave();
    if (fingerprint.isEmpty())
        return;
    QString error;
    const FingerprintIndex index(
        m_documents.pathForFilename(DocumentManager::TranscriptionsFolder));
    if (!index.record(fingerprint,
                      {identifier, m_currentAudioPath, QDateTime::currentDateTimeUtc()}, &error))
        qCWarning(lcApp, "Fingerprint index not updated: %s", qUtf8Printable(error));
}

void ViewController::offerDictationFoundElsewhere()
{
    // The engine has just loaded and holds no load: its analysis is read
    // here, once per opening.
    m_contentFingerprint = ContentFingerprint::of(m_engine.audioCharacteristics().rmsValues,
                                                  m_engine.sampleRate(), m_engine.totalSamples());
    if (m_foundDictationSheet)
        m_foundDictationSheet->close(); // offered for the lesson this one replaced

    const std::optional<QString> identity = lessonIdentity();
    const QString folder = m_documents.pathForFilename(DocumentManager::TranscriptionsFolder);
    if (m_contentFingerprint.isEmpty() || !identity || folder.isEmpty() ||
        QFileInfo::exists(FileIdentity::transcriptionPathForIdentifier(*identity, m_documents)))
        return;
    const std::optional<FingerprintIndex::Entry> found =
        FingerprintIndex(folder).lookupElsewhere(m_contentFingerprint, *identity);
    if (!found)
        return;
    qCInfo(lcApp, "A dictation for this recording is stored under %s",
           qUtf8Printable(found->identity));

    auto* sheet = new QMessageBox(window());
    sheet->setObjectName(QStringLiteral("foundDictationSheet"));
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setIcon(QMessageBox::Question);
    sheet->setWindowTitle(LocalizedString(Texts::AppName));
    const QString saved = QLocale().toString(found->saved.toLocalTime(), QLocale::ShortFormat);
    sheet->setText(LocalizedString(Texts::FoundDictation).arg(found->audioPath, saved));
    QPushButton* use = sheet->addButton(LocalizedString(Texts::UseIt), QMessageBox::AcceptRole);
    QPushButton* notNow = sheet->addButton(LocalizedString(Texts::NotNow), QMessageBox::RejectRole);
    sheet->setDefaultButton(use);
    sheet->setEscapeButton(notNow);
    // Until the learner answers nothing is saved: the rows the open shows
    // would otherwise become this file's transcript.
    m_foundDictationSheet = sheet;
    connect(sheet, &QMessageBox::finished, this,
            [this, sheet, use, audioPath = m_currentAudioPath, from = found->identity] {
                if (m_foundDictationSheet != sheet)
                    return;
                m_foundDictationSheet = nullptr;
                if (sheet->clickedButton() == use)
                    useDictationFoundElsewhere(audioPath, from);
            });
    sheet->setWindowModality(Qt::WindowModal);
    sheet->open();
}

void ViewController::useDictationFoundElsewhere(const QString& audioPath, const QString& from)
{
    // Another lesson may have been opened meanwhile.
    if (audioPath != m_currentAudioPath || isProcessing())
        return;
    const std::optional<QString> identity = lessonIdentity();
    QString error = QStringLiteral("%1: the file cannot be examined").arg(audioPath);
    const FingerprintIndex index(
        m_documents.pathForFilename(DocumentManager::TranscriptionsFolder));
    if (!identity || !index.copyDictation(from, *identity, &error)) {
        qCWarning(lcApp, "The dictation found was not copied: %s", qUtf8Printable(error));
        Dialogs::showMsg(LocalizedString(Texts::Error), error);
        return;
    }
    // What was typed after its last save is in its journal; it comes along
    // and is replayed over the copy, as when that lesson opens.
    closeLessonJournal();
    const QDir journals(TypingJournal::folderPath());
    if (copyFileDurably(journals.filePath(TypingJournal::fileNameFor(from)),
                        journals.filePath(TypingJournal::fileNameFor(*identity)),
                        kMaxJournalCopyBytes, &error) == CopyOutcome::Failed)
        qCWarning(lcApp, "The journal of the dictation found was not copied: %s",
                  qUtf8Printable(error));
    // Then the lesson loads as an opening loads it.
    initTranscription();
    openLessonJournal();
    showEngineSegmentsAndPlay();
}
