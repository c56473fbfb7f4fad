// SPDX-License-Identifier: GPL-3.0-or-later
#include "align/AlignmentLanguages.h"

#include "align/SpeechSynthesizer.h"

#include <QChar>
#include <QHash>
#include <algorithm>
#include <array>

namespace {

struct Entry
{
    const char* code;
    const char* voice; // espeak-ng's voice file name
    const char* name;
    QChar::Script script;
};

// Each voice was heard through its phonemes (espeak-ng -x) on a sentence with
// a number in it: all read the words and the number in the language itself.
const std::array kLanguages{
    Entry{"ca", "ca", "Catalan", QChar::Script_Latin},
    Entry{"cmn", "cmn-latn-pinyin", "Chinese (Mandarin)", QChar::Script_Han},
    Entry{"yue", "yue", "Chinese (Cantonese)", QChar::Script_Han},
    Entry{"cs", "cs", "Czech", QChar::Script_Latin},
    Entry{"da", "da", "Danish", QChar::Script_Latin},
    Entry{"nl", "nl", "Dutch", QChar::Script_Latin},
    Entry{"en", "en-gb", "English", QChar::Script_Latin},
    Entry{"en-us", "en-us", "English (American)", QChar::Script_Latin},
    Entry{"fi", "fi", "Finnish", QChar::Script_Latin},
    Entry{"fr", "fr-fr", "French", QChar::Script_Latin},
    Entry{"de", "de", "German", QChar::Script_Latin},
    Entry{"el", "el", "Greek", QChar::Script_Greek},
    Entry{"hi", "hi", "Hindi", QChar::Script_Devanagari},
    Entry{"hu", "hu", "Hungarian", QChar::Script_Latin},
    Entry{"id", "id", "Indonesian", QChar::Script_Latin},
    Entry{"it", "it", "Italian", QChar::Script_Latin},
    Entry{"ko", "ko", "Korean", QChar::Script_Hangul},
    Entry{"nb", "nb", "Norwegian (Bokmål)", QChar::Script_Latin},
    Entry{"pl", "pl", "Polish", QChar::Script_Latin},
    Entry{"pt", "pt", "Portuguese", QChar::Script_Latin},
    Entry{"pt-br", "pt-br", "Portuguese (Brazil)", QChar::Script_Latin},
    Entry{"ro", "ro", "Romanian", QChar::Script_Latin},
    Entry{"ru", "ru", "Russian", QChar::Script_Cyrillic},
    Entry{"es", "es", "Spanish", QChar::Script_Latin},
    Entry{"sv", "sv", "Swedish", QChar::Script_Latin},
    Entry{"tr", "tr", "Turkish", QChar::Script_Latin},
    Entry{"uk", "uk", "Ukrainian", QChar::Script_Cyrillic},
    Entry{"vi", "vi", "Vietnamese", QChar::Script_Latin},
};

// The first language listed for each script is the one a text in it is
// taken for when the interface language says nothing.
constexpr std::array<std::pair<QChar::Script, const char*>, 6> kScriptDefaults{{
    {QChar::Script_Latin, "en"},
    {QChar::Script_Han, "cmn"},
    {QChar::Script_Cyrillic, "ru"},
    {QChar::Script_Greek, "el"},
    {QChar::Script_Hangul, "ko"},
    {QChar::Script_Devanagari, "hi"},
}};

const Entry* find(const QString& code)
{
    for (const Entry& e : kLanguages) {
        if (code == QLatin1String(e.code))
            return &e;
    }
    return nullptr;
}

// espeak-ng's voices, asked once: they do not change while the program runs.
const QStringList& installed()
{
    static const QStringList voices = SpeechSynthesizer::installedVoices();
    return voices;
}

bool usable(const Entry& e)
{
    return installed().contains(QLatin1String(e.voice));
}

// "pt_BR", "pt-BR" and "pt" give the known code they name, most precise first.
const Entry* fromInterface(const QString& interfaceLanguage)
{
    QString code = interfaceLanguage.toLower();
    code.replace(u'_', u'-');
    code = code.section(u'.', 0, 0); // "fr_FR.UTF-8"
    if (const Entry* e = find(code.section(u'-', 0, 1)); e && usable(*e))
        return e;
    if (const Entry* e = find(code.section(u'-', 0, 0)); e && usable(*e))
        return e;
    return nullptr;
}

} // namespace

namespace AlignmentLanguages {

QList<AlignmentLanguage> available()
{
    QList<AlignmentLanguage> out;
    for (const Entry& e : kLanguages) {
        if (usable(e))
            out.append({QLatin1String(e.code), QString::fromUtf8(e.name)});
    }
    std::sort(out.begin(), out.end(), [](const AlignmentLanguage& a, const AlignmentLanguage& b) {
        return a.name < b.name;
    });
    return out;
}

bool isKnown(const QString& code)
{
    const Entry* e = find(code);
    return e && usable(*e);
}

QString voice(const QString& code)
{
    const Entry* e = find(code);
    return e && usable(*e) ? QString::fromLatin1(e->voice) : QString();
}

QString guess(const QString& text, const QString& interfaceLanguage)
{
    QHash<int, qsizetype> letters;
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t c = text[i].unicode();
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            c = QChar::surrogateToUcs4(text[i], text[i + 1]);
            ++i;
        }
        if (QChar::isLetter(c))
            ++letters[QChar::script(c)];
    }
    // Kana among Han characters is Japanese, which no voice reads well; the
    // Han characters are still best read as Mandarin.
    letters[QChar::Script_Han] +=
        letters.value(QChar::Script_Hiragana) + letters.value(QChar::Script_Katakana);
    QChar::Script best = QChar::Script_Latin;
    qsizetype most = 0;
    for (const auto& [script, fallback] : kScriptDefaults) {
        if (letters.value(script) > most) {
            most = letters.value(script);
            best = script;
        }
    }
    if (const Entry* e = fromInterface(interfaceLanguage); e && e->script == best)
        return QLatin1String(e->code);
    for (const auto& [script, fallback] : kScriptDefaults) {
        if (script == best && isKnown(QLatin1String(fallback)))
            return QLatin1String(fallback);
    }
    const QList<AlignmentLanguage> all = available();
    return isKnown(QStringLiteral("en")) || all.isEmpty() ? QStringLiteral("en") : all.first().code;
}

} // namespace AlignmentLanguages
