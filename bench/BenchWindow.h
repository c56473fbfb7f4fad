// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AutoSaveQueue.h"
#include "app/MainWindowController.h"
#include "app/SessionServices.h"
#include "audio/AudioManager.h"
#include "audio/NullAudioOutput.h"
#include "common/NotificationCenter.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "transcript/DocumentManager.h"
#include "transcript/TranscriptionManager.h"

#include <QTemporaryDir>
#include <memory>

namespace Bench {

// A main window of its own, shown at 1280x800: fresh settings, documents and
// per-user data in a temporary folder, an engine playing into a silent output that keeps
// real time.
class BenchWindow
{
public:
    BenchWindow()
    {
        // The typing journals of a run go with its folder.
        qputenv("XDG_DATA_HOME", m_dir.path().toLocal8Bit());
        m_engine.setOutputFactory(
            [] { return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::RealTime); });
        m_window = std::make_unique<MainWindowController>(SessionServices{
            m_engine, m_center, m_settings.store, m_transcriptions, m_documents, m_autoSave});
        m_window->resize(1280, 800);
        m_window->show();
    }

    MainWindowController& window() { return *m_window; }
    AudioManager& engine() { return m_engine; }
    Defaults& defaults() { return m_settings.store; }
    QString filePath(const QString& name) const { return m_dir.filePath(name); }

private:
    // The defaults are registered before the engine reads them.
    struct Settings
    {
        explicit Settings(const QString& path) : store(path) { regDefaultPreference(store); }
        Defaults store;
    };

    QTemporaryDir m_dir;
    Settings m_settings{m_dir.filePath(QStringLiteral("settings.ini"))};
    NotificationCenter m_center;
    DocumentManager m_documents{m_dir.path()};
    AutoSaveQueue m_autoSave;
    AudioManager m_engine{m_settings.store, m_center};
    TranscriptionManager m_transcriptions{[this] { return m_engine.getTotalDuration(); }};
    std::unique_ptr<MainWindowController> m_window;
};

} // namespace Bench
