// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QWidget>

class QLabel;

// One word of the check bar's line and how it is marked.
struct CheckBarPiece
{
    enum class Kind
    {
        Correct, // the reference word, typed right
        Missing, // the reference word, not typed: grey
        Wrong,   // the reference word where another was typed: red
        Typo,    // the reference word, nearly typed: orange
        Typed,   // what was typed for the word before it, struck through
        Extra,   // typed, not in the reference: struck through in red
    };
    Kind kind = Kind::Correct;
    QString text;
    // The colour of the word it stands beside (for Typed).
    Kind beside = Kind::Wrong;
};

// The line between the dictation table and the waveform strip while a
// reference text is attached: before a check it says how to check, after one
// it shows the segment's reference with the check's marks, the segment's and
// the lesson's score, and a hint when one was asked for. Its accessible name
// is the check in one plain sentence.
class CheckBar : public QWidget
{
    Q_OBJECT
public:
    explicit CheckBar(QWidget* parent = nullptr);

    // The colours of the table it belongs to.
    void setColors(const QColor& background, const QColor& text);
    void setTextFont(const QFont& font);

    // A line of plain advice, in a muted colour; no score.
    void showMessage(const QString& message);
    void showCheck(const QList<CheckBarPiece>& pieces, const QString& scores,
                   const QString& summary);
    // Added after whatever is shown; an empty text takes it away.
    void setHint(const QString& hint);
    // A word about the lesson at the bar's right end, whatever the line
    // shows (the reviews that are due); an empty text takes it away.
    void setNote(const QString& note);

    QString shownMarkup() const;
    QString scoresText() const;
    QString noteText() const;

private:
    void refresh();
    QString colorFor(CheckBarPiece::Kind kind) const;

    QLabel* m_line = nullptr;
    QLabel* m_scores = nullptr;
    QLabel* m_note = nullptr;
    QColor m_background;
    QColor m_text;
    QString m_markup;
    QString m_summary;
    QString m_hint;
};
