// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/CheckBar.h"

#include "views/RowMarkPainter.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

QString span(const QString& color, const QString& text, bool struck = false)
{
    return QStringLiteral("<span style=\"color:%1;%2\">%3</span>")
        .arg(color,
             struck ? QStringLiteral("text-decoration:line-through;") : QString(),
             text.toHtmlEscaped());
}

} // namespace

CheckBar::CheckBar(QWidget* parent)
    : QWidget(parent), m_line(new QLabel(this)), m_scores(new QLabel(this)),
      m_note(new QLabel(this))
{
    setObjectName(QStringLiteral("checkBar"));
    setAutoFillBackground(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 12, 4);
    layout->setSpacing(16);
    m_line->setObjectName(QStringLiteral("checkBarLine"));
    m_line->setTextFormat(Qt::RichText);
    m_line->setWordWrap(false);
    // A long segment's line is cut at the bar's edge rather than widening
    // the window.
    m_line->setMinimumWidth(1);
    m_line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_scores->setObjectName(QStringLiteral("checkBarScores"));
    m_scores->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_note->setObjectName(QStringLiteral("checkBarNote"));
    m_note->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_note->hide();
    layout->addWidget(m_line, 1);
    layout->addWidget(m_scores);
    layout->addWidget(m_note);
    setColors(palette().color(QPalette::Window), palette().color(QPalette::WindowText));
}

void CheckBar::setColors(const QColor& background, const QColor& text)
{
    m_background = background;
    m_text = text;
    QPalette pal = palette();
    pal.setColor(QPalette::Window, background);
    pal.setColor(QPalette::WindowText, text);
    setPalette(pal);
    m_line->setPalette(pal);
    m_scores->setPalette(pal);
    m_note->setPalette(pal);
    refresh();
}

void CheckBar::setTextFont(const QFont& font)
{
    m_line->setFont(font);
    m_scores->setFont(font);
    m_note->setFont(font);
    setMinimumHeight(QFontMetrics(font).height() + 8);
}

QString CheckBar::colorFor(CheckBarPiece::Kind kind) const
{
    switch (kind) {
    case CheckBarPiece::Kind::Missing:
        return RowMarkPainter::missingColor().name();
    case CheckBarPiece::Kind::Wrong:
    case CheckBarPiece::Kind::Extra:
        return RowMarkPainter::wrongColor().name();
    case CheckBarPiece::Kind::Typo:
        return RowMarkPainter::typoColor().name();
    case CheckBarPiece::Kind::Correct:
    case CheckBarPiece::Kind::Typed:
        break;
    }
    return m_text.name();
}

void CheckBar::showMessage(const QString& message)
{
    m_markup = span(RowMarkPainter::missingColor().name(), message);
    m_summary = message;
    m_scores->clear();
    m_hint.clear();
    refresh();
}

void CheckBar::showCheck(const QList<CheckBarPiece>& pieces, const QString& scores,
                         const QString& summary)
{
    QStringList words;
    words.reserve(pieces.size());
    for (const CheckBarPiece& piece : pieces) {
        if (piece.kind == CheckBarPiece::Kind::Typed)
            words << span(colorFor(piece.beside), piece.text, true);
        else
            words << span(colorFor(piece.kind), piece.text,
                          piece.kind == CheckBarPiece::Kind::Extra);
    }
    m_markup = words.join(QLatin1Char(' '));
    m_summary = summary;
    m_scores->setText(scores);
    m_hint.clear();
    refresh();
}

void CheckBar::setHint(const QString& hint)
{
    m_hint = hint;
    refresh();
}

void CheckBar::refresh()
{
    QString markup = m_markup;
    QString name = m_summary;
    if (!m_hint.isEmpty()) {
        markup += QStringLiteral("&nbsp;&nbsp;&nbsp;") + span(m_text.name(), m_hint);
        name += QLatin1Char(' ') + m_hint;
    }
    m_line->setText(markup);
    setAccessibleName(name);
    m_line->setAccessibleName(name);
}

void CheckBar::setNote(const QString& note)
{
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

QString CheckBar::shownMarkup() const
{
    return m_line->text();
}

QString CheckBar::scoresText() const
{
    return m_scores->text();
}

QString CheckBar::noteText() const
{
    return m_note->text();
}
