// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora-cli as a script or a person runs it: a separate process, real
// files, its own settings folder.

#include "support/TestSupport.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using TestSupport::fixture;

namespace {

using Result = TestSupport::CliResult;

class Cli : public ::testing::Test
{
protected:
    // Never the developer's own settings.
    Result run(const QStringList& args, const QString& workingDirectory = {})
    {
        return TestSupport::runCli(args, {{"XDG_CONFIG_HOME", config.path()}}, workingDirectory);
    }

    QJsonObject analyze(const QStringList& args)
    {
        const Result r = run(QStringList{"analyze"} + args);
        EXPECT_EQ(r.exitCode, 0) << r.err.constData();
        QJsonParseError error;
        const QJsonDocument doc = QJsonDocument::fromJson(r.out, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
        return doc.object();
    }

    void storeSetting(const QString& line)
    {
        QDir(config.path()).mkpath("Kelmora");
        TestSupport::writeFile(config.filePath("Kelmora/Kelmora.ini"),
                               ("[General]\n" + line + "\n").toUtf8());
    }

    QTemporaryDir config;
};

QList<double> starts(const QJsonObject& analysis)
{
    QList<double> out;
    for (const QJsonValue& v : analysis.value("segments").toArray())
        out.append(v.toObject().value("start").toDouble());
    return out;
}

} // namespace

TEST_F(Cli, AnalyzePrintsEveryKeyInItsOrder)
{
    const Result r = run({"analyze", fixture("speech.mp3")});
    ASSERT_EQ(r.exitCode, 0) << r.err.constData();
    EXPECT_TRUE(r.err.isEmpty()) << "diagnostics stay quiet without --verbose: "
                                 << r.err.constData();
    const QStringList keys{"audioFormat",  "sampleRate", "channels", "channelInfo",
                           "totalSamples", "duration",   "bitRate",  "averageRMS",
                           "maxRMS",       "minRMS",     "stdDev",   "rmsCount",
                           "threshold",    "silences",   "segments", "waveformPoints"};
    qsizetype at = 0;
    for (const QString& key : keys) {
        const qsizetype found = r.out.indexOf("\n  \"" + key.toUtf8() + "\":");
        EXPECT_GT(found, at) << qPrintable(key);
        at = found;
    }
    const QJsonObject o = QJsonDocument::fromJson(r.out).object();
    EXPECT_EQ(o.keys().size(), keys.size());
    EXPECT_FALSE(o.contains("rmsValues"));
    EXPECT_EQ(o.value("channels").toInt(), 1);
    EXPECT_EQ(o.value("channelInfo").toString(), "Mono");
    EXPECT_EQ(o.value("sampleRate").toDouble(), 44100.0);
    EXPECT_EQ(o.value("bitRate").toInteger(), 128000);
    EXPECT_GT(o.value("waveformPoints").toInt(), 6000);
    const QJsonObject silence = o.value("silences").toArray().first().toObject();
    EXPECT_TRUE(silence.contains("start") && silence.contains("duration") &&
                silence.contains("midPoint"));

    const QJsonObject withRms = analyze({fixture("speech.mp3"), "--rms"});
    EXPECT_EQ(withRms.value("rmsValues").toArray().size(), withRms.value("rmsCount").toInt());
    EXPECT_GT(withRms.value("rmsCount").toInt(), 700);
}

// The parts decoded side by side print what one pass prints, to the digit;
// only the waveform may gain a short block per border.
TEST_F(Cli, ThreadsChangeNothingButTheTime)
{
    const QString file = fixture("speech.mp3");
    QJsonObject one = analyze({file, "--rms", "--threads", "1"});
    QJsonObject four = analyze({file, "--rms", "--threads", "4"});
    EXPECT_LE(std::abs(four.take("waveformPoints").toInt() - one.take("waveformPoints").toInt()),
              3);
    EXPECT_EQ(four, one);
    EXPECT_EQ(run({"split", file, "--threads", "3"}).out, run({"split", file}).out);

    EXPECT_EQ(run({"analyze", file, "--threads", "0"}).exitCode, 2);
    EXPECT_EQ(run({"analyze", file, "--threads", "two"}).exitCode, 2);
    const QByteArray help = run({"analyze", "--help"}).out.simplified();
    EXPECT_TRUE(help.contains("--threads <N>") && help.contains("one part per core"))
        << help.constData();
}

TEST_F(Cli, SplitPrintsOneStampPerSegment)
{
    const Result r = run({"split", fixture("speech.flac")});
    ASSERT_EQ(r.exitCode, 0) << r.err.constData();
    const QStringList lines = QString::fromUtf8(r.out).split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 5);
    EXPECT_EQ(lines[0], "[00:00.000]");
    const QRegularExpression stamp(R"(^\[\d\d:\d\d\.\d\d\d\]$)");
    for (const QString& line : lines)
        EXPECT_TRUE(stamp.match(line).hasMatch()) << qPrintable(line);
}

TEST_F(Cli, UnreadableFilesExitOneWithOneLine)
{
    for (const char* file : {"empty.mp3", "random.flac", "text.mp3", "truncated.mp3",
                             "broken_header.wav", "short_0.05s.wav", "no-such-file.mp3"}) {
        for (const char* command : {"analyze", "split"}) {
            const Result r = run({command, fixture(file)});
            EXPECT_EQ(r.exitCode, 1) << command << " " << file;
            EXPECT_TRUE(r.out.isEmpty()) << file;
            const QList<QByteArray> lines = r.err.trimmed().split('\n');
            EXPECT_EQ(lines.size(), 1) << file << ": " << r.err.constData();
            EXPECT_TRUE(r.err.startsWith("kelmora-cli: ")) << r.err.constData();
            EXPECT_TRUE(r.err.contains(file)) << r.err.constData();
        }
    }
    EXPECT_TRUE(run({"analyze", fixture("empty.mp3")}).err.contains("empty"));
    EXPECT_TRUE(run({"analyze", fixture("truncated.mp3")}).err.contains("truncated"));
    EXPECT_TRUE(run({"analyze", fixture("short_0.05s.wav")}).err.contains("0.1 s"));
    EXPECT_EQ(run({"analyze", QDir::tempPath()}).exitCode, 1);
}

TEST_F(Cli, UsageErrorsExitTwoAndHelpExitsZero)
{
    EXPECT_EQ(run({}).exitCode, 2);
    EXPECT_EQ(run({"frobnicate"}).exitCode, 2);
    EXPECT_EQ(run({"analyze"}).exitCode, 2);
    EXPECT_EQ(run({"analyze", fixture("speech.wav"), fixture("speech.wav")}).exitCode, 2);
    EXPECT_EQ(run({"analyze", fixture("speech.wav"), "--sensitivity", "high"}).exitCode, 2);
    EXPECT_EQ(run({"analyze", fixture("speech.wav"), "--sensitivity", "inf"}).exitCode, 2);
    EXPECT_EQ(run({"analyze", fixture("speech.wav"), "--min-segment-duration", "soon"}).exitCode,
              2);
    EXPECT_EQ(run({"split", fixture("speech.wav"), "--rms"}).exitCode, 2);

    const Result help = run({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.out.contains("analyze") && help.out.contains("split"));
    const Result analyzeHelp = run({"analyze", "--help"});
    EXPECT_EQ(analyzeHelp.exitCode, 0);
    EXPECT_TRUE(analyzeHelp.out.contains("--min-segment-duration"));
}

TEST_F(Cli, StoredPreferencesApplyUnlessAnOptionOverridesThem)
{
    storeSetting("kminSegmentDuration=4");
    EXPECT_LT(starts(analyze({fixture("speech.wav")})).size(), 5);
    EXPECT_EQ(starts(analyze({fixture("speech.wav"), "--min-segment-duration", "1"})).size(), 5);

    // A value the engine cannot use falls back as the application's would.
    storeSetting("kminSegmentDuration=nonsense\nksensitivity=@ByteArray(x)");
    const QJsonObject o = analyze({fixture("speech.wav")});
    EXPECT_EQ(starts(o).size(), 5);
}

// The options are the values as the application would find them stored: the
// same floors and truncation apply, so an option and the same stored value
// give the same answer.
TEST_F(Cli, OptionsAreReadAsStoredSettingsAre)
{
    const QString file = fixture("speech.wav");
    const auto withOption = [&](const QString& option, const QString& value) {
        return run({"analyze", file, option, value}).out;
    };
    const auto withStored = [&](const QString& key, const QString& value) {
        storeSetting(key + "=" + value);
        const QByteArray out = run({"analyze", file}).out;
        storeSetting("");
        return out;
    };

    const QByteArray medium = withOption("--sensitivity", "1");
    const QByteArray high = withOption("--sensitivity", "2");
    ASSERT_FALSE(medium.isEmpty());
    EXPECT_NE(QJsonDocument::fromJson(medium)["threshold"],
              QJsonDocument::fromJson(high)["threshold"]);
    EXPECT_EQ(withOption("--sensitivity", "0"), medium); // below 1 counts as 1
    EXPECT_EQ(withOption("--sensitivity", "-4"), medium);
    EXPECT_EQ(withOption("--sensitivity", "2.9"), high); // truncated
    EXPECT_EQ(withOption("--sensitivity", "0"), withStored("ksensitivity", "0"));
    EXPECT_EQ(withOption("--sensitivity", "2.9"), withStored("ksensitivity", "2.9"));
    EXPECT_EQ(withOption("--sensitivity", "7"), withStored("ksensitivity", "7"));

    const QByteArray oneSecond = withOption("--min-segment-duration", "1");
    EXPECT_EQ(withOption("--min-segment-duration", "0.5"), oneSecond);
    EXPECT_EQ(withOption("--min-segment-duration", "0"), oneSecond);
    EXPECT_EQ(withOption("--min-segment-duration", "0.5"),
              withStored("kminSegmentDuration", "0.5"));
    EXPECT_EQ(withOption("--min-segment-duration", "2.5"),
              withStored("kminSegmentDuration", "2.5"));

    // The help says so (its lines are wrapped to the terminal).
    const QByteArray help = run({"analyze", "--help"}).out.simplified();
    EXPECT_TRUE(help.contains("below 1 counts as 1")) << help.constData();
    EXPECT_TRUE(help.contains("truncated")) << help.constData();
}

// The application hashes the absolute path its open panel hands over; a
// relative path typed on the command line names the same file.
TEST_F(Cli, IdentityOfARelativePathIsThatOfTheAbsoluteOne)
{
    const QFileInfo info(fixture("speech.wav"));
    const Result relative = run({"identity", info.fileName()}, info.absolutePath());
    ASSERT_EQ(relative.exitCode, 0) << relative.err.constData();
    const Result absolute = run({"identity", info.absoluteFilePath()});
    ASSERT_EQ(absolute.exitCode, 0);
    EXPECT_EQ(relative.out, absolute.out);
    EXPECT_EQ(relative.out.split('\n').first().size(), 64);
}

TEST_F(Cli, VerboseShowsTheEngineLog)
{
    const Result r = run({"analyze", fixture("speech.wav"), "--verbose"});
    ASSERT_EQ(r.exitCode, 0);
    EXPECT_TRUE(r.err.contains("Calculated adaptive threshold: "));
    EXPECT_TRUE(r.err.contains("Found 5 silence segments:"));
}

TEST_F(Cli, CheckPrintsOneSegmentWithItsMarks)
{
    const auto check = [&](const QStringList& options) {
        const Result r = run(QStringList{"check", "--reference-text", "I will receive the letter.",
                                         "--typed-text", "i will recieve letter"} +
                             options);
        EXPECT_EQ(r.exitCode, 0) << r.err.constData();
        return r.out;
    };
    const QByteArray out = check({});
    qsizetype at = 0;
    for (const char* key :
         {"index", "reference", "typed", "words", "mistakes", "score", "counts", "tokens"}) {
        const qsizetype found = out.indexOf(QByteArray("\n  \"") + key + "\":");
        EXPECT_GT(found, at) << key;
        at = found;
    }
    const QJsonObject o = QJsonDocument::fromJson(out).object();
    EXPECT_EQ(o.value("index").toInt(-1), 0);
    EXPECT_EQ(o.value("typed").toString(), "i will recieve letter");
    EXPECT_EQ(o.value("words").toInt(), 5);
    EXPECT_EQ(o.value("mistakes").toDouble(), 1.5);
    EXPECT_EQ(o.value("score").toDouble(), 0.7);
    EXPECT_EQ(o.value("counts").toObject(), QJsonObject({{"correct", 2},
                                                         {"minor", 1},
                                                         {"typo", 1},
                                                         {"wrong", 0},
                                                         {"missing", 1},
                                                         {"extra", 0}}));
    const QJsonArray tokens = o.value("tokens").toArray();
    ASSERT_EQ(tokens.size(), 5);
    EXPECT_EQ(tokens[2].toObject(),
              QJsonObject({{"mark", "typo"}, {"expected", "receive"}, {"typed", "recieve"}}));
    EXPECT_EQ(tokens[3].toObject(),
              QJsonObject({{"mark", "missing"}, {"expected", "the"}, {"typed", QJsonValue()}}));

    // Each option changes what it says it does.
    const QJsonObject strict = QJsonDocument::fromJson(check({"--typo-weight", "1", "--count-case",
                                                              "--count-punctuation"}))
                                   .object();
    EXPECT_EQ(strict.value("words").toInt(), 6);
    EXPECT_EQ(strict.value("mistakes").toDouble(), 4.0); // 2 typos, "the" and "."
    EXPECT_EQ(strict.value("counts")["typo"].toInt(), 2);

    const Result empty = run({"check", "--reference-text", "", "--typed-text", "hello"});
    const QJsonObject none = QJsonDocument::fromJson(empty.out).object();
    EXPECT_TRUE(none.value("score").isNull()) << empty.out.constData();
    EXPECT_EQ(none.value("tokens")[0].toObject().value("expected"), QJsonValue());
}

TEST_F(Cli, CheckLaysAReferenceFileOverATranscriptAndScoresTheLesson)
{
    QTemporaryDir dir;
    const QString srt = dir.filePath("lesson.srt");
    const QString lrc = dir.filePath("lesson.lrc");
    // Cue midpoints 1.0, 3.5 and 4.5 s: the last two fall in the second segment.
    TestSupport::writeFile(srt, "1\r\n00:00:00,500 --> 00:00:01,500\r\n<i>Good morning.</i>\r\n\r\n"
                                "2\r\n00:00:03,000 --> 00:00:04,000\r\nHow are\r\n\r\n"
                                "3\r\n00:00:04.000 --> 00:00:05.000\r\nyou today?\r\n");
    TestSupport::writeFile(lrc, "[00:00.000]good morning\n[00:02.500]how are you to day\n"
                                "[00:06.000]\n");
    const Result r = run({"check", srt, lrc, "--duration", "8"});
    ASSERT_EQ(r.exitCode, 0) << r.err.constData();
    const QJsonObject o = QJsonDocument::fromJson(r.out).object();
    const QJsonArray rows = o.value("segments").toArray();
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0]["reference"].toString(), "Good morning.");
    EXPECT_EQ(rows[0]["score"].toDouble(), 1.0);
    EXPECT_EQ(rows[1]["reference"].toString(), "How are you today?");
    EXPECT_EQ(rows[1]["counts"]["wrong"].toInt(), 1); // "to" for "today", "day" extra
    EXPECT_TRUE(rows[2]["score"].isNull());
    EXPECT_EQ(o.value("checked").toInt(), 2);
    EXPECT_DOUBLE_EQ(o.value("score").toDouble(), (2.0 + 2.0) / 6.0);

    TestSupport::writeFile(dir.filePath("empty.srt"), "");
    const Result bad = run({"check", dir.filePath("empty.srt"), lrc});
    EXPECT_EQ(bad.exitCode, 1);
    EXPECT_TRUE(bad.err.contains("empty.srt")) << bad.err.constData();
    EXPECT_EQ(bad.err.trimmed().count('\n'), 0) << bad.err.constData();
}

TEST_F(Cli, CheckRefusesBadOptionsInOneLine)
{
    const QStringList texts{"--reference-text", "a", "--typed-text", "b"};
    for (const QStringList& args : QList<QStringList>{texts + QStringList{"--typo-weight", "2"},
                                                      texts + QStringList{"--typo-weight", "x"},
                                                      texts + QStringList{"--typo-weight", "nan"},
                                                      {"--reference-text", "a"},
                                                      texts + QStringList{"extra.txt"},
                                                      texts + QStringList{"--count-words"}}) {
        const Result r = run(QStringList{"check"} + args);
        EXPECT_EQ(r.exitCode, 2) << qPrintable(args.join(' '));
        EXPECT_TRUE(r.out.isEmpty());
        EXPECT_EQ(r.err.trimmed().count('\n'), 0) << r.err.constData();
        EXPECT_TRUE(r.err.startsWith("kelmora-cli: ")) << r.err.constData();
    }
}

TEST_F(Cli, AlignPrintsTheSentencesWithTheirTimes)
{
    // A Mandarin text: the language is guessed from its script, whatever the
    // system's own.
    const Result r = run({"align", fixture("lessons/cmn.wav"), fixture("lessons/cmn.txt")});
    ASSERT_EQ(r.exitCode, 0) << r.err.constData();
    const QJsonObject o = QJsonDocument::fromJson(r.out).object();
    EXPECT_EQ(o.keys(), (QStringList{"language", "sentences"}));
    EXPECT_EQ(o.value("language").toString(), "cmn");
    const QJsonArray sentences = o.value("sentences").toArray();
    ASSERT_EQ(sentences.size(), 25);
    const QJsonObject first = sentences.first().toObject();
    EXPECT_EQ(first.value("text").toString(), QString::fromUtf8("大家早上好，欢迎回来。"));
    for (const char* key : {"start", "end"})
        EXPECT_TRUE(first.value(key).isDouble()) << key;
    EXPECT_TRUE(first.value("uncertain").isBool());
    EXPECT_TRUE(r.out.contains("\n  \"language\": \"cmn\",\n  \"sentences\": ["));

    QTemporaryDir dir;
    const QString blank = dir.filePath("blank.txt");
    TestSupport::writeFile(blank, " \n\n");
    const QString text = fixture("lessons/en.txt");
    const struct
    {
        QStringList args;
        QByteArray reason;
    } failures[] = {
        {{fixture("lessons/en.flac"), text, "--language", "xx"}, "\"xx\""},
        {{fixture("text.mp3"), text, "--language", "en"}, "text.mp3"},
        {{fixture("missing.mp3"), text}, "missing.mp3"},
        {{fixture("lessons/en.flac"), blank}, "blank.txt"},
    };
    for (const auto& f : failures) {
        const Result bad = run(QStringList{"align"} + f.args);
        EXPECT_EQ(bad.exitCode, 1) << bad.err.constData();
        EXPECT_TRUE(bad.err.startsWith("kelmora-cli: ")) << bad.err.constData();
        EXPECT_TRUE(bad.err.contains(f.reason)) << bad.err.constData();
        EXPECT_EQ(bad.err.trimmed().count('\n'), 0) << bad.err.constData();
    }
    EXPECT_EQ(run({"align", fixture("lessons/en.flac")}).exitCode, 2);
}
