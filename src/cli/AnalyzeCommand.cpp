// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora-cli analyze / split: load a file into the engine exactly as the
// window does and print what it found.

#include "audio/AudioDecoder.h"
#include "audio/AudioManager.h"
#include "audio/NullAudioOutput.h"
#include "audio/Segmentation.h"
#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "transcript/LrcLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <cmath>
#include <cstdio>
#include <optional>

namespace {

struct LoadOptions
{
    QString path;
    std::optional<double> minSegmentDuration;
    std::optional<qint64> sensitivity;
    int threads = 0; // 0: one per core
    bool rms = false;
};

// Parses the options shared by analyze and split. Returns an exit code when
// the command should end here (help or a usage error).
std::optional<int> parseLoadOptions(const QString& command, const QString& description,
                                    bool withRms, const QStringList& args, LoadOptions& out)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    parser.addPositionalArgument(QStringLiteral("AUDIO"), QStringLiteral("the audio file"));
    // Both values are taken as the application would find them stored, and
    // read the same way.
    const QCommandLineOption minSegment(
        QStringLiteral("min-segment-duration"),
        QStringLiteral("shortest segment to cut, in seconds, read as a stored preference is: "
                       "any number, below 1 counts as 1 (default: the stored preference)"),
        QStringLiteral("S"));
    const QCommandLineOption sensitivity(
        QStringLiteral("sensitivity"),
        QStringLiteral("silence sensitivity, 1 medium, 2 high, read as a stored preference is: "
                       "any number, below 1 counts as 1, then truncated to a whole number "
                       "(default: the stored preference)"),
        QStringLiteral("N"));
    const QCommandLineOption threads(
        QStringLiteral("threads"),
        QStringLiteral("decode the file in N parts side by side, joined into exactly what one "
                       "pass gives; 1 reads it in one pass (default: one part per core)"),
        QStringLiteral("N"));
    const QCommandLineOption rms(QStringLiteral("rms"),
                                 QStringLiteral("include every 20 ms loudness value"));
    parser.addOption(minSegment);
    parser.addOption(sensitivity);
    parser.addOption(threads);
    if (withRms)
        parser.addOption(rms);
    if (auto code =
            Cli::parseCommandLine(parser, command, args, QStringLiteral("audio file"), out.path))
        return code;
    // A number as the store would hold it; anything that is not one is refused.
    const auto number = [&parser](const QCommandLineOption& option,
                                  const QString& name) -> std::optional<double> {
        bool ok = false;
        const double value = parser.value(option).toDouble(&ok);
        if (!ok || !std::isfinite(value)) {
            Cli::printError(QStringLiteral("--%1 takes a number").arg(name));
            return std::nullopt;
        }
        return value;
    };
    if (parser.isSet(minSegment)) {
        const auto value = number(minSegment, QStringLiteral("min-segment-duration"));
        if (!value)
            return Cli::UsageError;
        out.minSegmentDuration = AudioManager::storedMinSegmentDuration(*value);
    }
    if (parser.isSet(sensitivity)) {
        const auto value = number(sensitivity, QStringLiteral("sensitivity"));
        if (!value)
            return Cli::UsageError;
        out.sensitivity = AudioManager::storedSensitivity(*value);
    }
    if (parser.isSet(threads)) {
        bool ok = false;
        const int value = parser.value(threads).toInt(&ok);
        if (!ok || value < 1) {
            Cli::printError(QStringLiteral("--threads takes a whole number of 1 or more"));
            return Cli::UsageError;
        }
        out.threads = value;
    }
    out.rms = withRms && parser.isSet(rms);
    return std::nullopt;
}

// Loads the file into the shared engine with the user's stored settings,
// overridden by the options. Returns an exit code on failure.
std::optional<int> load(const LoadOptions& options)
{
    if (auto code = Cli::requireFile(options.path))
        return code;

    regDefaultPreference(Defaults::standard());
    AudioManager& engine = AudioManager::sharedInstance();
    // Nothing is played here: the player needs no sound device.
    engine.setOutputFactory(
        [] { return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::Manual); });
    if (options.minSegmentDuration)
        engine.setMinSegmentDuration(*options.minSegmentDuration);
    if (options.sensitivity)
        engine.setSensitivity(*options.sensitivity);
    engine.setAnalysisThreads(options.threads);

    bool loaded = false;
    engine.processAudioFile(options.path, [&loaded](bool success) { loaded = success; });
    if (!loaded) {
        Cli::printError(QStringLiteral("%1: %2").arg(options.path, engine.lastError()));
        return Cli::Failure;
    }
    // The waveform hand-back is queued on the event loop, as for the window.
    QCoreApplication::processEvents();
    return std::nullopt;
}

Json segmentsJson(const SegmentList& segments)
{
    Json::Array out;
    out.reserve(static_cast<std::size_t>(segments.size()));
    for (const Segment& s : segments)
        out.push_back(Json::Object{{"start", s.start}, {"duration", s.duration}});
    return out;
}

} // namespace

namespace Cli {

int analyze(const QStringList& args)
{
    LoadOptions options;
    if (auto code = parseLoadOptions(
            QStringLiteral("analyze"),
            QStringLiteral(
                "Prints the loudness profile, silences and segments of an audio file as JSON."),
            true, args, options))
        return *code;
    if (auto code = load(options))
        return *code;

    const AudioManager& engine = AudioManager::sharedInstance();
    const AudioCharacteristics& c = engine.audioCharacteristics();
    const QList<Silence> silences = Segmentation::detectSilences(
        c.rmsValues, engine.adaptiveThreshold(), static_cast<int>(engine.sensitivity()));

    Json::Array silenceList;
    for (const Silence& s : silences)
        silenceList.push_back(
            Json::Object{{"start", s.start}, {"duration", s.duration}, {"midPoint", s.midPoint}});

    Json::Object out{
        {"audioFormat", engine.audioFormat()},
        {"sampleRate", engine.sampleRate()},
        {"channels", engine.channelCount()},
        {"channelInfo", engine.channelInfo()},
        {"totalSamples", engine.totalSamples()},
        {"duration", engine.duration()},
        {"bitRate", engine.bitRate()},
        {"averageRMS", c.averageRMS},
        {"maxRMS", c.maxRMS},
        {"minRMS", c.minRMS},
        {"stdDev", c.stdDev},
        {"rmsCount", c.rmsValues.size()},
    };
    if (options.rms) {
        Json::Array values(c.rmsValues.cbegin(), c.rmsValues.cend());
        out.emplace_back("rmsValues", std::move(values));
    }
    out.emplace_back("threshold", engine.adaptiveThreshold());
    out.emplace_back("silences", std::move(silenceList));
    out.emplace_back("segments", segmentsJson(engine.segments()));
    out.emplace_back("waveformPoints", engine.waveformData().size());

    const std::string text = Json(std::move(out)).dump();
    std::fwrite(text.data(), 1, text.size(), stdout);
    return Success;
}

int split(const QStringList& args)
{
    LoadOptions options;
    if (auto code = parseLoadOptions(
            QStringLiteral("split"),
            QStringLiteral("Prints one LRC time stamp line per segment of an audio file."), false,
            args, options))
        return *code;
    if (auto code = load(options))
        return *code;
    const AudioManager& engine = AudioManager::sharedInstance();
    for (qsizetype i = 0; i < engine.numberOfSegments(); ++i)
        std::printf("%s\n", qPrintable(Lrc::formatLine(engine.getTimestampForIndex(i), QString())));
    return Success;
}

} // namespace Cli
