// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

// One word, or one punctuation mark or symbol, of a normalised text.
struct Token
{
    QString text;        // normalised (see TextNormalizer)
    qsizetype start = 0; // where it stands in the text as given, in UTF-16 units
    qsizetype length = 0;
    bool word = true; // false: punctuation or a symbol
};

namespace Tokenizer {

// Normalises the text and cuts it at Unicode word boundaries (UAX #29), so
// that "don't" stays one token and "well-known" is two. Each Han, Hiragana
// and Katakana character is a token of its own, as those scripts put no
// spaces between words. Spaces are never tokens; punctuation and symbols
// only with `withPunctuation`.
QList<Token> tokenize(const QString& text, bool withPunctuation);

} // namespace Tokenizer
