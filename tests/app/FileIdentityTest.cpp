// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FileIdentity.h"

#include "support/TestSupport.h"
#include "transcript/DocumentManager.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimeZone>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

class FileIdentityTest : public ::testing::Test
{
protected:
    QTemporaryDir dir;
    QString audio = dir.filePath("lesson.mp3");

    void SetUp() override { TestSupport::writeFile(audio, "some audio bytes"); }

    static void setModified(const QString& path, const QDateTime& when)
    {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        ASSERT_TRUE(f.setFileTime(when, QFileDevice::FileModificationTime));
    }
};

} // namespace

TEST_F(FileIdentityTest, KeyHoldsPathSizeTimesAndFileNumber)
{
    const QDateTime modified = QDateTime(QDate(2026, 11, 22), QTime(9, 14, 3, 750), Qt::UTC);
    setModified(audio, modified);
    const std::optional<QString> key = FileIdentity::identityKeyForFileAtPath(audio);
    ASSERT_TRUE(key);

    struct stat st = {};
    ASSERT_EQ(stat(QFile::encodeName(audio).constData(), &st), 0);
    const QString fileNumber =
        QStringLiteral("%1:%2").arg(quint64(st.st_dev)).arg(quint64(st.st_ino));
    const QString birth = QStringLiteral("(\\(null\\)|\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ)");
    const QRegularExpression shape("^" + QRegularExpression::escape(audio) + "_16_" + birth +
                                   "_2026-11-22T09:14:03Z_" + fileNumber + "$");
    EXPECT_TRUE(shape.match(*key).hasMatch()) << qPrintable(*key);

    const std::optional<QString> id = FileIdentity::uniqueIdentifierForFileAtPath(audio);
    ASSERT_TRUE(id);
    EXPECT_TRUE(QRegularExpression("^[0-9a-f]{64}$").match(*id).hasMatch());
    EXPECT_EQ(*id, QCryptographicHash::hash(key->toUtf8(), QCryptographicHash::Sha256).toHex());
}

TEST_F(FileIdentityTest, SameFileSameIdentityAndWritingOrTouchingChangesIt)
{
    std::optional<QString> first = FileIdentity::uniqueIdentifierForFileAtPath(audio);
    ASSERT_TRUE(first);
    EXPECT_EQ(FileIdentity::uniqueIdentifierForFileAtPath(audio), first);

    // Written again within the same second: the size still tells.
    TestSupport::writeFile(audio, "some audio bytes plus more");
    EXPECT_NE(FileIdentity::uniqueIdentifierForFileAtPath(audio), first);
    first = FileIdentity::uniqueIdentifierForFileAtPath(audio);

    setModified(audio, QDateTime::currentDateTimeUtc().addSecs(60));
    const std::optional<QString> touched = FileIdentity::uniqueIdentifierForFileAtPath(audio);
    ASSERT_TRUE(touched);
    EXPECT_NE(*touched, *first);

    // The path enters as given: another spelling of it is another identity.
    EXPECT_NE(FileIdentity::uniqueIdentifierForFileAtPath(dir.path() + "/./lesson.mp3"), touched);

    // Renaming moves the file but changes the identity.
    const QString renamed = dir.filePath("renamed.mp3");
    ASSERT_TRUE(QFile::rename(audio, renamed));
    EXPECT_NE(FileIdentity::uniqueIdentifierForFileAtPath(renamed), touched);
}

TEST_F(FileIdentityTest, SymbolicLinkIsFollowedToTheAudio)
{
    const QString link = dir.filePath("link.mp3");
    ASSERT_TRUE(QFile::link(audio, link));
    const auto key = FileIdentity::identityKeyForFileAtPath(link);
    ASSERT_TRUE(key);
    EXPECT_TRUE(key->startsWith(link + "_16_"));
    const auto before = FileIdentity::uniqueIdentifierForFileAtPath(link);
    setModified(audio, QDateTime::currentDateTimeUtc().addSecs(-60));
    EXPECT_NE(FileIdentity::uniqueIdentifierForFileAtPath(link), before);
}

TEST_F(FileIdentityTest, UnreadableAttributesGiveNothingAndALogLine)
{
    TestSupport::LogCapture log;
    EXPECT_FALSE(FileIdentity::uniqueIdentifierForFileAtPath(dir.filePath("absent.mp3")));
    EXPECT_FALSE(FileIdentity::uniqueIdentifierForFileAtPath(QString()));
    ASSERT_EQ(log.lines().size(), 2);
    EXPECT_EQ(log.lines()[0], "Error getting file attributes: " + dir.filePath("absent.mp3") +
                                  ": No such file or directory");
}

TEST_F(FileIdentityTest, TimesEnterAsUtcWithWholeSeconds)
{
    EXPECT_EQ(FileIdentity::keyTime(std::nullopt), "(null)");
    EXPECT_EQ(FileIdentity::keyTime(QDateTime()), "(null)");
    const QDateTime local = QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5, 999), QTimeZone(3600));
    EXPECT_EQ(FileIdentity::keyTime(local), "2026-01-02T02:04:05Z");
}

TEST_F(FileIdentityTest, TranscriptLivesUnderTranscriptionsInTheDocumentsFolder)
{
    DocumentManager documents(dir.filePath("Documents"));
    const QString id = QString(64, 'a');
    EXPECT_EQ(FileIdentity::transcriptionPathForIdentifier(id, documents),
              dir.filePath("Documents/Transcriptions/") + id);

    TestSupport::writeFile(dir.filePath("blocker"), {});
    TestSupport::LogCapture log;
    EXPECT_TRUE(
        FileIdentity::transcriptionPathForIdentifier(id, DocumentManager(dir.filePath("blocker/x")))
            .isNull());
}
