// SPDX-License-Identifier: GPL-3.0-or-later
// A recording's content fingerprint and the store's index of them: the same
// audio gives the same fingerprint wherever its file lies and whatever its
// tags say, other audio of the same size another; the index finds a dictation
// by it and shrugs off damage; copying a dictation never replaces one.

#include "transcript/ContentFingerprint.h"

#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "support/TestSupport.h"
#include "transcript/FingerprintIndex.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

using TestSupport::fixture;
using TestSupport::readFile;
using TestSupport::writeFile;

namespace {

// As the window takes it after an opening; `threads` 0 reads in parts.
QString fingerprintOf(const QString& path, int threads)
{
    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    AudioManager engine(defaults.store(), center);
    engine.setAnalysisThreads(threads);
    if (!engine.analyzeAudioCharacteristics(path)) {
        ADD_FAILURE() << path.toStdString() << ": " << engine.lastError().toStdString();
        return {};
    }
    return ContentFingerprint::of(engine.audioCharacteristics().rmsValues, engine.sampleRate(),
                                  engine.totalSamples());
}

const QString kIdA(64, u'a');
const QString kIdB(64, u'b');
const QString kIdC(64, u'c');

} // namespace

TEST(ContentFingerprint, SurvivesMovingCopyingAndRetaggingButTellsOtherAudioApart)
{
    for (const char* name : {"speech.mp3", "speech_aac.m4a", "speech.flac"}) {
        SCOPED_TRACE(name);
        QTemporaryDir dir;
        const QString suffix = QFileInfo(name).suffix();
        const QString original = dir.filePath("lesson." + suffix);
        ASSERT_TRUE(QFile::copy(fixture(name), original));
        const QString fingerprint = fingerprintOf(original, 1);
        ASSERT_TRUE(ContentFingerprint::isWellFormed(fingerprint)) << fingerprint.toStdString();

        // Re-tagged: the container is rewritten, the audio packets are copied.
        const QString retagged = dir.filePath("retagged." + suffix);
        ASSERT_TRUE(TestSupport::runFfmpeg({"-i", original, "-map", "0", "-c", "copy", "-metadata",
                                            "title=A title much longer than the one before",
                                            "-metadata", "artist=Somebody Else", retagged}));
        EXPECT_NE(readFile(retagged), readFile(original));
        ASSERT_TRUE(QDir(dir.path()).mkdir("elsewhere"));
        const QString copied = dir.filePath("elsewhere/copy." + suffix);
        ASSERT_TRUE(QFile::copy(original, copied));
        const QString moved = dir.filePath("elsewhere/moved and renamed." + suffix);
        ASSERT_TRUE(QFile::rename(original, moved));

        EXPECT_EQ(fingerprintOf(retagged, 1), fingerprint);
        EXPECT_EQ(fingerprintOf(moved, 1), fingerprint);
        // Read in parts side by side, as a machine with more cores reads it.
        EXPECT_EQ(fingerprintOf(copied, 4), fingerprint);
    }

    // Another recording with exactly as many bytes.
    QTemporaryDir dir;
    const QString quieter = dir.filePath("quieter.wav");
    ASSERT_TRUE(TestSupport::runFfmpeg(
        {"-i", fixture("speech.wav"), "-af", "volume=0.9", "-c:a", "pcm_s16le", quieter}));
    ASSERT_EQ(QFileInfo(quieter).size(), QFileInfo(fixture("speech.wav")).size());
    EXPECT_NE(fingerprintOf(quieter, 1), fingerprintOf(fixture("speech.wav"), 1));
    EXPECT_TRUE(ContentFingerprint::of({}, 44100.0, 0).isEmpty());
}

TEST(FingerprintIndex, FindsTheDictationSavedElsewhereAndReadsDamageAsEmpty)
{
    QTemporaryDir folder;
    const FingerprintIndex index(folder.path());
    const QString fingerprint(64, u'f');
    const QDateTime saved = QDateTime::fromString("2026-03-04T05:06:07.089Z", Qt::ISODateWithMs);
    EXPECT_FALSE(index.lookup(fingerprint));

    ASSERT_TRUE(
        index.record(fingerprint, {kIdA, "/music/ünïcode \"lesson\"\nline two 100%.mp3", saved}));
    const std::optional<FingerprintIndex::Entry> found = index.lookup(fingerprint);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->identity, kIdA);
    EXPECT_EQ(found->audioPath, "/music/ünïcode \"lesson\"\nline two 100%.mp3");
    EXPECT_EQ(found->saved, saved);
    // Found elsewhere only while its transcript is there, and not under itself.
    EXPECT_FALSE(index.lookupElsewhere(fingerprint, kIdB));
    writeFile(folder.filePath(kIdA), "[00:00.000]typed");
    EXPECT_EQ(index.lookupElsewhere(fingerprint, kIdB)->identity, kIdA);
    EXPECT_FALSE(index.lookupElsewhere(fingerprint, kIdA));
    // A later save under another identity takes the entry; others stay.
    const QString other(64, u'0');
    ASSERT_TRUE(index.record(other, {kIdC, "/music/other.mp3", saved}));
    ASSERT_TRUE(index.record(fingerprint, {kIdB, "/music/moved.mp3", saved.addSecs(60)}));
    EXPECT_EQ(index.lookup(fingerprint)->identity, kIdB);
    EXPECT_EQ(index.lookup(other)->identity, kIdC);
    EXPECT_FALSE(index.record("not a fingerprint", {kIdA, "/a.mp3", saved}));

    const struct
    {
        const char* what;
        QByteArray bytes; // empty: a FIFO, which must not be waited on
    } damages[] = {
        {"garbage", QByteArray("\x00\xff not json {{{", 15)},
        {"someone else's file", R"({"entries": {}})"},
        {"an identity leading out of the folder",
         "kelmora-fingerprint-index 1\n" + fingerprint.toUtf8() + " ../../etc/passwd 0 /a.mp3\n"},
        {"a FIFO", {}},
    };
    for (const auto& damage : damages) {
        SCOPED_TRACE(damage.what);
        QFile::remove(index.path());
        if (damage.bytes.isEmpty())
            ASSERT_EQ(::mkfifo(QFile::encodeName(index.path()).constData(), 0600), 0);
        else
            writeFile(index.path(), damage.bytes);
        EXPECT_FALSE(index.lookup(fingerprint));
        // Rewritten whole at the next record.
        ASSERT_TRUE(index.record(fingerprint, {kIdA, "/music/a.mp3", saved}));
        EXPECT_EQ(index.lookup(fingerprint)->identity, kIdA);
    }
}

TEST(FingerprintIndex, CopiesADictationWithItsReferenceButNeverOverAnything)
{
    QTemporaryDir folder;
    const FingerprintIndex index(folder.path());
    const QString a = folder.filePath(kIdA);
    writeFile(a, "[00:00.000]typed in a");
    writeFile(a + ".reference", "reference of a");

    QString error;
    ASSERT_TRUE(index.copyDictation(kIdA, kIdB, &error)) << error.toStdString();
    EXPECT_EQ(readFile(folder.filePath(kIdB)), "[00:00.000]typed in a");
    EXPECT_EQ(readFile(folder.filePath(kIdB) + ".reference"), "reference of a");
    EXPECT_EQ(readFile(a), "[00:00.000]typed in a");

    // A transcript already there fails the copy and stays as it was.
    writeFile(folder.filePath(kIdB), "[00:00.000]typed in b");
    EXPECT_FALSE(index.copyDictation(kIdA, kIdB, &error));
    EXPECT_TRUE(error.contains("already stored")) << error.toStdString();
    EXPECT_EQ(readFile(folder.filePath(kIdB)), "[00:00.000]typed in b");
    // A reference already there is the learner's own and is kept.
    writeFile(folder.filePath(kIdC) + ".reference", "reference of c");
    ASSERT_TRUE(index.copyDictation(kIdA, kIdC));
    EXPECT_EQ(readFile(folder.filePath(kIdC) + ".reference"), "reference of c");
    // Nothing to copy, or a name leading out of the folder.
    EXPECT_FALSE(index.copyDictation(QString(64, u'd'), QString(64, u'e'), &error));
    EXPECT_FALSE(index.copyDictation(kIdA, "../" + kIdA.left(61)));

    // No temporary file is left behind.
    QStringList names = QDir(folder.path()).entryList(QDir::Files | QDir::System);
    names.sort();
    EXPECT_EQ(names, (QStringList{kIdA, kIdA + ".reference", kIdB, kIdB + ".reference", kIdC,
                                  kIdC + ".reference"}));
}
