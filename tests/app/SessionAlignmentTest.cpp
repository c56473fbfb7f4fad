// SPDX-License-Identifier: GPL-3.0-or-later
// A plain reference text placed on its recording in the real window
// offscreen, by the real aligner on a read lesson whose pauses are known:
// the language asked (the interface's guess first), the progress, the
// sentences stored and laid over the rows, then a cut at them. Declined,
// cancelled or failed, the plain text stays attached as it was.

#include "app/FileIdentity.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "reference/ReferenceStore.h"
#include "support/TestSupport.h"
#include "transcript/DocumentManager.h"
#include "views/CheckBar.h"
#include "views/TranscriptionTableView.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QProgressDialog>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>
#include <gtest/gtest.h>

using TestSupport::fixture;
using TestSupport::readFile;
using TestSupport::writeFile;

namespace {

// A whole alignment of a read lesson takes seconds on a busy machine.
constexpr int kAlignmentMs = 180000;

QStringList lines(const QString& path)
{
    QStringList out;
    for (const QString& line : QString::fromUtf8(readFile(path)).split(u'\n')) {
        if (!line.trimmed().isEmpty())
            out.append(line.trimmed());
    }
    return out;
}

QComboBox* languageBox(QDialog* question)
{
    return question ? question->findChild<QComboBox*>(QStringLiteral("alignLanguage")) : nullptr;
}

// Return in the question, where the focus is: the list of languages.
bool pressAlign(QDialog* question)
{
    QComboBox* box = languageBox(question);
    if (!box || !waitFor([&] { return QApplication::focusWidget() == box; }))
        return false;
    QTest::keyClick(box, Qt::Key_Return);
    return true;
}

QProgressDialog* progressShown()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("alignProgress") && widget->isVisible())
            return qobject_cast<QProgressDialog*>(widget);
    }
    return nullptr;
}

class SessionAlignment : public ::testing::Test
{
protected:
    std::optional<ReferenceText> stored(WindowHarness& h)
    {
        return ReferenceStore(DocumentManager(h.documentsPath()))
            .load(*FileIdentity::uniqueIdentifierForFileAtPath(lesson));
    }
    QAction* alignAgain(WindowHarness& h)
    {
        QAction* item = h.window().findChild<QAction*>(QStringLiteral("menuAlignAgain"));
        // The menu asks as it opens.
        if (item)
            item->setEnabled(h.session().canAlignReference());
        return item;
    }

    QTemporaryDir folder;
    QString lesson;
};

} // namespace

TEST_F(SessionAlignment, APlainTextIsPlacedInTheChosenLanguageAndCutAtItsSentences)
{
    lesson = folder.filePath("lesson.flac");
    ASSERT_TRUE(QFile::copy(fixture("lessons/en.flac"), lesson));
    const QStringList sentences = lines(fixture("lessons/en.txt"));
    QList<QPair<double, double>> pauses;
    for (const QString& line : lines(fixture("lessons/en.pauses")))
        pauses.append({line.section(u' ', 0, 0).toDouble(), line.section(u' ', 1, 1).toDouble()});
    ASSERT_EQ(pauses.size(), sentences.size() - 1);
    const QString text = folder.filePath("story.txt");
    writeFile(text, sentences.join(u'\n').toUtf8());

    WindowHarness h;
    QApplication::setActiveWindow(&h.window());
    ASSERT_TRUE(h.open(lesson));
    ViewController& session = h.session();
    session.attachReferenceTextFrom(text);

    // The plain text is attached at once; the question offers the
    // interface's language for Latin letters, and Return aligns.
    QDialog* question = alignmentQuestion();
    ASSERT_NE(question, nullptr);
    EXPECT_TRUE(session.hasReferenceText());
    EXPECT_EQ(question->windowModality(), Qt::WindowModal);
    ASSERT_NE(languageBox(question), nullptr);
    EXPECT_EQ(languageBox(question)->currentData().toString(), "en");
    EXPECT_GT(languageBox(question)->count(), 3);
    ASSERT_TRUE(pressAlign(question));

    ASSERT_TRUE(waitFor([] { return progressShown() != nullptr; }));
    EXPECT_FALSE(session.canAlignReference()); // one run at a time
    ASSERT_TRUE(waitFor([&] { return stored(h) && stored(h)->isAligned(); }, kAlignmentMs));
    EXPECT_TRUE(waitFor([] { return progressShown() == nullptr; }));

    const ReferenceText reference = *stored(h);
    EXPECT_EQ(reference.language(), "en");
    EXPECT_EQ(reference.sourceName(), "story.txt");
    ASSERT_EQ(reference.units().size(), sentences.size());
    qsizetype uncertain = 0;
    for (qsizetype k = 0; k < sentences.size(); ++k) {
        EXPECT_EQ(reference.units()[k].text, sentences[k]);
        if (reference.units()[k].uncertain)
            ++uncertain;
    }
    EXPECT_EQ(
        session.statusBar()->currentMessage(),
        QStringLiteral("Aligned %1 sentences, %2 uncertain").arg(sentences.size()).arg(uncertain));
    EXPECT_TRUE(alignAgain(h)->isEnabled());

    // One segment a sentence, each new start in the pause before its sentence.
    session.cutSegmentsAtSentences();
    const SegmentList segments = h.engine().segments();
    ASSERT_EQ(segments.size(), sentences.size());
    for (qsizetype k = 1; k < segments.size(); ++k) {
        EXPECT_GE(segments[k].start, pauses[k - 1].first - 0.25) << k;
        EXPECT_LE(segments[k].start, pauses[k - 1].second + 0.25) << k;
    }

    // Each row is checked against its own sentence.
    TranscriptionTableView* table = session.transcriptionTableView();
    // Offscreen, no window manager gives the window back its activation.
    QApplication::setActiveWindow(&h.window());
    for (int row : {0, 12, int(sentences.size()) - 1}) {
        SCOPED_TRACE(row);
        table->setCurrentSegment(row);
        ASSERT_TRUE(
            waitFor([&] { return QApplication::focusWidget() == table->editorForRow(row); }));
        QTest::keyClicks(QApplication::focusWidget(), sentences[row]);
        session.checkCurrentSegment();
        EXPECT_TRUE(waitFor([&] {
            return session.checkBar()->accessibleName().startsWith("No mistakes. Segment 100%");
        })) << session.checkBar()->accessibleName().toStdString();
    }
}

TEST_F(SessionAlignment, DeclinedCancelledOrFailedThePlainTextStaysAsItWas)
{
    lesson = folder.filePath("lesson.wav");
    ASSERT_TRUE(QFile::copy(fixture("speech.wav"), lesson));
    const QString text = folder.filePath("lesson.txt");
    writeFile(text, "Good morning, everyone. Today we will practise listening.\n"
                    "Please write down every sentence you hear.\n"
                    "Take your time, and check your spelling. See you next week.\n");
    // The learner's interface is German: a Latin text is guessed German, not
    // the system's language.
    WindowHarness h(QStringLiteral("de"));
    QApplication::setActiveWindow(&h.window());
    ASSERT_TRUE(h.open(lesson));
    ViewController& session = h.session();
    session.attachReferenceTextFrom(text);
    QDialog* question = alignmentQuestion();
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(languageBox(question)->currentData().toString(), "de");
    const std::optional<ReferenceText> plain = stored(h);
    ASSERT_TRUE(plain && !plain->isTimed());

    // Don't Align (Escape): the text as it was, spread by its characters.
    ASSERT_TRUE(dontAlign());
    EXPECT_EQ(progressShown(), nullptr);
    EXPECT_EQ(stored(h), plain);
    ASSERT_NE(alignAgain(h), nullptr);
    EXPECT_TRUE(alignAgain(h)->isEnabled());

    // Align Again, then Cancel: the run stops and its result is dropped.
    alignAgain(h)->trigger();
    question = alignmentQuestion();
    ASSERT_NE(question, nullptr);
    languageBox(question)->setCurrentIndex(languageBox(question)->findData("en"));
    ASSERT_TRUE(pressAlign(question));
    QProgressDialog* progress = nullptr;
    ASSERT_TRUE(waitFor([&] { return (progress = progressShown()) != nullptr; }));
    QAbstractButton* cancel = progress->findChild<QAbstractButton*>();
    ASSERT_NE(cancel, nullptr);
    cancel->click();
    EXPECT_TRUE(waitFor([] { return progressShown() == nullptr; }));
    EXPECT_TRUE(QThreadPool::globalInstance()->waitForDone(30000));
    QApplication::processEvents();
    EXPECT_EQ(stored(h), plain);
    EXPECT_TRUE(session.statusBar()->currentMessage().isEmpty());
    EXPECT_TRUE(session.canAlignReference());

    // The recording gone from its folder: a message says why, and the plain
    // text stays attached and stored.
    ASSERT_TRUE(QFile::rename(lesson, folder.filePath("moved.wav")));
    AlertAnswerer ok(QStringLiteral("OK"));
    alignAgain(h)->trigger();
    question = alignmentQuestion();
    ASSERT_TRUE(pressAlign(question));
    ASSERT_TRUE(ok.waitForAlerts(1, kAlignmentMs));
    EXPECT_EQ(ok.seen().first().title, "Der Referenztext konnte nicht ausgerichtet werden");
    EXPECT_TRUE(waitFor([] { return progressShown() == nullptr; }));
    ASSERT_TRUE(QFile::rename(folder.filePath("moved.wav"), lesson));
    EXPECT_EQ(stored(h), plain);
    EXPECT_TRUE(session.hasReferenceText());
    EXPECT_TRUE(session.canAlignReference());
}
