// SPDX-License-Identifier: GPL-3.0-or-later
// The check of what was typed against the reference text: the marks in the
// rows, the check bar, the hint.

#include "app/ViewController.h"
#include "common/Log.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "preferences/CheckPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/Keyboard.h"
#include "preferences/ObjectStorage.h"
#include "preferences/ShortcutBindings.h"
#include "reference/CheckSummary.h"
#include "views/CheckBar.h"
#include "views/TranscriptionTableView.h"

#include <QTimer>
#include <algorithm>

namespace {

QString textOf(const QString& text, const Token& token)
{
    return text.mid(token.start, token.length);
}

// Where the check's marks go in the typed text.
RowMarks rowMarksFor(const CheckResult& result)
{
    RowMarks marks;
    const MarkCounts& c = result.counts;
    if (!result.score)
        marks.verdict = RowVerdict::Unchecked;
    else if (c.wrong + c.missing + c.extra > 0)
        marks.verdict = RowVerdict::Mistakes;
    else if (c.typo > 0)
        marks.verdict = RowVerdict::TyposOnly;
    else
        marks.verdict = RowVerdict::Perfect;

    qsizetype previousEnd = 0; // the end of the last typed token passed
    const qsizetype steps = result.alignment.size();
    for (qsizetype i = 0; i < steps; ++i) {
        const AlignedToken& step = result.alignment[i];
        if (step.typed >= 0) {
            const Token& typed = result.typed[step.typed];
            previousEnd = typed.start + typed.length;
            if (step.mark == Mark::Wrong || step.mark == Mark::Typo || step.mark == Mark::Extra)
                marks.marks.append({step.mark == Mark::Wrong  ? TextMark::Kind::Wrong
                                    : step.mark == Mark::Typo ? TextMark::Kind::Typo
                                                              : TextMark::Kind::Extra,
                                    typed.start, typed.length});
            continue;
        }
        // A run of missing words is one mark, in the gap before the next
        // typed word (or after the last one).
        if (i > 0 && result.alignment[i - 1].mark == Mark::Missing)
            continue;
        qsizetype nextStart = previousEnd;
        for (qsizetype j = i + 1; j < steps; ++j) {
            if (result.alignment[j].typed >= 0) {
                nextStart = result.typed[result.alignment[j].typed].start;
                break;
            }
        }
        marks.marks.append({TextMark::Kind::Missing, previousEnd, nextStart - previousEnd});
    }
    return marks;
}

QList<CheckBarPiece> piecesFor(const CheckResult& result, const QString& reference,
                               const QString& typed)
{
    QList<CheckBarPiece> pieces;
    using Kind = CheckBarPiece::Kind;
    for (const AlignedToken& step : result.alignment) {
        const QString expected =
            step.expected >= 0 ? textOf(reference, result.reference[step.expected]) : QString();
        const QString given = step.typed >= 0 ? textOf(typed, result.typed[step.typed]) : QString();
        switch (step.mark) {
        case Mark::Correct:
        case Mark::Minor:
            pieces.append({Kind::Correct, expected});
            break;
        case Mark::Missing:
            pieces.append({Kind::Missing, expected});
            break;
        case Mark::Wrong:
        case Mark::Typo: {
            const Kind kind = step.mark == Mark::Wrong ? Kind::Wrong : Kind::Typo;
            pieces.append({kind, expected});
            pieces.append({Kind::Typed, given, kind});
            break;
        }
        case Mark::Extra:
            pieces.append({Kind::Extra, given});
            break;
        }
    }
    return pieces;
}

QString percentText(double score)
{
    return QString::number(CheckSummary::percent(score)) + QLatin1Char('%');
}

} // namespace

CheckOptions ViewController::checkOptions() const
{
    return storedCheckOptions(m_defaults);
}

const CheckResult& ViewController::checkOfRow(qint64 row, const CheckOptions& options)
{
    if (options.typoWeight != m_rowChecksOptions.typoWeight ||
        options.countCase != m_rowChecksOptions.countCase ||
        options.countPunctuation != m_rowChecksOptions.countPunctuation) {
        m_rowChecks.clear();
        m_rowChecksOptions = options;
    }
    const QStringList& texts = m_table->mutableTranscriptions();
    const QString typed = row >= 0 && row < texts.size() ? texts[row] : QString();
    const QString reference = m_referenceBySegment.value(row);
    RowCheck& cached = m_rowChecks[row];
    // A new entry holds two empty texts, whose check is the empty result.
    if (cached.typed != typed || cached.reference != reference) {
        cached.typed = typed;
        cached.reference = reference;
        cached.result = Checker(options).check(reference, typed);
    }
    return cached.result;
}

std::optional<double> ViewController::currentLessonScore(const CheckOptions& options)
{
    // Every row with typing and a reference counts, checked or not.
    QList<CheckResult> results;
    const QStringList& texts = m_table->mutableTranscriptions();
    for (qint64 row = 0; row < texts.size(); ++row) {
        if (!texts[row].trimmed().isEmpty() && !m_referenceBySegment.value(row).isEmpty())
            results.append(checkOfRow(row, options));
    }
    return lessonScore(results);
}

void ViewController::checkCurrentSegment()
{
    if (!m_reference || m_segmentsShown == 0)
        return;
    const qint64 row = m_table->currentIndex() >= 0 ? m_table->currentIndex()
                                                    : m_currentSegmentIndex;
    m_checkedRows.insert(row);
    showCheckOfRow(row);
    recordPracticeCheck(row);
}

void ViewController::showCheckOfRow(qint64 row)
{
    // Read once: the stored options are not free to read for every row.
    const CheckOptions options = checkOptions();
    m_table->setRowMarks(row, rowMarksFor(checkOfRow(row, options)));
    const std::optional<double> lesson = currentLessonScore(options);
    // The lesson score may have re-checked rows; this row's result is cached.
    const CheckResult& shown = checkOfRow(row, options);
    QStringList scores;
    if (shown.score)
        scores << stringWithFormat(LocalizedString(Texts::SummarySegmentScore),
                                   {percentText(*shown.score)});
    if (lesson)
        scores << stringWithFormat(LocalizedString(Texts::SummaryLessonScore),
                                   {percentText(*lesson)});
    const QString summary = CheckSummary::text(shown, lesson, CheckSummary::localizedPhrases());
    if (shown.score) {
        m_checkBar->showCheck(piecesFor(shown, m_referenceBySegment.value(row),
                                        m_table->mutableTranscriptions().value(row)),
                              scores.join(QStringLiteral("   ")), summary);
    } else {
        m_checkBar->showMessage(summary);
    }
    qCDebug(lcReference, "Checked segment %lld: %s", qlonglong(row), qUtf8Printable(summary));
}

void ViewController::showCheckBarForRow(qint64 row)
{
    if (!m_reference || row < 0)
        return;
    if (m_checkedRows.contains(row)) {
        showCheckOfRow(row);
        return;
    }
    if (m_referenceBySegment.value(row).trimmed().isEmpty()) {
        m_checkBar->showMessage(LocalizedString(Texts::SummaryNoReferenceWords));
        return;
    }
    const ShortcutSet keys = storedShortcuts(ObjectStorage(m_defaults));
    const auto& bindings = shortcutBindings();
    QString key;
    for (std::size_t i = 0; i < bindings.size(); ++i) {
        if (bindings[i].action == ShortcutAction::Check)
            key = Keyboard::shortcutText(keys[i].keyCode(), keys[i].modifierFlags());
    }
    m_checkBar->showMessage(stringWithFormat(LocalizedString(Texts::CheckBarPrompt), {key}));
}

void ViewController::rowTextChanged(qint64 row)
{
    if (!m_reference)
        return;
    if (storedCheckAsIType(m_defaults)) {
        m_checkedRows.insert(row);
        m_table->setRowMarks(row, rowMarksFor(checkOfRow(row, checkOptions())));
        // The bar and the lesson's score once the keys queued now are in:
        // the row's glyph and marks come first.
        if (row == m_table->currentIndex())
            m_checkBarRefresh->start();
        return;
    }
    // Marks describe the text they were made for; a changed row waits for
    // its next check.
    if (!m_checkedRows.remove(row))
        return;
    m_table->setRowMarks(row, {});
    if (row == m_table->currentIndex())
        showCheckBarForRow(row);
}

void ViewController::showNextWord()
{
    if (!m_reference || m_segmentsShown == 0)
        return;
    const qint64 row = m_table->currentIndex() >= 0 ? m_table->currentIndex()
                                                    : m_currentSegmentIndex;
    const CheckResult& result = checkOfRow(row, checkOptions());
    if (!result.score)
        return;
    ++m_hints[row];
    recordPracticeHint(row);
    const std::optional<Token> next = nextWord(result);
    const QString reference = m_referenceBySegment.value(row);
    m_checkBar->setHint(next ? stringWithFormat(LocalizedString(Texts::CheckBarNextWord),
                                                {textOf(reference, *next)})
                             : LocalizedString(Texts::CheckBarAllTyped));
}

void ViewController::checkOptionsChanged()
{
    if (!m_reference)
        return;
    const CheckOptions options = checkOptions();
    for (const qint64 row : std::as_const(m_checkedRows))
        m_table->setRowMarks(row, rowMarksFor(checkOfRow(row, options)));
    showCheckBarForRow(m_table->currentIndex());
}

void ViewController::refreshCheckBarLook()
{
    m_checkBar->setColors(m_table->tableBackgroundColor(), m_table->dictationTextColor());
    QFont font = m_table->dictationTextFont();
    // One line under the rows: smaller than the typing, never tiny.
    if (font.pointSizeF() > 0)
        font.setPointSizeF(std::max(11.0, font.pointSizeF() * 0.7));
    m_checkBar->setTextFont(font);
}
