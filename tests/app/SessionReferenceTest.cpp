// SPDX-License-Identifier: GPL-3.0-or-later
// A reference text in the real window offscreen: attached from a subtitle
// file, checked with the keys, marked in the rows and the check bar, kept
// with the lesson, taken away; a file that cannot be read changes nothing.

#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"
#include "views/CheckBar.h"
#include "views/CustomTextField.h"
#include "views/RowMarkPainter.h"
#include "views/TranscriptionTableView.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using TestSupport::fixture;
using TestSupport::writeFile;

namespace {

// "00:00:01,500"
QString srtTime(double seconds)
{
    const qint64 ms = qRound64(seconds * 1000);
    return QStringLiteral("%1:%2:%3,%4")
        .arg(ms / 3600000, 2, 10, QLatin1Char('0'))
        .arg(ms / 60000 % 60, 2, 10, QLatin1Char('0'))
        .arg(ms / 1000 % 60, 2, 10, QLatin1Char('0'))
        .arg(ms % 1000, 3, 10, QLatin1Char('0'));
}

// One cue per segment, as subtitles made for the lesson would be.
QByteArray subtitlesFor(const SegmentList& segments)
{
    QString srt;
    for (qsizetype i = 0; i < segments.size(); ++i) {
        srt += QStringLiteral("%1\r\n%2 --> %3\r\n<i>The quick brown fox</i> number %4.\r\n\r\n")
                   .arg(i + 1)
                   .arg(srtTime(segments[i].start + 0.1))
                   .arg(srtTime(segments[i].start + segments[i].duration - 0.1))
                   .arg(i + 1);
    }
    return "\xEF\xBB\xBF" + srt.toUtf8();
}

bool sameColor(QRgb pixel, const QColor& color, int tolerance = 40)
{
    return std::abs(qRed(pixel) - color.red()) <= tolerance &&
           std::abs(qGreen(pixel) - color.green()) <= tolerance &&
           std::abs(qBlue(pixel) - color.blue()) <= tolerance;
}

// How many pixels of the colour lie in the rectangle of the image.
int pixelsOf(const QImage& image, const QRect& area, const QColor& color, int tolerance = 40)
{
    int found = 0;
    const QRect inside = area & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            found += sameColor(image.pixel(x, y), color, tolerance) ? 1 : 0;
    return found;
}

QAction* action(MainWindowController& window, const char* name)
{
    return window.findChild<QAction*>(QLatin1String(name));
}

class SessionReference : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        lesson = folder.filePath("lesson.wav");
        ASSERT_TRUE(QFile::copy(fixture("lesson_95s.wav"), lesson));
    }

    // Opens the lesson in a harness whose rows use a font the set-up installs.
    void open(WindowHarness& h)
    {
        QApplication::setActiveWindow(&h.window());
        h.center().post(Notifications::DictationTextFontDidChange,
                        QFont(QStringLiteral("DejaVu Sans Mono"), 20));
        ASSERT_TRUE(h.open(lesson));
        ASSERT_GT(h.engine().numberOfSegments(), 3);
        table = h.session().transcriptionTableView();
        bar = h.session().checkBar();
        ASSERT_TRUE(waitFor([&] { return table->currentIndex() == 0; }));
    }

    void attach(WindowHarness& h, const QString& path)
    {
        h.session().attachReferenceTextFrom(path);
        ASSERT_TRUE(waitFor([&] { return h.session().hasReferenceText(); }));
        // A plain text is spread over the segments as it is.
        if (path.endsWith(QLatin1String(".txt"))) {
            ASSERT_TRUE(dontAlign());
        }
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QApplication::processEvents();
    }

    QTemporaryDir folder;
    QString lesson;
    TranscriptionTableView* table = nullptr;
    CheckBar* bar = nullptr;
};

} // namespace

TEST_F(SessionReference, CheckMarksTheRowAndTheBarKeepsTheReferenceAndRemovesIt)
{
    WindowHarness h;
    open(h);
    EXPECT_TRUE(bar->isHidden()) << "no reference, no check bar";
    EXPECT_FALSE(action(h.window(), "check")->isVisible());
    EXPECT_FALSE(action(h.window(), "menuRemoveReference")->isEnabled());
    // Without a reference the check keys do nothing at all.
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(table->rowMarks(0).isEmpty());

    const QString srt = folder.filePath("lesson.srt");
    writeFile(srt, subtitlesFor(h.engine().segments()));
    attach(h, srt);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_TRUE(action(h.window(), "check")->isVisible());
    EXPECT_TRUE(action(h.window(), "menuRemoveReference")->isEnabled());
    EXPECT_EQ(bar->accessibleName(), "Press Ctrl+Return to check this segment.");

    // One typo, one word left out, one word added.
    QTest::keyClicks(QApplication::focusWidget(), "The quikc fox number 1 yes");
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(bar->accessibleName(),
              "3 mistakes: 'quikc' should be 'quick'; missing 'brown'; extra 'yes'. Segment 58%, "
              "lesson 58%.");
    EXPECT_EQ(bar->scoresText(), "Segment 58%   Lesson 58%");
    const RowMarks marks = table->rowMarks(0);
    EXPECT_EQ(marks.verdict, RowVerdict::Mistakes);
    EXPECT_EQ(marks.marks,
              (QList<TextMark>{{TextMark::Kind::Typo, 4, 5},
                               {TextMark::Kind::Missing, 9, 1},
                               {TextMark::Kind::Extra, 23, 3}}));

    // The marks are drawn: in the editor while the row is typed in, and in
    // the painted row once the learner has moved on.
    auto* editor = qobject_cast<CustomTextField*>(table->editorForRow(0));
    ASSERT_NE(editor, nullptr);
    EXPECT_GT(pixelsOf(editor->grab().toImage(), editor->rect(), RowMarkPainter::typoColor()), 20);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    ASSERT_TRUE(waitFor([&] { return table->currentIndex() == 1; }));
    const QRect row0 = table->visualRect(table->model()->index(0, 1));
    const QImage painted = table->viewport()->grab().toImage();
    EXPECT_GT(pixelsOf(painted, row0, RowMarkPainter::typoColor()), 20);
    EXPECT_GT(pixelsOf(painted, row0, RowMarkPainter::wrongColor()), 10) << "the struck word";
    EXPECT_GT(pixelsOf(painted, row0, RowMarkPainter::missingColor(), 20), 5) << "the caret";
    const QRect number0 = table->visualRect(table->model()->index(0, 0));
    EXPECT_GT(pixelsOf(painted, number0, RowMarkPainter::verdictColor(RowVerdict::Mistakes)), 10);
    EXPECT_EQ(bar->accessibleName(), "Press Ctrl+Return to check this segment.");
    h.screenshot(QStringLiteral("reference-check-offscreen"));

    // Back on the checked row its check shows again; typing takes the marks
    // away until the next check.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    ASSERT_TRUE(waitFor([&] { return table->currentIndex() == 0; }));
    EXPECT_TRUE(bar->accessibleName().startsWith("3 mistakes"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    EXPECT_TRUE(table->rowMarks(0).isEmpty());
    EXPECT_EQ(bar->accessibleName(), "Press Ctrl+Return to check this segment.");

    // On an empty row the hint is the first word; then a perfect row, case
    // aside, and the lesson's score over both typed rows.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    ASSERT_TRUE(waitFor([&] { return table->currentIndex() == 1; }));
    press(Qt::Key_H, Qt::ControlModifier);
    EXPECT_TRUE(bar->accessibleName().endsWith("Next word: The"))
        << bar->accessibleName().toStdString();
    QTest::keyClicks(QApplication::focusWidget(), "the quick brown fox number 2");
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(bar->accessibleName(), "No mistakes. Segment 100%, lesson 79%.");
    EXPECT_EQ(table->rowMarks(1).verdict, RowVerdict::Perfect);

    // Merged with the next segment, the row's part of the reference is both
    // cues; the undo gives each row its own again.
    const qsizetype rows = table->model()->rowCount();
    press(Qt::Key_J, Qt::ControlModifier);
    ASSERT_EQ(table->model()->rowCount(), rows - 1);
    press(Qt::Key_H, Qt::ControlModifier);
    EXPECT_TRUE(bar->accessibleName().endsWith("Next word: The"))
        << bar->accessibleName().toStdString();
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(bar->accessibleName().startsWith("6 mistakes: missing 'The'"))
        << bar->accessibleName().toStdString();
    press(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_EQ(table->model()->rowCount(), rows);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(bar->accessibleName().startsWith("No mistakes.")) << bar->accessibleName().toStdString();

    // The reference comes back with the lesson and goes with Remove.
    ASSERT_TRUE(h.open(lesson));
    ASSERT_TRUE(waitFor([&] { return table->currentIndex() == 0; }));
    EXPECT_TRUE(h.session().hasReferenceText());
    EXPECT_TRUE(bar->isVisible());
    const QStringList stored = QDir(h.documentsPath() + "/Transcriptions")
                                   .entryList({QStringLiteral("*.reference")}, QDir::Files);
    ASSERT_EQ(stored.size(), 1);
    action(h.window(), "menuRemoveReference")->trigger();
    EXPECT_FALSE(h.session().hasReferenceText());
    EXPECT_TRUE(bar->isHidden());
    EXPECT_FALSE(action(h.window(), "check")->isVisible());
    EXPECT_TRUE(QDir(h.documentsPath() + "/Transcriptions")
                    .entryList({QStringLiteral("*.reference")}, QDir::Files)
                    .isEmpty());
    EXPECT_TRUE(table->rowMarks(1).isEmpty());
}

TEST_F(SessionReference, CheckAsITypeMarksEveryChangeAndBadFilesChangeNothing)
{
    WindowHarness h;
    h.defaults().setObject(true, PreferenceKeys::CheckAsIType);
    open(h);
    const QString plain = folder.filePath("lesson.txt");
    QStringList lines;
    for (qsizetype i = 0; i < h.engine().numberOfSegments(); ++i)
        lines << QStringLiteral("Sentence %1 is here.").arg(i + 1);
    writeFile(plain, lines.join(u'\n').toUtf8());
    attach(h, plain);

    // The row's marks follow each key; the bar once the keys are in.
    const auto barReads = [&](const QString& text) {
        return waitFor([&] { return bar->accessibleName() == text; }, 2000);
    };
    QTest::keyClicks(QApplication::focusWidget(), "Sentence 1 is");
    EXPECT_EQ(table->rowMarks(0).verdict, RowVerdict::Mistakes);
    EXPECT_TRUE(barReads("1 mistake: missing 'here'. Segment 75%, lesson 75%."))
        << bar->accessibleName().toStdString();
    QTest::keyClicks(QApplication::focusWidget(), " here");
    EXPECT_EQ(table->rowMarks(0).verdict, RowVerdict::Perfect);
    EXPECT_TRUE(barReads("No mistakes. Segment 100%, lesson 100%."))
        << bar->accessibleName().toStdString();

    // A stricter typo weight or case counting re-marks the checked row.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    QTest::keyClicks(QApplication::focusWidget(), "r");
    h.defaults().setObject(1.0, PreferenceKeys::TypoWeight);
    h.center().post(Notifications::CheckOptionsDidChange, QString(PreferenceKeys::TypoWeight));
    EXPECT_TRUE(barReads("1 mistake: 'herr' should be 'here'. Segment 75%, lesson 75%."))
        << bar->accessibleName().toStdString();
    EXPECT_EQ(table->rowMarks(0).verdict, RowVerdict::TyposOnly);

    // Files that cannot be read: an alert naming the file and the fault; the
    // reference and the typing stay as they were.
    struct Bad
    {
        const char* name;
        QByteArray bytes;
        const char* message;
    };
    const Bad bad[] = {
        {"binary.srt", QByteArray("\x00\x01\x02\x03PNG", 8), "“binary.srt” is not a text file."},
        {"latin1.txt", QByteArray("caf\xE9 au lait\n"), "“latin1.txt” is not UTF-8 text."},
        {"empty.vtt", QByteArray(" \n\n"), "“empty.vtt” is empty."},
        {"noheader.vtt", QByteArray("00:01.000 --> 00:02.000\nHi\n"),
         "“noheader.vtt” does not start with WEBVTT."},
        {"late.srt", QByteArray("1\n02:00:00,000 --> 02:00:01,000\nToo late\n"),
         "“late.srt” has no text within the recording."},
    };
    for (const Bad& file : bad) {
        SCOPED_TRACE(file.name);
        const QString path = folder.filePath(QLatin1String(file.name));
        writeFile(path, file.bytes);
        AlertAnswerer ok(QStringLiteral("OK"));
        h.session().attachReferenceTextFrom(path);
        ASSERT_TRUE(ok.waitForAlerts(1));
        EXPECT_EQ(ok.seen().first().title, "Cannot Read Reference Text");
        EXPECT_EQ(ok.seen().first().informativeText.isEmpty() ? ok.seen().first().text
                                                               : ok.seen().first().informativeText,
                  QString::fromUtf8(file.message));
        EXPECT_TRUE(h.session().hasReferenceText());
        EXPECT_EQ(table->mutableTranscriptions().value(0), "Sentence 1 is herr");
        EXPECT_EQ(table->rowMarks(0).verdict, RowVerdict::TyposOnly);
    }
}
