// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Tokenizer.h"

#include "reference/TextNormalizer.h"

#include <QTextBoundaryFinder>

namespace {

bool standsAlone(char32_t c)
{
    const QChar::Script script = QChar::script(c);
    return script == QChar::Script_Han || script == QChar::Script_Hiragana ||
           script == QChar::Script_Katakana;
}

char32_t codePointAt(const QString& text, qsizetype i, qsizetype end, int& width)
{
    const QChar c = text[i];
    if (c.isHighSurrogate() && i + 1 < end && text[i + 1].isLowSurrogate()) {
        width = 2;
        return QChar::surrogateToUcs4(c, text[i + 1]);
    }
    width = 1;
    return c.unicode();
}

} // namespace

namespace Tokenizer {

QList<Token> tokenize(const QString& source, bool withPunctuation)
{
    const TextNormalizer normal(source);
    const QString& text = normal.text();
    QList<Token> tokens;
    const auto add = [&](qsizetype from, qsizetype to, bool word) {
        const auto [start, end] = normal.sourceRange(from, to);
        tokens.append({text.mid(from, to - from), start, end - start, word});
    };

    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, text);
    qsizetype spanStart = 0;
    for (qsizetype spanEnd = finder.toNextBoundary(); spanEnd > 0;
         spanEnd = finder.toNextBoundary()) {
        // A span between two boundaries is a word, a run of spaces or one
        // mark; within a word, characters that stand alone are cut out.
        qsizetype runStart = -1;
        bool letters = false;
        bool visible = false;
        const auto endRun = [&](qsizetype at) {
            if (runStart >= 0 && (letters || (visible && withPunctuation)))
                add(runStart, at, letters);
            runStart = -1;
            letters = visible = false;
        };
        for (qsizetype i = spanStart; i < spanEnd;) {
            int width = 1;
            const char32_t c = codePointAt(text, i, spanEnd, width);
            if (standsAlone(c)) {
                endRun(i);
                qsizetype end = i + width;
                for (int w = 1; end < spanEnd && QChar::isMark(codePointAt(text, end, spanEnd, w));)
                    end += w;
                add(i, end, true);
                i = end;
                continue;
            }
            if (runStart < 0)
                runStart = i;
            letters = letters || QChar::isLetterOrNumber(c) || QChar::isMark(c);
            visible = visible || (QChar::isPrint(c) && !QChar::isSpace(c));
            i += width;
        }
        endRun(spanEnd);
        spanStart = spanEnd;
    }
    return tokens;
}

} // namespace Tokenizer
