// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QtGlobal>

// What a check found in a row's typed text, in the row's own positions: the
// session works it out, the table only draws it.
struct TextMark
{
    enum class Kind
    {
        Wrong,   // underlined in red
        Typo,    // underlined in orange
        Extra,   // struck through
        Missing, // a grey caret under the middle of the gap where words are left out
    };
    Kind kind = Kind::Wrong;
    qsizetype start = 0; // UTF-16 units into the text
    qsizetype length = 0;

    friend bool operator==(const TextMark&, const TextMark&) = default;
};

// The mark by a checked row's number.
enum class RowVerdict
{
    Unchecked,
    Perfect,
    TyposOnly,
    Mistakes,
};

struct RowMarks
{
    RowVerdict verdict = RowVerdict::Unchecked;
    QList<TextMark> marks;

    bool isEmpty() const { return verdict == RowVerdict::Unchecked && marks.isEmpty(); }
    friend bool operator==(const RowMarks&, const RowMarks&) = default;
};
