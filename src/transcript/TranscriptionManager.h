// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/Segment.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

// The staging area between the table and a transcript file. Before a save the
// session fills it with one finished LRC line per row; a load fills it with
// the plain texts and the segments read from a file. It holds no state of its
// own beyond the last save or load; the table owns the typed texts.
//
// Not thread-safe: everything but sharedInstance() is used on one thread.
class TranscriptionManager
{
public:
    // The total duration of the open audio, asked once per load.
    using DurationProvider = std::function<double()>;

    static TranscriptionManager& sharedInstance();

    // Without a provider, loads ask the shared audio engine.
    explicit TranscriptionManager(DurationProvider totalDuration = {});

    // Plain texts after a load, finished LRC lines after staging for a save:
    // the same list serves both, and a save writes its elements verbatim.
    const QStringList& transcriptions() const { return m_transcriptions; }
    void setTranscriptions(const QStringList& transcriptions) { m_transcriptions = transcriptions; }
    // Absent until the first load or the first mutableSegments().
    const std::optional<SegmentList>& segments() const { return m_segments; }
    void setSegments(const std::optional<SegmentList>& segments) { m_segments = segments; }

    QStringList& mutableTranscriptions() { return m_transcriptions; }
    SegmentList& mutableSegments();

    // Grows the list with empty strings up to `index`, then puts the text (a
    // null string counts as empty) there. A negative index changes nothing.
    void setTranscription(const QString& text, qsizetype index);
    // The element at `index`, or an empty string outside the list.
    QString transcriptionForSegment(qsizetype index) const;
    void clearAllTranscriptions() { m_transcriptions.clear(); }
    void clearAllSegments();

    // Writes the elements one per line, UTF-8 without a byte-order mark and
    // without a line feed after the last line. The file is replaced in one
    // step: after a failure (read-only folder, full disk) the previous file is
    // still there, whole.
    bool saveTranscriptionsToFile(const QString& path);
    // Why the last load failed.
    enum class LoadFault
    {
        None,
        Missing,
        NotARegularFile, // a folder, a FIFO, a device: never opened for reading
        TooLarge,        // over kMaxTranscriptBytes
        Unreadable,
        NotUtf8
    };
    // A transcript of 60 minutes at a line a second is under 100 KB.
    static constexpr qint64 kMaxTranscriptBytes = 16 * 1024 * 1024;

    // Reads a transcript and replaces both lists with what it holds. Fails,
    // changing nothing, when there is no file, it is not a regular file, it
    // is larger than kMaxTranscriptBytes or it is not UTF-8 text.
    // `readDamaged` reads bytes that are not UTF-8 as replacement characters
    // instead of failing: every line that can still be read comes back.
    bool loadTranscriptionsFromFile(const QString& path, bool readDamaged = false);
    // After a load: one text per loaded segment. When some lines got no
    // segment (stamps running backwards or past the end) their texts are
    // joined onto a neighbour, so a row never outlives its time.
    QStringList textsPerSegment() const;
    // After a load: every stamped line became a segment of its own and no
    // line was skipped, so the file can be written again from the rows
    // without losing anything it held.
    bool loadedWhole() const;
    // Puts the lines of the last load in the order of their stamps (a line
    // with the same stamp as the one before it joins its text) and cuts the
    // segments again, none past the end of the audio, so a damaged file
    // still gives rows that play in order.
    void orderByTime();
    // "1. text\n2. text\n..." with the final line feed kept.
    QString exportToText() const;

    // Why the last save or load failed (the logged error); empty after a success.
    QString lastError() const { return m_lastError; }
    LoadFault lastLoadFault() const { return m_lastLoadFault; }

private:
    DurationProvider m_totalDuration;
    QStringList m_transcriptions;
    std::optional<SegmentList> m_segments;
    // What the last load read besides the texts and segments.
    QList<double> m_stamps;
    QList<qsizetype> m_sources; // the stamp of each segment
    int m_skippedLines = 0;
    double m_loadedTotal = 0.0;
    QString m_lastError;
    LoadFault m_lastLoadFault = LoadFault::None;
};
