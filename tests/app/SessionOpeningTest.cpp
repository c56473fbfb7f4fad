// SPDX-License-Identifier: GPL-3.0-or-later
// The checked road's refusals, failed analyses, the music-folder road and
// quick successive opens, each leaving the learner on the lesson shown until
// another one has opened, rows, name and all.

#include "app/AutoSaveQueue.h"
#include "app/LoadingIndicator.h"
#include "app/MainWindowController.h"
#include "app/RecentDocuments.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "support/TestSupport.h"
#include "transcript/DocumentManager.h"
#include "transcript/FingerprintIndex.h"
#include "views/TranscriptionTableView.h"
#include "views/WaveformView.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using TestSupport::fixture;

namespace {

constexpr qint64 kLimit = 1024LL * 1024 * 1024;

class SessionOpening : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QApplication::setActiveWindow(&h.window());
        ASSERT_TRUE(h.open(fixture("speech.wav")));
        table = h.session().transcriptionTableView();
        ASSERT_TRUE(waitFor([&] { return QApplication::focusWidget() == table->editorForRow(0); }));
        QTest::keyClicks(QApplication::focusWidget(), "kept");
        rows = table->mutableTranscriptions();
        status = h.session().statusText();
        recent = RecentDocuments(h.defaults()).paths();
    }

    // Still on speech.wav: its name, title, status line, recent list and rows.
    void expectStillOnTheLesson()
    {
        EXPECT_EQ(h.session().currentAudioPath(), fixture("speech.wav"));
        EXPECT_EQ(h.window().windowTitle(), "speech");
        EXPECT_EQ(h.session().statusText(), status);
        EXPECT_EQ(RecentDocuments(h.defaults()).paths(), recent);
        EXPECT_EQ(table->mutableTranscriptions(), rows);
        EXPECT_FALSE(h.session().loadingIndicator()->isVisible());
    }

    // Moving on saves what was typed into the lesson's own store file, the
    // only transcript there is.
    void expectTypingSavedUnderTheLesson()
    {
        h.advanceAutoSaveClock(AutoSaveQueue::kThrottleSeconds);
        table->setCurrentSegment(1);
        QApplication::processEvents();
        h.finishAutoSaves();
        const QDir store(h.documentsPath() + "/" + DocumentManager::TranscriptionsFolder);
        QStringList files = store.entryList(QDir::Files);
        files.removeAll(FingerprintIndex::FileName);
        ASSERT_EQ(files.size(), 1) << files.join(", ").toStdString();
        EXPECT_TRUE(TestSupport::readFile(store.filePath(files[0])).startsWith("[00:00.000]kept\n"));
    }

    // A copy of an MP4 fixture grown (sparsely) to the given size: its index
    // names only the fixture's audio, so nothing reads the zeros after it,
    // while the size check reads the size on disk.
    QString sparseCopy(const QString& name, qint64 size)
    {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(QFile::copy(fixture("speech_aac.m4a"), path));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_TRUE(file.resize(size));
        return path;
    }

    // Chooses a file as the Open panel would hand it over.
    void choose(const QString& path)
    {
        h.session().openFileChosen(path);
    }

    WindowHarness h;
    QTemporaryDir folder;
    TranscriptionTableView* table = nullptr;
    QStringList rows;
    QString status;
    QStringList recent;
};

} // namespace

TEST_F(SessionOpening, ATypeRejectedFileLeavesTheSessionOnItsLesson)
{
    AlertAnswerer answer("OK");
    choose(fixture("text.mp3"));
    ASSERT_TRUE(answer.waitForAlerts(1));
    EXPECT_EQ(answer.seen()[0].text, "Invalid File Type");
    EXPECT_EQ(answer.seen()[0].informativeText, "Please select a supported audio file");
    expectStillOnTheLesson();
    EXPECT_TRUE(h.engine().isPlaying());
    expectTypingSavedUnderTheLesson();
}

TEST_F(SessionOpening, AFailedAnalysisLeavesTheSessionOnItsLessonAndItsTyping)
{
    table->setCurrentSegment(2);
    QApplication::processEvents();
    ASSERT_EQ(h.session().currentSegmentIndex(), 2);
    {
        AlertAnswerer answer("OK");
        bool success = true;
        ASSERT_TRUE(h.open(fixture("truncated.mp3"), &success));
        EXPECT_FALSE(success);
        ASSERT_EQ(answer.seen().size(), 1);
        EXPECT_EQ(answer.seen()[0].informativeText, "Failed to process audio file");
    }
    expectStillOnTheLesson();
    // The engine holds the lesson still; its current segment plays again.
    EXPECT_EQ(h.session().waveformView()->segments(), h.engine().segments());
    EXPECT_EQ(h.engine().numberOfSegments(), rows.size());
    EXPECT_EQ(h.session().currentSegmentIndex(), 2);
    EXPECT_EQ(h.engine().currentSegmentIndex(), 2);
    EXPECT_TRUE(h.engine().isPlaying());
    h.session().playNextSegment();
    EXPECT_EQ(h.engine().currentSegmentIndex(), 3);
    EXPECT_TRUE(h.engine().isPlaying());

    expectTypingSavedUnderTheLesson();
    // And what was typed comes back with the lesson.
    ASSERT_TRUE(h.open(fixture("speech.wav")));
    EXPECT_EQ(table->mutableTranscriptions().value(0), "kept");
}

TEST_F(SessionOpening, AFileOfExactly1024MegabytesOpensAndOneByteMoreIsRefused)
{
    const QString tooBig = sparseCopy("big+1.m4a", kLimit + 1);
    {
        AlertAnswerer answer("OK");
        choose(tooBig);
        ASSERT_TRUE(answer.waitForAlerts(1, 30000));
        EXPECT_EQ(answer.seen()[0].text, "File Too Large");
        EXPECT_EQ(answer.seen()[0].informativeText,
                  "Please select an audio file smaller than 1024 MB");
    }
    expectStillOnTheLesson();

    const QString atLimit = sparseCopy("big.M4A", kLimit);
    bool finished = false;
    h.session().setOpeningFinishedHandler([&](bool) { finished = true; });
    choose(atLimit);
    ASSERT_TRUE(waitFor([&] { return finished; }, 60000));
    h.session().setOpeningFinishedHandler({});
    EXPECT_EQ(h.window().windowTitle(), "big");
    EXPECT_GT(table->model()->rowCount(), 0);
}

TEST_F(SessionOpening, TheMusicFolderRoadRefusesWhatDoesNotOpenAsAudio)
{
    // The Open panel offers every type the check takes but ringtones.
    h.session().openFile();
    QFileDialog* panel = nullptr;
    ASSERT_TRUE(waitFor([&] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QFileDialog*>(widget); dialog && dialog->isVisible())
                panel = dialog;
        return panel != nullptr;
    }));
    const QString filter = panel->nameFilters().join(' ');
    EXPECT_TRUE(filter.startsWith("Audio Files (*.mp3 *.MP3 *.m4a")) << filter.toStdString();
    EXPECT_TRUE(filter.contains("*.flac")) << filter.toStdString();
    EXPECT_FALSE(filter.contains("m4r", Qt::CaseInsensitive)) << filter.toStdString();
    panel->reject();
    EXPECT_TRUE(ViewController::isValidAudioFile(fixture("speech.m4r")));

    {
        AlertAnswerer answer("OK");
        h.window().handleSelectedMusicFile(fixture("text.mp3"));
        ASSERT_TRUE(answer.waitForAlerts(1));
        EXPECT_EQ(answer.seen()[0].text, "Error Opening File");
        EXPECT_FALSE(answer.seen()[0].informativeText.isEmpty());
    }
    EXPECT_EQ(table->mutableTranscriptions(), rows);
    EXPECT_EQ(h.session().currentAudioPath(), fixture("speech.wav"));

    // An m4r goes the direct road without the type check.
    bool finished = false;
    h.session().setOpeningFinishedHandler([&](bool) { finished = true; });
    h.window().handleSelectedMusicFile(fixture("speech.m4r"));
    ASSERT_TRUE(waitFor([&] { return finished; }));
    h.session().setOpeningFinishedHandler({});
    EXPECT_EQ(h.window().windowTitle(), "speech");
    EXPECT_TRUE(h.engine().isPlaying());
}

TEST_F(SessionOpening, TwoQuickOpensShowTheLaterFile)
{
    int finished = 0;
    h.session().setOpeningFinishedHandler([&](bool) { ++finished; });
    h.session().openFileFromPath(fixture("lesson_95s.wav"));
    h.session().openFileFromPath(fixture("speech.mp3"));
    {
        // An import meanwhile has no rows to fill yet, and says why.
        AlertAnswerer answer("OK");
        h.session().importTranscription();
        ASSERT_TRUE(answer.waitForAlerts(1));
        EXPECT_EQ(answer.seen()[0].text, "Warning");
        EXPECT_EQ(answer.seen()[0].informativeText,
                  "The lesson is still being analysed. Import the dictation once it has opened.");
    }
    ASSERT_TRUE(waitFor([&] { return finished >= 1 && !h.session().isProcessing(); }, 60000));
    EXPECT_EQ(h.window().windowTitle(), "speech");
    EXPECT_EQ(table->model()->rowCount(), h.engine().numberOfSegments());
    EXPECT_EQ(h.engine().numberOfSegments(), 5);
    EXPECT_TRUE(h.engine().isPlaying());

    // When the later one fails, the window shows the earlier one, which the
    // engine holds.
    AlertAnswerer answer("OK");
    finished = 0;
    h.session().openFileFromPath(fixture("lesson_95s.wav"));
    h.session().openFileFromPath(fixture("text.mp3"));
    ASSERT_TRUE(waitFor([&] { return finished >= 1 && !h.session().isProcessing(); }, 60000));
    h.session().setOpeningFinishedHandler({});
    EXPECT_EQ(answer.seen().size(), 1);
    EXPECT_EQ(h.session().currentAudioPath(), fixture("lesson_95s.wav"));
    EXPECT_EQ(h.window().windowTitle(), "lesson_95s");
    EXPECT_GT(h.engine().numberOfSegments(), 5);
    EXPECT_EQ(table->model()->rowCount(), h.engine().numberOfSegments());
    EXPECT_EQ(RecentDocuments(h.defaults()).paths().value(0), fixture("lesson_95s.wav"));
    EXPECT_TRUE(h.engine().isPlaying());
}
