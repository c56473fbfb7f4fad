// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

// One piece of a reference text: a subtitle cue, a transcript line or a line
// of plain text. Times, in seconds from the start of the audio, are there
// for the pieces of a timed file and absent for plain text.
struct ReferenceUnit
{
    QString text;
    std::optional<double> start;
    std::optional<double> end;

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

    // The attached file's name, without its folder.
    const QString& sourceName() const { return m_sourceName; }
    const QList<ReferenceUnit>& units() const { return m_units; }
    bool isEmpty() const { return m_units.isEmpty(); }
    // True when there are units and all of them carry times; a reference
    // made by hand with only some timed is laid out as plain text.
    bool isTimed() const;

    // UTF-8 JSON: {"version": 1, "source": name, "units": [{"text", "start",
    // "end"}]}, the times left out for untimed units.
    QByteArray toJson() const;
    // Nothing, and `error` saying what is wrong, for anything but a whole
    // reference of this format version.
    static std::optional<ReferenceText> fromJson(const QByteArray& json, QString* error = nullptr);

    friend bool operator==(const ReferenceText&, const ReferenceText&) = default;

private:
    QString m_sourceName;
    QList<ReferenceUnit> m_units;
};
