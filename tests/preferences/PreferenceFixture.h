// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A preferences window of its own for each test, over a fresh settings file,
// with an engine, a notification centre and a language manager of its own.

#include "audio/AudioManager.h"
#include "audio/NullAudioOutput.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "localization/LanguageBundle.h"
#include "localization/LanguageManager.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/PreferenceViewController.h"
#include "support/TestSupport.h"

#include <QApplication>
#include <gtest/gtest.h>
#include <QStringList>
#include <QTest>
#include <QVariant>
#include <functional>
#include <memory>

struct PreferenceFixture
{
    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    std::unique_ptr<AudioManager> engine;
    std::unique_ptr<LanguageBundle> bundle;
    std::unique_ptr<LanguageManager> language;
    std::unique_ptr<PreferenceViewController> window;
    // Names of the notifications posted, in order, with their objects.
    QStringList posted;
    QVariantList objects;

    // The desktop's languages are English unless a test names others.
    explicit PreferenceFixture(const std::function<void(Defaults&)>& before = {},
                               const QStringList& systemLanguages = {QStringLiteral("en-US")})
    {
        regDefaultPreference(defaults.store());
        if (before)
            before(defaults.store());
        engine = std::make_unique<AudioManager>(defaults.store(), center);
        engine->setOutputFactory(
            [] { return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::RealTime); });
        bundle = std::make_unique<LanguageBundle>(defaults.store());
        language = std::make_unique<LanguageManager>(defaults.store(), center, *bundle);
        language->setSystemLanguages(systemLanguages);
        window = std::make_unique<PreferenceViewController>(*engine, defaults.store(), center,
                                                            *language);
        for (const char* name : {Notifications::TableBackgroundColorDidChange,
                                 Notifications::DictationTextColorDidChange,
                                 Notifications::DictationTextFontDidChange,
                                 Notifications::ShowLineNumbersDidChange,
                                 Notifications::ShowAudioWaveDidChange,
                                 Notifications::ShowStatusBarDidChange,
                                 Notifications::CheckOptionsDidChange,
                                 Notifications::PracticeOptionsDidChange,
                                 Notifications::LanguageDidChangeNotification}) {
            center.addObserver(name, window.get(), [this](const NotificationCenter::Notification& n) {
                posted << n.name;
                objects << n.object;
            });
        }
        window->show();
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window.get()))
            ADD_FAILURE() << "the preferences window never became active";
    }
    ~PreferenceFixture()
    {
        window.reset();
        QApplication::processEvents();
    }

    template <typename T>
    T* control(const char* name)
    {
        return window->findChild<T*>(QLatin1String(name));
    }
};
