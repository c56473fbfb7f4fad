// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "align/AlignedSentence.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

// One piece of a reference text: a subtitle cue, a transcript line or a line
// of plain text. Times, in seconds from the start of the audio, are there
// for the pieces of a timed file and absent for plain text. A sentence placed
// on the recording by alignment may have a start the learner should look at.
struct ReferenceUnit
{
    QString text;
    std::optional<double> start;
    std::optional<double> end;
    bool uncertain = false;

    bool isTimed() const { return start.has_value() && end.has_value(); }
    friend bool operator==(const ReferenceUnit&, const ReferenceUnit&) = default;
};

// The text a lesson is checked against, as read from the file the learner
// attached. Either every unit has its times or none has.
class ReferenceText
{
public:
    // Written into every stored reference; a file with another number is
    // refused rather than half understood.
    static constexpr int FormatVersion = 1;

    ReferenceText() = default;
    ReferenceText(QString sourceName, QList<ReferenceUnit> units);
    // A plain text whose sentences were placed on a recording in `language`:
    // one timed unit for each sentence, its times and uncertainty kept.
    static ReferenceText aligned(QString sourceName, const AlignedSentences& sentences,
                                 QString language);

    // The attached file's name, without its folder.
    const QString& sourceName() const { return m_sourceName; }
    const QList<ReferenceUnit>& units() const { return m_units; }
    bool isEmpty() const { return m_units.isEmpty(); }
    // True when there are units and all of them carry times; a reference
    // made by hand with only some timed is laid out as plain text.
    bool isTimed() const;
    // The language the sentences were placed in; empty for a reference read
    // as it came.
    const QString& language() const { return m_language; }
    void setLanguage(QString language) { m_language = std::move(language); }
    bool isAligned() const { return !m_language.isEmpty(); }

    // UTF-8 JSON: {"version": 1, "source": name, "units": [{"text", "start",
    // "end"}]}, the times left out for untimed units. "language" at the top
    // and "uncertain": true on a unit are written only when set: a reference
    // that was not aligned is written as it was before they existed.
    QByteArray toJson() const;
    // Nothing, and `error` saying what is wrong, for anything but a whole
    // reference of this format version.
    static std::optional<ReferenceText> fromJson(const QByteArray& json, QString* error = nullptr);

    friend bool operator==(const ReferenceText&, const ReferenceText&) = default;

private:
    QString m_sourceName;
    QList<ReferenceUnit> m_units;
    QString m_language;
};
