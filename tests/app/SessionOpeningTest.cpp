// The checked road's refusals, the music-folder road and quick successive
// opens, each leaving the learner's rows where they were.

#include "app/LoadingIndicator.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "support/TestSupport.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QFile>
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
};

} // namespace

TEST_F(SessionOpening, ATypeRejectedFileIsNamedButTheRowsStay)
{
    AlertAnswerer answer("OK");
    choose(fixture("text.mp3"));
    ASSERT_TRUE(answer.waitForAlerts(1));
    EXPECT_EQ(answer.seen()[0].text, "Invalid File Type");
    EXPECT_EQ(answer.seen()[0].informativeText, "Please select a supported audio file");
    EXPECT_EQ(h.session().currentAudioPath(), fixture("text.mp3"));
    EXPECT_EQ(table->mutableTranscriptions(), rows);
    EXPECT_FALSE(h.session().loadingIndicator()->isVisible());
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
    EXPECT_EQ(table->mutableTranscriptions(), rows);

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
    ASSERT_TRUE(waitFor([&] { return finished >= 1 && !h.session().isProcessing(); }, 60000));
    h.session().setOpeningFinishedHandler({});
    EXPECT_EQ(h.window().windowTitle(), "speech");
    EXPECT_EQ(table->model()->rowCount(), h.engine().numberOfSegments());
    EXPECT_EQ(h.engine().numberOfSegments(), 5);
    EXPECT_TRUE(h.engine().isPlaying());
}
