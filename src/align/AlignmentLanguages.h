// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

// A language the aligner can read a text in: its code ("fr", "pt-br",
// "cmn") and its name for a menu.
struct AlignmentLanguage
{
    QString code;
    QString name;

    friend bool operator==(const AlignmentLanguage&, const AlignmentLanguage&) = default;
};

// The languages whose espeak-ng voice reads a text as that language. Only
// voices checked to do so are offered: Japanese, for one, reads kanji as
// English words, and Mandarin needs the voice that reads Han characters
// rather than the one that spells their romanisation.
namespace AlignmentLanguages {

// Those whose voice espeak-ng has installed, sorted by name.
QList<AlignmentLanguage> available();
bool isKnown(const QString& code);
// A known code for a text: from the script most of its letters are in, and
// for Latin (or Cyrillic) letters the interface language when it is a
// known one of that script ("fr_FR" gives "fr"), else English (Russian).
QString guess(const QString& text, const QString& interfaceLanguage);
// The espeak-ng voice that reads a known code; empty for an unknown one.
QString voice(const QString& code);

} // namespace AlignmentLanguages
