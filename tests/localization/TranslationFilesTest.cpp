// SPDX-License-Identifier: GPL-3.0-or-later
// Every interface language has a finished translation of every user-visible
// text, keeps its placeholders, and is built into the binary.

#include "localization/LanguageBundle.h"
#include "localization/LanguageManager.h"
#include "localization/LocalizedTexts.h"
#include "localization/AlignTexts.h"
#include "localization/PracticeTexts.h"
#include "localization/SentenceCutTexts.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

struct Message
{
    QString translation;
    QString type; // "unfinished", "vanished", "obsolete" or empty (finished)
};

struct TsFile
{
    QString language;
    QMap<QString, Message> messages;
    QStringList duplicates;
    QString error;
};

TsFile readTs(const QString& path)
{
    TsFile ts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ts.error = file.errorString();
        return ts;
    }
    QXmlStreamReader xml(&file);
    QString context, source;
    Message message;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("TS")) {
            ts.language = xml.attributes().value("language").toString();
        } else if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.type = xml.attributes().value("type").toString();
            message.translation = xml.readElementText();
            if (context != QLatin1String(LanguageBundle::MainTable))
                ts.error = "message outside the main table: " + source;
            if (ts.messages.contains(source))
                ts.duplicates << source;
            ts.messages.insert(source, message);
        }
    }
    if (xml.hasError())
        ts.error = xml.errorString();
    return ts;
}

QString tsPath(const QString& code)
{
    return QStringLiteral(KELMORA_TRANSLATIONS_DIR "/kelmora_%1.ts").arg(code);
}

// Numbered placeholders ("%1") may change places in a language; the others
// are filled in order and keep it.
QStringList placeholders(const QString& text)
{
    static const QRegularExpression re(QStringLiteral("%(?:@|llu|lu|ld|d|%|[1-9])"));
    QStringList found, numbered;
    for (auto it = re.globalMatch(text); it.hasNext();) {
        const QString placeholder = it.next().captured();
        (placeholder.back().isDigit() ? numbered : found) << placeholder;
    }
    numbered.sort();
    return found + numbered;
}

// Every list of texts in LocalizedTexts.h, PracticeTexts.h, SentenceCutTexts.h and AlignTexts.h.
QList<const char*> textList()
{
    QList<const char*> texts(Texts::All.begin(), Texts::All.end());
    texts.append(QList<const char*>(Texts::PreferencesWindow.begin(), Texts::PreferencesWindow.end()));
    texts.append(QList<const char*>(Texts::SessionFiles.begin(), Texts::SessionFiles.end()));
    texts.append(QList<const char*>(Texts::EmptyWindow.begin(), Texts::EmptyWindow.end()));
    texts.append(QList<const char*>(Texts::KeyboardCommands.begin(), Texts::KeyboardCommands.end()));
    texts.append(QList<const char*>(Texts::ReferenceCheck.begin(), Texts::ReferenceCheck.end()));
    texts.append(QList<const char*>(Texts::Journal.begin(), Texts::Journal.end()));
    texts.append(QList<const char*>(Texts::SaveFaults.begin(), Texts::SaveFaults.end()));
    texts.append(QList<const char*>(Texts::Recovery.begin(), Texts::Recovery.end()));
    texts.append(QList<const char*>(Texts::Fingerprint.begin(), Texts::Fingerprint.end()));
    texts.append(QList<const char*>(Texts::Cutting.begin(), Texts::Cutting.end()));
    texts.append(QList<const char*>(Texts::PracticeSettings.begin(), Texts::PracticeSettings.end()));
    texts.append(QList<const char*>(Texts::Practice.begin(), Texts::Practice.end()));
    texts.append(QList<const char*>(Texts::SentenceCutting.begin(), Texts::SentenceCutting.end()));
    texts.append(QList<const char*>(Texts::Alignment.begin(), Texts::Alignment.end()));
    return texts;
}

QSet<QString> allTexts()
{
    QSet<QString> texts;
    for (const char* t : textList())
        texts.insert(QString::fromUtf8(t));
    return texts;
}

} // namespace

TEST(TranslationFiles, EveryLanguageTranslatesEveryTextCompletelyKeepingPlaceholders)
{
    const QSet<QString> texts = allTexts();
    ASSERT_EQ(texts.size(), textList().size()) << "a text is listed twice";
    for (const auto& lang : LanguageManager::supportedLanguages()) {
        SCOPED_TRACE(lang.code);
        const TsFile ts = readTs(tsPath(lang.code));
        ASSERT_TRUE(ts.error.isEmpty()) << ts.error.toStdString();
        EXPECT_TRUE(ts.duplicates.isEmpty()) << ts.duplicates.join(", ").toStdString();
        const QSet<QString> sources(ts.messages.keyBegin(), ts.messages.keyEnd());
        for (const QString& missing : texts - sources)
            ADD_FAILURE() << "no translation of \"" << missing.toStdString() << "\"";
        for (const QString& extra : sources - texts)
            ADD_FAILURE() << "\"" << extra.toStdString() << "\" is not a text of the application";

        int sameAsEnglish = 0;
        for (auto it = ts.messages.cbegin(); it != ts.messages.cend(); ++it) {
            const QString& source = it.key();
            const Message& m = it.value();
            EXPECT_TRUE(m.type.isEmpty()) << source.toStdString() << " is " << m.type.toStdString();
            EXPECT_FALSE(m.translation.trimmed().isEmpty()) << source.toStdString();
            EXPECT_EQ(placeholders(m.translation).join(u' ').toStdString(),
                      placeholders(source).join(u' ').toStdString())
                << source.toStdString();
            if (m.translation == source)
                ++sameAsEnglish;
        }
        // Brand names and words like "OK" or "Pause" may stay as they are; a
        // file that mostly repeats the English is not a translation.
        if (QLatin1String(lang.code) != QLatin1String("en")) {
            EXPECT_LE(sameAsEnglish, 6);
        }
    }
}

TEST(TranslationFiles, LanguageNamesOfThePanelAreTexts)
{
    const QSet<QString> texts = allTexts();
    ASSERT_EQ(LanguageManager::supportedLanguages().size(), 10);
    for (const auto& lang : LanguageManager::supportedLanguages())
        EXPECT_TRUE(texts.contains(lang.englishName)) << lang.englishName;
}

TEST(TranslationFiles, CompiledTranslationsAreBuiltInAndAnswerEveryText)
{
    TestSupport::TempDefaults t;
    LanguageBundle bundle(t.store());
    bundle.activateLanguageOverride();
    for (const auto& lang : LanguageManager::supportedLanguages()) {
        SCOPED_TRACE(lang.code);
        ASSERT_TRUE(LanguageBundle::hasTranslation(lang.code));
        const TsFile ts = readTs(tsPath(lang.code));
        t.store().setObject(QString::fromLatin1(lang.code), PreferenceKeys::AppLanguage);
        for (const char* text : textList()) {
            const QString answer = bundle.localizedStringForKey(text, QString(), QString());
            EXPECT_EQ(answer, ts.messages.value(text).translation) << text;
        }
    }
}
