// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

class Defaults;
class LanguageBundle;
class NotificationCenter;
class QTranslator;

// The interface language. It keeps no state of its own: the choice lives in
// the defaults store under "AppLanguage", and "AppleLanguages" (a one-element
// list) picks the translation installed at the next start.
class LanguageManager
{
public:
    struct Language
    {
        const char* code;        // "zh-Hans"
        const char* englishName; // "Chinese(Simplified)", also the lookup key of its shown name
    };

    static LanguageManager& sharedInstance();

    LanguageManager(Defaults& store, NotificationCenter& center, LanguageBundle& bundle);
    ~LanguageManager();
    LanguageManager(const LanguageManager&) = delete;
    LanguageManager& operator=(const LanguageManager&) = delete;

    // The ten interface languages, "en" first.
    static const QList<Language>& supportedLanguages();

    // "AppLanguage", or "en" when unset.
    QString currentLanguage() const;

    // The language the learner has: "AppLanguage" when one was chosen, else
    // the one this start's interface was built in (startupLanguage()), which
    // is the system's when nothing was ever chosen.
    QString interfaceLanguage() const;

    // A language's name in that language ("Русский"), from its own table.
    QString nativeLanguageName(const QString& code) const;

    // Stores the code under "AppLanguage" and as the one-element "AppleLanguages",
    // writes the store, then posts "LanguageDidChangeNotification" with
    // {"language": code, "oldLanguage": previous}. Nothing on screen is rebuilt:
    // the new language shows after a restart.
    void changeLanguage(const QString& code);

    // Stores the code as changeLanguage() does (without the notification) and
    // makes every later lookup follow "AppLanguage" without a restart.
    void setupInitialLanguage(const QString& code);

    // The interface language for this start: the first entry of "AppleLanguages"
    // that has a translation, else the first of the system's preferred languages
    // that has one, else "en". Regional forms map to ours ("en-GB" -> "en",
    // "zh-CN" -> "zh-Hans").
    QString startupLanguage() const;
    // The system's preferred languages: QLocale's, unless a test stands in
    // for a desktop in another language.
    void setSystemLanguages(const QStringList& tags) { m_systemLanguages = tags; }
    QStringList systemLanguages() const;
    // The supported code a language tag falls under, or empty.
    static QString supportedLanguageForTag(const QString& tag);

    // Installs the translation of startupLanguage() into the application, with
    // Qt's own for its standard dialogs when the system has it; false when
    // ours could not be loaded. A second call replaces the first.
    bool installStartupTranslator();
    void removeStartupTranslator();

private:
    void storeLanguage(const QString& code);

    Defaults& m_store;
    NotificationCenter& m_center;
    LanguageBundle& m_bundle;
    std::optional<QStringList> m_systemLanguages;
    std::unique_ptr<QTranslator> m_translator;
    std::unique_ptr<QTranslator> m_qtTranslator; // Qt's own dialogs (font, colour, file)
};
