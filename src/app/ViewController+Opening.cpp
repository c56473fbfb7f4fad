// Opening a file: the engine's analysis on a worker, then the window shows
// what the engine holds and plays the first segment.

#include "app/Dialogs.h"
#include "app/LoadingIndicator.h"
#include "app/RecentDocuments.h"
#include "app/ViewController.h"
#include "audio/AudioDecoder.h"
#include "audio/AudioManager.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "views/TranscriptionTableView.h"
#include "views/WaveformView.h"

#include <QApplication>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>
#include <QTimer>

void ViewController::openFileFromPath(const QString& path)
{
    m_currentAudioPath = path;
    processAudioFile();
}

void ViewController::setOpeningFinishedHandler(std::function<void(bool)> handler)
{
    m_openingFinished = std::move(handler);
}

void ViewController::processAudioFile()
{
    const QString path = m_currentAudioPath;
    // The engine is analysed on a worker and must not be read or played from
    // here meanwhile; what was playing stops now.
    if (m_loadsRunning == 0)
        m_engine.stopPlayback();
    ++m_loadsRunning;
    showLoadingIndicator();
    m_progressTimer->start();

    QPointer<ViewController> self(this);
    AudioManager* engine = &m_engine;
    m_analysisQueue->start([self, engine, path] {
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
    if (--m_loadsRunning > 0)
        return; // a later opening is on its way and will show its own result
    m_progressTimer->stop();
    hideLoadingIndicator();

    initTranscription();
    const QFileInfo file(path);
    qInfo("File name with extension: %s", qUtf8Printable(file.fileName()));
    changeWindowTitle(file.completeBaseName());

    m_segmentsShown = m_engine.numberOfSegments();
    m_waveformView->updateWithSegments(m_engine.segments());
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
    RecentDocuments(m_defaults).add(path);
    if (m_openingFinished)
        m_openingFinished(success);
}

void ViewController::showAnalysisProgress()
{
    m_loadingIndicator->setFraction(m_engine.analysisProgress());
}

void ViewController::showLoadingIndicator()
{
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
    Dialogs::selectFileWithExtensions(
        audioFileExtensions(), [self = QPointer<ViewController>(this)](
                                   std::optional<QString> path,
                                   std::optional<Dialogs::FileSelectionError>) {
            if (self.isNull() || !path)
                return;
            qInfo("file:%s", qUtf8Printable(*path));
            ViewController* session = self.data();
            session->m_currentAudioPath = *path;
            session->handleSelectedFile(*path);
        });
}

void ViewController::handleSelectedFile(const QString& path)
{
    showLoadingIndicator();
    QPointer<ViewController> self(this);
    QThreadPool::globalInstance()->start([self, path] {
        const bool valid = isValidAudioFile(path);
        // Back on the main thread; a window closed meanwhile hears nothing.
        QMetaObject::invokeMethod(
            qApp,
            [self, path, valid] {
                if (!self.isNull())
                    self.data()->typeCheckFinished(path, valid);
            },
            Qt::QueuedConnection);
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
    const QFileInfo file(path);
    if (!file.exists() || !file.isReadable()) {
        showError(LocalizedString(Texts::FileAccessError),
                  QStringLiteral("The file “%1” could not be read.").arg(file.fileName()));
        return;
    }
    constexpr qint64 kLimitMB = 1024;
    if (file.size() > kLimitMB * 1024 * 1024) {
        showError(LocalizedString(Texts::FileTooLarge),
                  stringWithFormat(LocalizedString(Texts::SelectSmallerFile),
                                   {QString::number(kLimitMB)}));
        return;
    }
    processAudioFile();
}
