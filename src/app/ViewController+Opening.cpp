// SPDX-License-Identifier: GPL-3.0-or-later
// Opening a file: the engine's analysis on a worker, then the window shows
// what the engine holds and plays the first segment.

#include "app/BookmarkStore.h"
#include "app/LoadingIndicator.h"
#include "app/RecentDocuments.h"
#include "app/ViewController.h"
#include "audio/AudioDecoder.h"
#include "audio/AudioManager.h"
#include "common/Log.h"
#include "common/ThreadHandOff.h"
#include "dialogs/Dialogs.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "views/TranscriptionTableView.h"
#include "views/WaveformView.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>
#include <QTimer>
#include <QUndoStack>
#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <utility>

void ViewController::openFileFromPath(const QString& path)
{
    loadAudioFile(path);
}

void ViewController::setOpeningFinishedHandler(std::function<void(bool)> handler)
{
    m_openingFinished = std::move(handler);
}

void ViewController::processAudioFile()
{
    loadAudioFile(m_currentAudioPath);
}

void ViewController::loadAudioFile(const QString& path)
{
    // The session goes on naming the file it shows until the new one has
    // opened. The engine is analysed on a worker and must not be read or
    // played from here meanwhile; what was playing stops now.
    if (m_loadsRunning == 0)
        m_engine.stopPlayback();
    ++m_loadsRunning;
    showLoadingIndicator();
    m_progressTimer->start();
    if (m_loadInFlight) {
        // One load at a time touches the engine: this one starts once the
        // running one has handed over its results. A later open replaces it.
        if (!m_pendingLoad.isEmpty())
            --m_loadsRunning;
        m_pendingLoad = path;
        return;
    }
    startLoad(path);
}

void ViewController::startLoad(const QString& path)
{
    m_loadInFlight = true;
    QPointer<ViewController> self(this);
    AudioManager* engine = &m_engine;
    startHandedOver(m_analysisQueue.get(), [self, engine, path] {
        // The completion runs on the engine's (main) thread.
        engine->processAudioFile(path, [self, path](bool success) {
            if (!success)
                Dialogs::showModalAlert(LocalizedString(Texts::Error),
                                        LocalizedString(Texts::FailedToProcessAudio),
                                        LocalizedString(Texts::OK));
            // Whatever the outcome, the window shows what the engine now holds.
            QTimer::singleShot(0, qApp, [self, success, path] {
                if (self)
                    self->finishOpening(success, path);
            });
        });
    });
}

void ViewController::finishOpening(bool success, const QString& path)
{
    m_loadInFlight = false;
    // A failed load leaves the engine with what it held before, so the file
    // to show is the last one that loaded, if any did since the last showing.
    if (success)
        m_loadedNotShown = path;
    if (!m_pendingLoad.isEmpty())
        startLoad(std::exchange(m_pendingLoad, QString()));
    if (--m_loadsRunning > 0)
        return; // a later opening is on its way and will show its own result
    m_progressTimer->stop();
    hideLoadingIndicator();

    const QString loaded = std::exchange(m_loadedNotShown, QString());
    if (loaded.isEmpty()) {
        // The session stays on the lesson it shows, rows, title and recent
        // list untouched; the engine still holds it. Its current segment
        // plays again, as playback stopped for the load.
        if (m_segmentsShown > 0)
            m_engine.playSegmentAtIndex(m_currentSegmentIndex);
        updateStatusBar();
    } else {
        m_currentAudioPath = loaded;
        // Edits of the cutting shown before belong to it alone.
        m_cuttingEdits->clear();
        m_uncertainStarts.clear();
        initTranscription();
        offerDictationFoundElsewhere(); // before the rows are shown, which saves them
        openLessonJournal();
        const QFileInfo file(loaded);
        qCInfo(lcApp, "File name with extension: %s", qUtf8Printable(file.fileName()));
        changeWindowTitle(file.completeBaseName());
        showEngineSegmentsAndPlay();
        RecentDocuments(m_defaults).add(loaded);
    }
    if (m_openingFinished)
        m_openingFinished(success);
}

void ViewController::showEngineSegmentsAndPlay()
{
    setSegmentsShown(m_engine.numberOfSegments());
    m_waveformView->updateWithSegments(m_engine.segments());
    showUncertainStarts();
    m_waveformView->updateWaveformData(m_engine.waveformData());
    m_waveformView->updateContentWidth();

    m_currentSegmentIndex = 0;
    m_waveformView->setCurrentSegment(0);
    m_table->setCurrentSegment(0);
    m_engine.playSegmentAtIndex(0);
    QPointer<ViewController> self(this);
    m_engine.setPlaybackCompletionHandler([self] {
        if (self)
            self->preparePlaySegment();
    });
    updateStatusBar();
    openLessonPractice();
    loadLessonReference();
}

void ViewController::showAnalysisProgress()
{
    m_loadingIndicator->setFraction(m_engine.analysisProgress());
}

void ViewController::showLoadingIndicator()
{
    setLessonContentHidden(true);
    m_loadingIndicator->resize(m_loadingIndicator->sizeHint());
    m_loadingIndicator->move((width() - m_loadingIndicator->width()) / 2,
                             (height() - m_loadingIndicator->height()) / 2);
    m_loadingIndicator->setFraction(-1.0);
    m_loadingIndicator->startAnimation();
    m_loadingIndicator->show();
    m_loadingIndicator->raise();
}

void ViewController::hideLoadingIndicator()
{
    m_loadingIndicator->stopAnimation();
    m_loadingIndicator->hide();
    setLessonContentHidden(false);
}

const QStringList& ViewController::audioFileExtensions()
{
    static const QStringList extensions{
        QStringLiteral("mp3"), QStringLiteral("m4a"), QStringLiteral("aac"),
        QStringLiteral("wav"), QStringLiteral("aif"), QStringLiteral("aiff"),
        QStringLiteral("m4r"), QStringLiteral("caf"), QStringLiteral("flac")};
    return extensions;
}

bool ViewController::isValidAudioFile(const QString& path)
{
    if (!audioFileExtensions().contains(QFileInfo(path).suffix().toLower()))
        return false;
    // The file must hold an audio stream; opening the container finds it.
    AudioDecoder decoder;
    return decoder.open(path);
}

void ViewController::openFile()
{
    // The panel does not offer ringtones (.m4r), which the type check and the
    // direct road still take.
    QStringList offered = audioFileExtensions();
    offered.removeAll(QStringLiteral("m4r"));
    Dialogs::selectFileWithExtensions(
        offered, [self = QPointer<ViewController>(this)](
                     std::optional<QString> path, std::optional<Dialogs::FileSelectionError>) {
            if (self.isNull() || !path)
                return;
            self.data()->openFileChosen(*path);
        });
}

void ViewController::openFileChosen(const QString& path)
{
    qCInfo(lcApp, "file:%s", qUtf8Printable(path));
    handleSelectedFile(path);
}

void ViewController::handleSelectedFile(const QString& path)
{
    showLoadingIndicator();
    QPointer<ViewController> self(this);
    startHandedOver(QThreadPool::globalInstance(), [self, path] {
        const bool valid = isValidAudioFile(path);
        // Back on the main thread; a window closed meanwhile hears nothing.
        postHandedOver(qApp, [self, path, valid] {
            if (!self.isNull())
                self.data()->typeCheckFinished(path, valid);
        });
    });
}

void ViewController::typeCheckFinished(const QString& path, bool valid)
{
    if (m_loadsRunning == 0)
        hideLoadingIndicator();
    if (!valid) {
        showError(LocalizedString(Texts::InvalidFileType),
                  LocalizedString(Texts::SelectSupportedAudioFile));
        return;
    }
    // The attributes as the file system gives them; its own words on failure.
    struct stat attributes
    {
    };
    if (::stat(QFile::encodeName(path).constData(), &attributes) != 0) {
        showError(LocalizedString(Texts::FileAccessError),
                  QString::fromLocal8Bit(std::strerror(errno)));
        return;
    }
    const qint64 size = attributes.st_size;
    constexpr qint64 kLimitMB = 1024;
    if (size > kLimitMB * 1024 * 1024) {
        showError(LocalizedString(Texts::FileTooLarge),
                  stringWithFormat(LocalizedString(Texts::SelectSmallerFile),
                                   {QString::number(kLimitMB)}));
        return;
    }
    loadAudioFile(path);
}

void ViewController::requestDirectoryAccess(
    const QString& folder, const std::function<void(bool, const QString&)>& completion)
{
    if (folder.isEmpty()) {
        completion(false, QString());
        return;
    }
    if (BookmarkStore::startAccessingDirectory(folder)) {
        completion(true, folder);
        return;
    }
    auto* panel = new QFileDialog(window());
    panel->setObjectName(QStringLiteral("grantAccessPanel"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    panel->setDirectory(folder);
    panel->setLabelText(QFileDialog::LookIn, LocalizedString(Texts::GrantFolderAccessMessage));
    panel->setWindowTitle(LocalizedString(Texts::GrantFolderAccessMessage));
    panel->setLabelText(QFileDialog::Accept, LocalizedString(Texts::GrantAccess));
    panel->setWindowModality(Qt::WindowModal);
    QPointer<ViewController> self(this);
    connect(panel, &QFileDialog::finished, this, [self, panel, completion](int result) {
        const QStringList chosen = panel->selectedFiles();
        if (result != QDialog::Accepted || chosen.isEmpty() || self.isNull()) {
            completion(false, QString());
            return;
        }
        const QString directory = chosen.first();
        const QByteArray bookmark = BookmarkStore::bookmarkDataForDirectory(directory);
        if (bookmark.isEmpty()) {
            qCInfo(lcApp, "Error creating directory bookmark: %s", qUtf8Printable(directory));
            completion(false, QString());
            return;
        }
        BookmarkStore(self.data()->m_defaults)
            .saveBookmarkData(bookmark, QStringLiteral("LastDirectoryBookmark"));
        if (BookmarkStore::startAccessingDirectory(directory))
            completion(true, directory);
        else
            completion(false, QString());
    });
    panel->open();
}

void ViewController::restoreLastAudioFile()
{
    BookmarkStore(m_defaults).restoreLastAudioFile();
}
