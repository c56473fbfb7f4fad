// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <utility>

// The form in which a reference and what the learner typed are compared:
// Unicode NFKC (full-width forms become their plain forms, ligatures their
// letters), typographic apostrophes and quotes become ' and ", every dash
// becomes -, and no-break spaces become spaces. What a keyboard cannot tell
// apart is not a mistake.
class TextNormalizer
{
public:
    explicit TextNormalizer(const QString& source);

    // The normalised text alone.
    static QString normalized(const QString& source);

    const QString& text() const { return m_text; }

    // Where the normalised units [from, to) stand in the source text, so that
    // a mark can be drawn under what was actually typed. A range that begins
    // or ends inside what one source character became takes that character.
    std::pair<qsizetype, qsizetype> sourceRange(qsizetype from, qsizetype to) const;

private:
    // One piece of the source and where its normalised form starts; empty
    // when normalisation changed no length, so that positions carry over.
    struct Piece
    {
        qsizetype textStart;
        qsizetype sourceStart;
    };

    QString m_text;
    qsizetype m_sourceSize = 0;
    QList<Piece> m_pieces;
};
