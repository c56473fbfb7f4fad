// SPDX-License-Identifier: GPL-3.0-or-later
// The close prompt offscreen: no lesson closes at once; Cancel, Don't Save,
// and Save with its panel for a new or existing transcript.

#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "support/TestSupport.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

using TestSupport::fixture;

TEST(ClosePrompt, WithNoFileOpenTheWindowClosesAtOnce)
{
    WindowHarness h;
    AlertAnswerer answerer(QStringLiteral("Cancel"));
    EXPECT_TRUE(h.window().close());
    QApplication::processEvents();
    EXPECT_TRUE(answerer.seen().isEmpty());
    EXPECT_FALSE(h.window().isVisible());
}

TEST(ClosePrompt, CancelKeepsWindowPlaybackAndSession)
{
    WindowHarness h;
    ASSERT_TRUE(h.open(fixture("speech.wav")));
    AlertAnswerer answerer(QStringLiteral("Cancel"));
    h.window().close();
    ASSERT_TRUE(answerer.waitForAlerts(1));
    EXPECT_EQ(answerer.seen()[0].text, "Save Dictation?");
    EXPECT_EQ(answerer.seen()[0].informativeText,
              "Do you want to save the dictation before closing?");
    EXPECT_EQ(answerer.seen()[0].buttons, (QStringList{"Save", "Don't Save", "Cancel"}));
    QApplication::processEvents();
    EXPECT_TRUE(h.window().isVisible());
    EXPECT_TRUE(h.engine().isPlaying());
    EXPECT_GT(h.engine().numberOfSegments(), 0);
}

TEST(ClosePrompt, DontSaveStopsTheEngineAndCloses)
{
    WindowHarness h;
    ASSERT_TRUE(h.open(fixture("speech.wav")));
    AlertAnswerer answerer(QStringLiteral("Don't Save"));
    h.window().close();
    ASSERT_TRUE(waitFor([&] { return !h.window().isVisible(); }));
    EXPECT_FALSE(h.engine().isPlaying());
}

namespace {

// Answers the save panel of the close prompt's "Save" when it shows, after
// noting what it looked like.
class SavePanelAnswerer
{
public:
    explicit SavePanelAnswerer(std::function<void(QFileDialog*)> answer)
        : m_answer(std::move(answer))
    {
        m_poll.setInterval(10);
        QObject::connect(&m_poll, &QTimer::timeout, [this] {
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                auto* panel = qobject_cast<QFileDialog*>(widget);
                if (!panel || !panel->isVisible())
                    continue;
                if (!panel->property("kelmoraSeen").toBool()) {
                    panel->setProperty("kelmoraSeen", true);
                    auto* name = panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                    seen = {panel->windowTitle(), panel->acceptMode(), panel->nameFilters(),
                            name ? name->text() : QString()};
                    ++shown;
                }
                m_answer(panel);
            }
        });
        m_poll.start();
    }

    struct Look
    {
        QString title;
        QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
        QStringList filters;
        QString proposedName;
    } seen;
    int shown = 0;

private:
    std::function<void(QFileDialog*)> m_answer;
    QTimer m_poll;
};

} // namespace

TEST(ClosePrompt, SaveAsksForANewOrExistingTranscriptWritesItThenCloses)
{
    WindowHarness h;
    ASSERT_TRUE(h.open(fixture("speech.wav")));
    h.session().transcriptionTableView()->updateTranscription(QStringLiteral("Good morning"), 0);
    // A file that does not exist yet: the panel may create it.
    const QString chosen = h.documentsPath() + QStringLiteral("/new/speech.lrc");
    ASSERT_TRUE(QDir().mkpath(h.documentsPath() + "/new"));
    SavePanelAnswerer panel([&](QFileDialog* dialog) {
        // The file's name is typed into the panel, as a learner would; a
        // panel still listing its folder may not take it at once.
        if (auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
            name->setText(chosen);
        if (dialog->selectedFiles().value(0) == chosen)
            static_cast<QDialog*>(dialog)->accept(); // the panel's own checks run
    });
    AlertAnswerer answerer(QStringLiteral("Save"));
    h.window().close();
    ASSERT_TRUE(waitFor([&] { return !h.window().isVisible(); }));

    EXPECT_EQ(panel.shown, 1);
    EXPECT_EQ(panel.seen.title, "Save Transcript");
    EXPECT_EQ(panel.seen.mode, QFileDialog::AcceptSave);
    EXPECT_EQ(panel.seen.filters, QStringList{"Transcripts (*.lrc)"});
    EXPECT_EQ(panel.seen.proposedName, "speech.lrc");
    const QStringList lines = QString::fromUtf8(TestSupport::readFile(chosen)).split('\n');
    EXPECT_EQ(lines.size(), h.session().transcriptionTableView()->model()->rowCount());
    EXPECT_EQ(lines.value(0), "[00:00.000]Good morning");
}

TEST(ClosePrompt, CancellingTheSavePanelKeepsTheWindowOpen)
{
    WindowHarness h;
    ASSERT_TRUE(h.open(fixture("speech.wav")));
    SavePanelAnswerer panel([](QFileDialog* dialog) { dialog->reject(); });
    {
        AlertAnswerer answerer(QStringLiteral("Save"));
        h.window().close();
        ASSERT_TRUE(waitFor([&] { return panel.shown == 1 && !panel.seen.title.isEmpty(); }));
    }
    ASSERT_TRUE(waitFor([] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (qobject_cast<QFileDialog*>(widget) && widget->isVisible())
                return false;
        return true;
    }));
    QApplication::processEvents();
    EXPECT_TRUE(h.window().isVisible());
    EXPECT_TRUE(h.engine().isPlaying());
    EXPECT_GT(h.session().transcriptionTableView()->model()->rowCount(), 0);
}
