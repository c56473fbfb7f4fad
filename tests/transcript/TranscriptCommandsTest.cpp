// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora-cli parse-lrc and identity, run as a user runs them.

#include "app/FileIdentity.h"
#include "support/TestSupport.h"
#include "transcript/DocumentManager.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using CliRun = TestSupport::CliResult;

class TranscriptCommandsTest : public ::testing::Test
{
protected:
    QTemporaryDir home;

    // Runs the tool with a home folder of its own, so that the documents
    // folder lies in the temporary folder.
    CliRun cli(const QStringList& args)
    {
        return TestSupport::runCli(args, {{"HOME", home.path()},
                                          {"XDG_CONFIG_HOME", home.filePath(".config")},
                                          {"XDG_DOCUMENTS_DIR", QString()}});
    }

    QString file(const QString& name, const QByteArray& bytes)
    {
        const QString path = home.filePath(name);
        TestSupport::writeFile(path, bytes);
        return path;
    }

    static QJsonObject json(const CliRun& r)
    {
        QJsonParseError error;
        const QJsonDocument doc = QJsonDocument::fromJson(r.out, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << r.out.constData();
        return doc.object();
    }
};

QStringList texts(const QJsonObject& o)
{
    QStringList out;
    for (const QJsonValue& v : o.value("texts").toArray())
        out.append(v.toString());
    return out;
}

QList<QPair<double, double>> segments(const QJsonObject& o)
{
    QList<QPair<double, double>> out;
    for (const QJsonValue& v : o.value("segments").toArray())
        out.append(
            {v.toObject().value("start").toDouble(), v.toObject().value("duration").toDouble()});
    return out;
}

} // namespace

TEST_F(TranscriptCommandsTest, ParseLrcPrintsTextsAndSegments)
{
    const QString path =
        file("quirks.lrc", "\xEF\xBB\xBF[ti:Lesson]\r\n[00:00.000]first\r\n"
                           "[00:01.5]  second\t\r[00:03.50]third\xE2\x80\xA8"
                           "junk [00:05.123456]fourth [00:06.000]x\n"
                           "[00:05]no fraction\n[00:07.000]dup\n[00:07.000]dropped");
    const CliRun r = cli({"parse-lrc", path, "--duration", "10"});
    ASSERT_EQ(r.exitCode, 0) << r.err.constData();
    EXPECT_TRUE(r.err.isEmpty()) << r.err.constData(); // the store's log stays quiet
    const QJsonObject o = json(r);
    EXPECT_EQ(texts(o), (QStringList{"first", "second", "third", "fourth [00:06.000]x", "dup"}));
    const auto s = segments(o);
    ASSERT_EQ(s.size(), 5);
    EXPECT_EQ(s[0], qMakePair(0.0, 1.005));
    EXPECT_DOUBLE_EQ(s[4].first, 7.0);
    EXPECT_DOUBLE_EQ(s[4].second, 3.0);

    // Without a duration no audio is open: building stops at the first late stamp.
    const QJsonObject none = json(cli({"parse-lrc", path}));
    EXPECT_EQ(texts(none).size(), 5);
    EXPECT_EQ(segments(none), (QList<QPair<double, double>>{{0.0, 1.005}}));

    const CliRun verbose = cli({"parse-lrc", "--verbose", path});
    EXPECT_TRUE(verbose.err.contains(
        "loadTranscriptionsFromFile:1,timestamp=0.000000,line=[00:00.000]first"));
    EXPECT_TRUE(verbose.err.contains(QString("loadTranscriptionsFromFile:非法的分段").toUtf8()));
}

TEST_F(TranscriptCommandsTest, ParseLrcOnEmptyAndBrokenFiles)
{
    const CliRun empty = cli({"parse-lrc", file("empty.lrc", "")});
    ASSERT_EQ(empty.exitCode, 0);
    EXPECT_TRUE(texts(json(empty)).isEmpty());
    EXPECT_TRUE(json(empty).value("segments").toArray().isEmpty());

    const CliRun latin1 = cli({"parse-lrc", file("latin1.lrc", "[00:00.000]caf\xE9")});
    EXPECT_EQ(latin1.exitCode, 1);
    EXPECT_TRUE(latin1.out.isEmpty());
    EXPECT_EQ(latin1.err.count('\n'), 1);
    EXPECT_TRUE(latin1.err.startsWith("kelmora-cli: The file")) << latin1.err.constData();

    const CliRun missing = cli({"parse-lrc", home.filePath("absent.lrc")});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_TRUE(missing.err.endsWith("absent.lrc: no such file\n")) << missing.err.constData();

    const CliRun folder = cli({"parse-lrc", home.path()});
    EXPECT_EQ(folder.exitCode, 1);
    EXPECT_TRUE(folder.err.endsWith(": not a file\n"));
}

TEST_F(TranscriptCommandsTest, UsageErrors)
{
    const QString path = file("a.lrc", "[00:00.000]a");
    for (const QStringList& args : {QStringList{"parse-lrc"}, QStringList{"parse-lrc", path, path},
                                    QStringList{"parse-lrc", path, "--duration", "abc"},
                                    QStringList{"parse-lrc", path, "--duration", "-1"},
                                    QStringList{"parse-lrc", path, "--duration", "nan"},
                                    QStringList{"parse-lrc", path, "--bogus"},
                                    QStringList{"identity"}, QStringList{"identity", path, path}}) {
        const CliRun r = cli(args);
        EXPECT_EQ(r.exitCode, 2) << qPrintable(args.join(' '));
        EXPECT_TRUE(r.err.startsWith("kelmora-cli: ")) << qPrintable(args.join(' '));
        EXPECT_EQ(r.err.count('\n'), 1) << r.err.constData();
    }
    for (const char* command : {"parse-lrc", "identity"}) {
        const CliRun help = cli({command, "--help"});
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_TRUE(help.out.contains("Usage:"));
    }
}

TEST_F(TranscriptCommandsTest, IdentityNamesTheTranscriptInTheStore)
{
    const QString audio = file("lesson.mp3", "not really audio, identity does not care");
    const CliRun r = cli({"identity", audio});
    ASSERT_EQ(r.exitCode, 0) << r.err.constData();
    const QList<QByteArray> lines = r.out.split('\n');
    ASSERT_EQ(lines.size(), 3); // two lines and the final line feed
    const QString id = QString::fromUtf8(lines[0]);
    EXPECT_EQ(id.size(), 64);
    EXPECT_EQ(id, FileIdentity::uniqueIdentifierForFileAtPath(audio));
    EXPECT_EQ(QString::fromUtf8(lines[1]), home.filePath("Documents/Transcriptions/") + id);

    const CliRun missing = cli({"identity", home.filePath("absent.mp3")});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_TRUE(missing.err.endsWith("absent.mp3: no such file\n"));
}
