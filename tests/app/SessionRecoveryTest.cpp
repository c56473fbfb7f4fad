// SPDX-License-Identifier: GPL-3.0-or-later
// Store files that cannot be used whole, in the real window offscreen: the
// first save after the open moves the file aside byte for byte instead of
// writing over it, and Recover Earlier Dictation brings back every line that
// can still be read.

#include "app/AutoSaveQueue.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "dialogs/RecoverDictationDialog.h"
#include "support/TestSupport.h"
#include "transcript/LrcReader.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QFile>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <random>

using TestSupport::fixture;
using TestSupport::readFile;
using TestSupport::writeFile;

namespace {

// Each copy is a whole open of the lesson; the sanitizer builds, several
// times slower, run a fifth of them.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int kCopies = 40;
#else
constexpr int kCopies = 200;
#endif

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// One of the ways a transcript gets damaged: cut short, a byte changed, a
// line lost, a stamp past the end, stamps running backwards, a stray line.
QByteArray damage(QByteArray good, std::mt19937& random)
{
    auto pick = [&](qsizetype n) { return qsizetype(random() % quint32(std::max<qsizetype>(n, 1))); };
    QList<QByteArray> lines = good.split('\n');
    switch (random() % 6) {
    case 0:
        return good.left(pick(good.size()));
    case 1:
        good[pick(good.size())] = char(random() & 0xFF);
        return good;
    case 2:
        lines.removeAt(pick(lines.size()));
        break;
    case 3:
        lines[pick(lines.size())].replace(1, 2, "59");
        break;
    case 4:
        lines.swapItemsAt(pick(lines.size()), pick(lines.size()));
        break;
    default:
        lines.insert(pick(lines.size()), "stray words without a stamp");
        break;
    }
    return lines.join('\n');
}

// Every text a reader can still take from the bytes.
QStringList readableTexts(const QByteArray& bytes)
{
    QStringList texts;
    for (const QString& text : Lrc::readStampedLines(QString::fromUtf8(bytes)).texts) {
        if (!text.isEmpty())
            texts.append(text);
    }
    return texts;
}

} // namespace

TEST(SessionRecovery, DamagedStoreFilesAreSetAsideWholeAndTheirReadableLinesRecovered)
{
    QTemporaryDir folder;
    const QString lesson = folder.filePath("lesson.wav");
    ASSERT_TRUE(QFile::copy(fixture("speech.wav"), lesson));
    WindowHarness h;
    QApplication::setActiveWindow(&h.window());
    ASSERT_TRUE(h.open(lesson));
    ViewController& session = h.session();
    TranscriptionTableView* table = session.transcriptionTableView();
    const qsizetype rows = h.engine().numberOfSegments();
    ASSERT_GE(rows, 3);
    QByteArray good;
    for (qsizetype i = 0; i < rows; ++i)
        good += table->generateLRCStringForText(QStringLiteral("row%1 words").arg(i), i).toUtf8() +
                (i + 1 < rows ? "\n" : "");

    auto saveNow = [&](int row) {
        h.advanceAutoSaveClock(AutoSaveQueue::kThrottleSeconds);
        table->setCurrentSegment(row);
        session.didSelectSegmentAtIndex(row);
        h.finishAutoSaves();
    };
    AlertAnswerer alerts(QStringLiteral("OK")); // none expected: a failure, not a hang
    std::mt19937 random(20261126);
    int setAside = 0;
    for (int copy = 0; copy < kCopies; ++copy) {
        SCOPED_TRACE(copy);
        const QByteArray damaged = damage(good, random);
        writeFile(h.storePath(), damaged);
        const qsizetype asideBefore = session.setAsideTranscripts().size();
        ASSERT_TRUE(h.open(lesson));
        saveNow(1);
        const QStringList aside = session.setAsideTranscripts();
        if (aside.size() == asideBefore) {
            // Read whole: the rows are the file's lines, saved as they were.
            for (const QString& text : readableTexts(damaged))
                EXPECT_TRUE(table->mutableTranscriptions().contains(text)) << qPrintable(text);
            continue;
        }
        ++setAside;
        ASSERT_EQ(aside.size(), asideBefore + 1);
        EXPECT_EQ(bytesOf(aside.first()), damaged) << "the newest set-aside copy is not the file";
        EXPECT_EQ(session.statusBar()->currentMessage(),
                  "A saved dictation that could not be used was set aside; File → Recover "
                  "Earlier Dictation… brings it back");

        session.recoverEarlierDictation();
        auto* dialog = h.window().findChild<RecoverDictationDialog*>();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->chosenPath(), aside.first());
        dialog->accept();
        QApplication::processEvents();
        const QStringList recovered = table->mutableTranscriptions();
        EXPECT_EQ(recovered.size(), h.engine().numberOfSegments());
        const QString all = recovered.join(u' ');
        for (const QString& text : readableTexts(damaged))
            EXPECT_TRUE(all.contains(text)) << qPrintable(text) << " not in " << qPrintable(all);
        // The recovered rows are the lesson's now: the next save writes them.
        saveNow(0);
        EXPECT_EQ(session.setAsideTranscripts().size(), aside.size());
        for (const QString& text : recovered)
            EXPECT_TRUE(QString::fromUtf8(bytesOf(h.storePath())).contains(text));
    }
    // Most damage leaves something that cannot be used whole.
    EXPECT_GT(setAside, kCopies / 2);
    EXPECT_TRUE(alerts.seen().isEmpty()) << qPrintable(alerts.seen().first().informativeText);
}
