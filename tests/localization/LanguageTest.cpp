// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "localization/CountryCode.h"
#include "localization/LanguageBundle.h"
#include "localization/LanguageManager.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"

#include <QCoreApplication>
#include <QObject>
#include <gtest/gtest.h>

using TestSupport::TempDefaults;
using namespace PreferenceKeys;

namespace {

// A language manager over a temporary store, its own bundle and its own
// notification centre, as a fresh start of the application would have.
struct Fixture
{
    TempDefaults defaults;
    NotificationCenter center;
    LanguageBundle bundle{defaults.store()};
    LanguageManager manager{defaults.store(), center, bundle};

    QString lookup(const char* key) const
    {
        return bundle.localizedStringForKey(key, QString(), QString());
    }
};

} // namespace

TEST(LanguageManager, ChangeLanguageStoresBothKeysAndPostsOldAndNew)
{
    Fixture f;
    QObject observer;
    QList<NotificationCenter::Notification> posted;
    f.center.addObserver(Notifications::LanguageDidChangeNotification, &observer,
                         [&](const NotificationCenter::Notification& n) { posted << n; });

    f.manager.changeLanguage("ja");
    ASSERT_EQ(posted.size(), 1);
    EXPECT_FALSE(posted[0].object.isValid());
    EXPECT_EQ(posted[0].userInfo, (QVariantMap{{"language", "ja"}, {"oldLanguage", "en"}}));
    EXPECT_EQ(f.manager.currentLanguage(), "ja");

    f.manager.changeLanguage("zh-Hans");
    ASSERT_EQ(posted.size(), 2);
    EXPECT_EQ(posted[1].userInfo.value("oldLanguage"), "ja");

    // Written to disk at once; the list holds only the chosen code.
    f.defaults.reopen();
    EXPECT_EQ(f.defaults.store().stringForKey(AppLanguage), "zh-Hans");
    EXPECT_EQ(f.defaults.store().objectForKey(AppleLanguages).toStringList(),
              QStringList{"zh-Hans"});
}

TEST(LanguageManager, ChangingTheLanguageAloneDoesNotChangeLookupsUntilTheNextStart)
{
    Fixture f;
    f.manager.changeLanguage("de");
    EXPECT_EQ(f.lookup(Texts::Cancel), "Cancel");

    // The next start installs the translation "AppleLanguages" names.
    EXPECT_EQ(f.manager.startupLanguage(), "de");
    ASSERT_TRUE(f.manager.installStartupTranslator());
    EXPECT_EQ(f.lookup(Texts::Cancel), "Abbrechen");
    EXPECT_EQ(LocalizedString(Texts::Cancel), "Abbrechen");
    EXPECT_EQ(QCoreApplication::translate("Localizable", "Save"), "Speichern");
    f.manager.removeStartupTranslator();
    EXPECT_EQ(LocalizedString(Texts::Cancel), "Cancel");
}

TEST(LanguageManager, SetupInitialLanguageMakesLookupsFollowTheChoiceAtOnce)
{
    Fixture f;
    f.manager.setupInitialLanguage("fr");
    EXPECT_TRUE(f.bundle.isLanguageOverrideActive());
    EXPECT_EQ(f.defaults.store().objectForKey(AppleLanguages).toStringList(), QStringList{"fr"});
    EXPECT_EQ(f.lookup(Texts::Cancel), "Annuler");
    EXPECT_EQ(f.lookup(Texts::UpdateAvailableMessage),
              "La version %@ est disponible.\n\nNotes de version :\n%@");

    f.manager.changeLanguage("ko");
    EXPECT_EQ(f.lookup(Texts::Cancel), "취소");
    f.manager.changeLanguage("th");
    EXPECT_EQ(f.lookup(Texts::Thai), "ภาษาไทย");

    // A key missing from the table answers the default value, else the key.
    EXPECT_EQ(f.bundle.localizedStringForKey("No such text", "", ""), "No such text");
    EXPECT_EQ(f.bundle.localizedStringForKey("No such text", "fallback", ""), "fallback");
}

TEST(LanguageManager, WithTheOverrideALanguageWithoutATableAnswersNothing)
{
    Fixture f;
    f.manager.setupInitialLanguage("pt");
    for (const char* text : Texts::All)
        EXPECT_TRUE(f.lookup(text).isNull()) << text;
    f.manager.changeLanguage("../en");
    EXPECT_TRUE(f.lookup(Texts::OK).isNull());
}

TEST(LanguageManager, StartupLanguageMapsRegionalTagsAndSkipsUnsupportedOnes)
{
    EXPECT_EQ(LanguageManager::supportedLanguageForTag("en-GB"), "en");
    EXPECT_EQ(LanguageManager::supportedLanguageForTag("zh-CN"), "zh-Hans");
    EXPECT_EQ(LanguageManager::supportedLanguageForTag("zh_Hans_SG"), "zh-Hans");
    EXPECT_EQ(LanguageManager::supportedLanguageForTag("zh-Hant-TW"), "");
    EXPECT_EQ(LanguageManager::supportedLanguageForTag("pt-BR"), "");
    EXPECT_EQ(LanguageManager::supportedLanguageForTag("vi"), "vi");

    Fixture f;
    f.defaults.store().setObject(QStringList{"pt-BR", "ru-RU"}, AppleLanguages);
    EXPECT_EQ(f.manager.startupLanguage(), "ru");
}

TEST(CountryCode, FirstMatchingPrefixDecides)
{
    EXPECT_EQ(countryCodeForLanguage("en-GB", true), "gb");
    EXPECT_EQ(countryCodeForLanguage("EN-gb", false), "gb");
    EXPECT_EQ(countryCodeForLanguage("en-AU", true), "us");
    EXPECT_EQ(countryCodeForLanguage("zh-Hans-CN", true), "cn");
    EXPECT_EQ(countryCodeForLanguage("zh-Hans-CN", false), "us");
    EXPECT_EQ(countryCodeForLanguage("ja-JP", false), "jp");
    EXPECT_EQ(countryCodeForLanguage("vi-VN", true), "vn");
    EXPECT_EQ(countryCodeForLanguage("pt-BR", true), "us");
    EXPECT_EQ(countryCodeForLanguage("", true), "us");
    // The platform's own first language goes through the same rule.
    EXPECT_EQ(getCountryCodeForCurrentLanguage(true),
              countryCodeForLanguage(preferredSystemLanguage(), true));
}

TEST(LocalizedString, FormatsFillPlaceholdersInOrder)
{
    EXPECT_EQ(
        stringWithFormat("Version %@ is available.\n\nRelease Notes:\n%@", {"2.1.0", "Fixes"}),
        "Version 2.1.0 is available.\n\nRelease Notes:\nFixes");
    EXPECT_EQ(stringWithFormat("smaller than %llu MB", {"1024"}), "smaller than 1024 MB");
    EXPECT_EQ(stringWithFormat("100%% of %@", {"%@"}), "100% of %@");
    EXPECT_EQ(stringWithFormat("%@ and %@", {"one"}), "one and %@");
}
