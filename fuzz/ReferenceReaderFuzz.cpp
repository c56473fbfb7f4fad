// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds arbitrary bytes to the reference reader, as if they were a .srt and
// then a .vtt file the learner attached, for several audio lengths, and
// checks what comes out:
// - a refusal names the file;
// - units are timed, in time order, within the audio, with one-line text
//   that has no white space at either end or twice in a row, and no unit
//   repeats the one before it;
// - the reference survives the store's JSON unchanged;
// - laid over segments, every unit lands in exactly one of them.

#include "reference/ReferenceMapping.h"
#include "reference/ReferenceReader.h"

#include <QString>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void quiet(QtMsgType, const QMessageLogContext&, const QString&) {}

[[noreturn]] void fail(const char* what, const QString& detail)
{
    std::fprintf(stderr, "reference_reader_fuzz: %s\n%s\n", what, qPrintable(detail.left(200)));
    std::abort();
}

void checkText(const QString& text)
{
    if (text.isEmpty())
        fail("a unit without text", text);
    if (text.front().isSpace() || text.back().isSpace())
        fail("white space at an end of a unit", text);
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isSpace() && (text[i] != u' ' || (i > 0 && text[i - 1].isSpace())))
            fail("white space other than single spaces in a unit", text);
    }
}

void checkMapping(const ReferenceText& reference, double duration)
{
    QList<double> starts;
    for (double t = 0.0; t < std::max(duration, 60.0); t += 7.0)
        starts.append(t);
    const QStringList texts = ReferenceMapping::map(reference, starts, duration);
    if (texts.size() != starts.size())
        fail("not one text per segment", QString::number(texts.size()));
    // A segment of k units holds their characters and k - 1 spaces.
    qsizetype unitCharacters = 0;
    for (const ReferenceUnit& unit : reference.units())
        unitCharacters += unit.text.size();
    qsizetype segmentCharacters = 0;
    qsizetype filled = 0;
    for (const QString& text : texts) {
        segmentCharacters += text.size();
        filled += text.isEmpty() ? 0 : 1;
    }
    if (segmentCharacters != unitCharacters + reference.units().size() - filled)
        fail("units lost or doubled over the segments", texts.join(u'|'));
}

void check(const QByteArray& bytes, const QString& fileName, double duration)
{
    ReferenceReadError error;
    const std::optional<ReferenceText> reference =
        ReferenceReader::readBytes(bytes, fileName, duration, &error);
    if (!reference) {
        if (!error.message.contains(fileName))
            fail("a refusal that does not name the file", error.message);
        return;
    }
    const QList<ReferenceUnit>& units = reference->units();
    if (units.isEmpty() || !reference->isTimed())
        fail("a subtitle file read as no cues or untimed ones", fileName);
    for (qsizetype i = 0; i < units.size(); ++i) {
        const ReferenceUnit& unit = units[i];
        if (!unit.isTimed() || !(*unit.start >= 0.0) || !(*unit.end >= *unit.start))
            fail("a cue with impossible times", unit.text);
        if (duration > 0.0 && !(*unit.start < duration && *unit.end <= duration))
            fail("a cue past the end of the audio", unit.text);
        if (i > 0 && (*unit.start < *units[i - 1].start || unit == units[i - 1]))
            fail("cues out of order or repeated", unit.text);
        checkText(unit.text);
    }
    const std::optional<ReferenceText> stored = ReferenceText::fromJson(reference->toJson());
    if (!stored || *stored != *reference)
        fail("the reference does not survive its JSON", fileName);
    checkMapping(*reference, duration);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool silenced = (qInstallMessageHandler(quiet), true);
    (void)silenced;

    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const QString& fileName : {QStringLiteral("fuzz.srt"), QStringLiteral("fuzz.vtt")}) {
        for (const double duration : {0.0, 30.0, 4000.0})
            check(bytes, fileName, duration);
    }
    return 0;
}
