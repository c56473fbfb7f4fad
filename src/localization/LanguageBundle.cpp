// SPDX-License-Identifier: GPL-3.0-or-later
#include "localization/LanguageBundle.h"

#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"

#include <QCoreApplication>
#include <QFile>
#include <QMutexLocker>
#include <QTranslator>

LanguageBundle& LanguageBundle::main()
{
    static LanguageBundle bundle(Defaults::standard());
    return bundle;
}

LanguageBundle::LanguageBundle(Defaults& store) : m_store(store) {}

LanguageBundle::~LanguageBundle() = default;

void LanguageBundle::activateLanguageOverride()
{
    QMutexLocker lock(&m_mutex);
    m_override = true;
}

bool LanguageBundle::isLanguageOverrideActive() const
{
    QMutexLocker lock(&m_mutex);
    return m_override;
}

QString LanguageBundle::translationResource(const QString& languageCode)
{
    return QStringLiteral(":/i18n/kelmora_%1.qm").arg(languageCode);
}

bool LanguageBundle::hasTranslation(const QString& languageCode)
{
    return !languageCode.isEmpty() && !languageCode.contains(QLatin1Char('/')) &&
           QFile::exists(translationResource(languageCode));
}

const QTranslator* LanguageBundle::translatorFor(const QString& languageCode) const
{
    // Called with m_mutex held.
    auto it = m_translators.find(languageCode);
    if (it == m_translators.end()) {
        std::unique_ptr<QTranslator> translator;
        if (hasTranslation(languageCode)) {
            translator = std::make_unique<QTranslator>();
            if (!translator->load(translationResource(languageCode)))
                translator.reset();
        }
        it = m_translators.emplace(languageCode, std::move(translator)).first;
    }
    return it->second.get();
}

QString LanguageBundle::localizedStringForKeyInLanguage(const QString& key,
                                                        const QString& languageCode) const
{
    QMutexLocker lock(&m_mutex);
    const QTranslator* translator = translatorFor(languageCode);
    const QString text = translator ? translator->translate(MainTable, key.toUtf8().constData())
                                    : QString();
    return text.isEmpty() ? key : text;
}

QString LanguageBundle::localizedStringForKey(const QString& key, const QString& value,
                                              const QString& table) const
{
    const QByteArray context = table.isEmpty() ? QByteArray(MainTable) : table.toUtf8();
    const QByteArray source = key.toUtf8();
    const QString fallback = value.isEmpty() ? key : value;

    QString language;
    {
        QMutexLocker lock(&m_mutex);
        if (m_override)
            language = m_store.stringForKey(QString::fromLatin1(PreferenceKeys::AppLanguage));
        if (!language.isEmpty()) {
            const QTranslator* translator = translatorFor(language);
            if (!translator)
                return QString();
            const QString text = translator->translate(context.constData(), source.constData());
            return text.isEmpty() ? fallback : text;
        }
    }
    // The inherited lookup: whatever translation the application installed.
    const QString text = QCoreApplication::translate(context.constData(), source.constData());
    return text == key ? fallback : text;
}
