// SPDX-License-Identifier: GPL-3.0-or-later
#include "localization/LanguageManager.h"

#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "localization/LanguageBundle.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {
QString key(const char* k)
{
    return QString::fromLatin1(k);
}
} // namespace

LanguageManager& LanguageManager::sharedInstance()
{
    static LanguageManager manager(Defaults::standard(), NotificationCenter::defaultCenter(),
                                   LanguageBundle::main());
    return manager;
}

LanguageManager::LanguageManager(Defaults& store, NotificationCenter& center,
                                 LanguageBundle& bundle)
    : m_store(store), m_center(center), m_bundle(bundle)
{
}

LanguageManager::~LanguageManager()
{
    removeStartupTranslator();
}

const QList<LanguageManager::Language>& LanguageManager::supportedLanguages()
{
    static const QList<Language> languages = {
        {"en", "English"}, {"zh-Hans", "Chinese(Simplified)"},
        {"es", "Spanish"}, {"ja", "Japanese"},
        {"ko", "Korean"},  {"de", "German"},
        {"fr", "French"},  {"ru", "Russian"},
        {"th", "Thai"},    {"vi", "Vietnamese"},
    };
    return languages;
}

QString LanguageManager::currentLanguage() const
{
    const QString language = m_store.stringForKey(key(PreferenceKeys::AppLanguage));
    return language.isEmpty() ? QStringLiteral("en") : language;
}

QString LanguageManager::interfaceLanguage() const
{
    const QString language = m_store.stringForKey(key(PreferenceKeys::AppLanguage));
    return language.isEmpty() ? startupLanguage() : language;
}

QString LanguageManager::nativeLanguageName(const QString& code) const
{
    for (const Language& language : supportedLanguages()) {
        if (code == QLatin1String(language.code))
            return m_bundle.localizedStringForKeyInLanguage(
                QString::fromLatin1(language.englishName), code);
    }
    return code;
}

void LanguageManager::storeLanguage(const QString& code)
{
    m_store.setObject(code, key(PreferenceKeys::AppLanguage));
    m_store.setObject(QStringList{code}, key(PreferenceKeys::AppleLanguages));
    m_store.synchronize();
}

void LanguageManager::changeLanguage(const QString& code)
{
    const QString oldLanguage = currentLanguage();
    storeLanguage(code);
    m_center.post(
        QString::fromLatin1(Notifications::LanguageDidChangeNotification), QVariant(),
        {{QStringLiteral("language"), code}, {QStringLiteral("oldLanguage"), oldLanguage}});
}

void LanguageManager::setupInitialLanguage(const QString& code)
{
    storeLanguage(code);
    m_bundle.activateLanguageOverride();
}

QString LanguageManager::supportedLanguageForTag(const QString& tag)
{
    const QString t = tag.trimmed().toLower().replace(QLatin1Char('_'), QLatin1Char('-'));
    if (t.isEmpty())
        return {};
    if (t == QLatin1String("zh") || t.startsWith(QLatin1String("zh-hans")) ||
        t.startsWith(QLatin1String("zh-cn")) || t.startsWith(QLatin1String("zh-sg")))
        return QStringLiteral("zh-Hans");
    const QString base = t.section(QLatin1Char('-'), 0, 0);
    for (const Language& l : supportedLanguages()) {
        if (base == QLatin1String(l.code))
            return QString::fromLatin1(l.code);
    }
    return {};
}

QStringList LanguageManager::systemLanguages() const
{
    return m_systemLanguages ? *m_systemLanguages : QLocale::system().uiLanguages();
}

QString LanguageManager::startupLanguage() const
{
    QStringList candidates =
        m_store.objectForKey(key(PreferenceKeys::AppleLanguages)).toStringList();
    candidates += systemLanguages();
    for (const QString& tag : candidates) {
        const QString code = supportedLanguageForTag(tag);
        if (!code.isEmpty() && LanguageBundle::hasTranslation(code))
            return code;
    }
    return QStringLiteral("en");
}

bool LanguageManager::installStartupTranslator()
{
    removeStartupTranslator();
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(LanguageBundle::translationResource(startupLanguage())))
        return false;
    if (!QCoreApplication::installTranslator(translator.get()))
        return false;
    m_translator = std::move(translator);

    // Qt names Simplified Chinese zh_CN; a missing file leaves its dialogs in English.
    const QString language = startupLanguage();
    const QString qtName = language == QLatin1String("zh-Hans") ? QStringLiteral("zh_CN") : language;
    auto qtTranslator = std::make_unique<QTranslator>();
    if (language != QLatin1String("en") &&
        qtTranslator->load(QStringLiteral("qtbase_") + qtName,
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
        QCoreApplication::installTranslator(qtTranslator.get()))
        m_qtTranslator = std::move(qtTranslator);
    return true;
}

void LanguageManager::removeStartupTranslator()
{
    if (m_translator) {
        // The shared manager outlives the application object at exit.
        if (QCoreApplication::instance())
            QCoreApplication::removeTranslator(m_translator.get());
        m_translator.reset();
    }
    if (m_qtTranslator) {
        if (QCoreApplication::instance())
            QCoreApplication::removeTranslator(m_qtTranslator.get());
        m_qtTranslator.reset();
    }
}
