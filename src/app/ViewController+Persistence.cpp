// The rows of the table for the file that was opened, and saving what was typed.

#include "app/Dialogs.h"
#include "app/FileIdentity.h"
#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "transcript/TranscriptionManager.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "views/TranscriptionTableView.h"

#include <QFileDialog>
#include <QFileInfo>

#include <QStringList>

void ViewController::initTranscription()
{
    // Saved transcripts are not read back yet: every opening starts with one
    // empty row per segment.
    initEmptyTranscriptions();
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

bool ViewController::saveTranscriptionToSandbox()
{
    const std::optional<QString> identifier =
        FileIdentity::uniqueIdentifierForFileAtPath(m_currentAudioPath);
    if (!identifier)
        return false;
    qInfo("File identifier: %s", qUtf8Printable(*identifier));
    const QString path =
        FileIdentity::transcriptionPathForIdentifier(*identifier, m_documents);
    if (path.isEmpty())
        return false;
    return m_transcriptions.saveTranscriptionsToFile(path);
}

void ViewController::saveTranscriptionWithCompletion(const std::function<void(bool)>& completion)
{
    // Saving on close overwrites a transcript the learner picks, deliberately
    // an existing one.
    const std::optional<QString> path =
        Dialogs::asyncSelectFileWithExtensions({QStringLiteral("lrc")});
    if (!path) {
        qInfo("Error: User cancelled file selection");
        completion(false);
        return;
    }
    stageTranscriptions(m_transcriptions);
    const bool saved = m_transcriptions.saveTranscriptionsToFile(*path);
    if (saved)
        saveTranscriptionToSandbox();
    completion(saved);
}

void ViewController::saveTranscription()
{
    if (isProcessing() || m_engine.numberOfSegments() == 0)
        return;
    auto* panel = new QFileDialog(window(), LocalizedString(Texts::SaveTranscript));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setFileMode(QFileDialog::AnyFile);
    panel->setNameFilter(QStringLiteral("LRC (*.lrc)"));
    panel->setDefaultSuffix(QStringLiteral("lrc"));
    panel->setLabelText(QFileDialog::Accept, LocalizedString(Texts::Save));
    panel->selectFile(QFileInfo(m_currentAudioPath).completeBaseName() + QStringLiteral(".lrc"));
    panel->setWindowModality(Qt::WindowModal);
    connect(panel, &QFileDialog::fileSelected, this, &ViewController::exportTranscriptionTo);
    panel->open();
}

void ViewController::exportTranscriptionTo(const QString& path)
{
    if (path.isEmpty())
        return;
    stageTranscriptions(m_transcriptions);
    if (m_transcriptions.saveTranscriptionsToFile(path))
        saveTranscriptionToSandbox();
    else
        Dialogs::showMsg(LocalizedString(Texts::SaveError),
                         LocalizedString(Texts::ErrorWritingToFile));
}
