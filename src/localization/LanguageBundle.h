// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMutex>
#include <QString>
#include <map>
#include <memory>

class Defaults;
class QTranslator;

// The lookup of user-visible strings. Until the language override is switched
// on, a lookup answers from the translation installed at start-up (the key
// itself when there is none), which follows "AppleLanguages" at the next
// launch. With the override on, every lookup follows "AppLanguage" at once.
class LanguageBundle
{
public:
    // The application's bundle, over the user's defaults store.
    static LanguageBundle& main();

    explicit LanguageBundle(Defaults& store);
    ~LanguageBundle();
    LanguageBundle(const LanguageBundle&) = delete;
    LanguageBundle& operator=(const LanguageBundle&) = delete;

    // From now on lookups follow "AppLanguage"; a second call changes nothing.
    void activateLanguageOverride();
    bool isLanguageOverrideActive() const;

    // The text for `key` in the string table `table` (empty: the main table).
    // A key missing from a table answers `value`, or the key when `value` is
    // empty. With the override on and "AppLanguage" naming a language that has
    // no table, the answer is a null string.
    QString localizedStringForKey(const QString& key, const QString& value,
                                  const QString& table) const;

    // The text for `key` in the main table of one language, whatever the
    // interface shows; the key when that table lacks it or does not exist.
    QString localizedStringForKeyInLanguage(const QString& key, const QString& languageCode) const;

    // The compiled translation of a language code ("ja", "zh-Hans"), built
    // into the binary.
    static QString translationResource(const QString& languageCode);
    static bool hasTranslation(const QString& languageCode);

    // The name of the main string table, the context of every source text.
    static constexpr const char* MainTable = "Localizable";

private:
    const QTranslator* translatorFor(const QString& languageCode) const;

    Defaults& m_store;
    bool m_override = false;
    mutable QMutex m_mutex;
    mutable std::map<QString, std::unique_ptr<QTranslator>> m_translators; // null: no table
};
