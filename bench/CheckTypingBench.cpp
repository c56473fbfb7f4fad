// SPDX-License-Identifier: GPL-3.0-or-later
// Typing with "Check as I type" on, in the window with an hour-long lesson
// (about 700 segments) whose every row holds a typed sentence and has its
// reference: from a key event to the end of the repaint of the row that shows
// the new glyph, each key re-checking the row, its marks, the check bar and
// the lesson's score. For comparison, the same keys with the check off.
//
// Target: key to painted glyph <= 4 ms (median) with the check on.
// Usage: check_typing_bench

#include "BenchSupport.h"
#include "BenchWindow.h"
#include "KeyTyping.h"
#include "WindowBenchSupport.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <cstdio>

namespace {

const QStringList kSentences = {
    "Good morning, everyone, and welcome back to the programme.",
    "Today we are going to talk about the weather in the north.",
    "It is often cold and windy, even in the middle of summer.",
    "Many people there keep a warm coat by the door all year.",
};

bool runUntil(const std::function<bool()>& done)
{
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > 300000)
            return false;
        QApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    Bench::offscreenByDefault();
    Bench::quietEngineLog();
    QApplication app(argc, argv);
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    QFont::insertSubstitution(QStringLiteral("Menlo"), QFontInfo(fixed).family());
    const std::string file = Bench::longSpeechFile(KELMORA_BENCH_DATA, 60, "speech-60min.mp3",
                                                   "-c:a libmp3lame -b:a 128k");

    Bench::BenchWindow bench;
    MainWindowController& window = bench.window();
    AudioManager& engine = bench.engine();
    ViewController& session = *window.viewController();
    bool opened = false;
    session.setOpeningFinishedHandler([&](bool) { opened = true; });
    session.openFileFromPath(QString::fromStdString(file));
    if (!runUntil([&] { return opened; }) || !session.hasSegmentsShown()) {
        std::fprintf(stderr, "the lesson did not open\n");
        return 1;
    }
    TranscriptionTableView& table = *session.transcriptionTableView();
    const int rows = int(engine.numberOfSegments());

    // A reference line per segment, and every row typed with a slip or two.
    QStringList reference;
    for (int i = 0; i < rows; ++i)
        reference << kSentences[i % kSentences.size()];
    const QString referencePath = bench.filePath(QStringLiteral("lesson.txt"));
    QFile out(referencePath);
    if (!out.open(QIODevice::WriteOnly) || out.write(reference.join(u'\n').toUtf8()) < 0)
        return 1;
    out.close();
    session.attachReferenceTextFrom(referencePath);
    if (!runUntil([&] { return session.hasReferenceText(); })) {
        std::fprintf(stderr, "the reference was not attached\n");
        return 1;
    }
    for (int i = 0; i < rows; ++i)
        table.updateTranscription(QString(reference[i]).replace(QStringLiteral("the"),
                                                                QStringLiteral("teh")),
                                  i);

    table.setCurrentSegment(rows / 2);
    table.editorForRow(rows / 2)->setFocus();
    Bench::drain();
    std::printf("%d rows, every one typed and with its reference\n", rows);
    Bench::typeKeys(table, 40); // warm-up: glyph caches
    Bench::reportTyping("key to glyph, check off", table);
    bench.defaults().setBool(true, QLatin1String(PreferenceKeys::CheckAsIType));
    Bench::typeKeys(table, 40);
    Bench::reportTyping("key to glyph, check on", table);
    return 0;
}
