// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/MprisState.h"

#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"

#include <QDBusObjectPath>
#include <QFileInfo>
#include <QUrl>

MprisState::MprisState(NotificationCenter& center, std::function<QString()> currentPath,
                       QObject* parent)
    : QObject(parent), m_center(center), m_currentPath(std::move(currentPath))
{
    const auto follow = [this](const char* name, const char* status, bool fileOpen) {
        m_center.addObserver(name, this, [this, status, fileOpen](const auto&) {
            update(QLatin1String(status), fileOpen);
        });
    };
    follow(Notifications::AudioPlaying, "Playing", true);
    follow(Notifications::AudioPlaybackDidResume, "Playing", true);
    follow(Notifications::AudioPlaybackDidPause, "Paused", true);
    follow(Notifications::AudioPlayStop, "Stopped", true);
    follow(Notifications::AudioFileDidClose, "Stopped", false);
}

MprisState::~MprisState()
{
    m_center.removeObserver(this);
}

void MprisState::update(const QString& status, bool fileOpen)
{
    QVariantMap changes;
    if (status != m_status) {
        m_status = status;
        changes.insert(QStringLiteral("PlaybackStatus"), status);
    }
    const QString path = fileOpen && m_currentPath ? m_currentPath() : QString();
    if (path != m_path) {
        m_path = path;
        m_metadata.clear();
        if (!path.isEmpty()) {
            // A new id per file, so that controllers see a new track.
            m_metadata.insert(QStringLiteral("mpris:trackid"),
                              QVariant::fromValue(QDBusObjectPath(
                                  QStringLiteral("/com/kelmora/Kelmora/track/%1").arg(++m_track))));
            m_metadata.insert(QStringLiteral("xesam:title"), QFileInfo(path).fileName());
            m_metadata.insert(QStringLiteral("xesam:url"),
                              QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toString());
        }
        changes.insert(QStringLiteral("Metadata"), m_metadata);
    }
    if (!changes.isEmpty())
        emit changed(changes);
}
