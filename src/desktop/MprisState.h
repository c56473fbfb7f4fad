// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>
#include <functional>

class NotificationCenter;

// What the desktop's media controls are told about playback: the MPRIS
// PlaybackStatus and Metadata, kept in step with the engine's notifications.
class MprisState : public QObject
{
    Q_OBJECT
public:
    // `currentPath` names the file the window shows (empty when none).
    MprisState(NotificationCenter& center, std::function<QString()> currentPath,
               QObject* parent = nullptr);
    ~MprisState() override;

    // "Playing", "Paused" or "Stopped".
    QString playbackStatus() const { return m_status; }
    // mpris:trackid, xesam:title (the file's name) and xesam:url; empty with
    // no file.
    QVariantMap metadata() const { return m_metadata; }

signals:
    // The Player properties that changed, by name, with their new values.
    void changed(const QVariantMap& properties);

private:
    void update(const QString& status, bool fileOpen);

    NotificationCenter& m_center;
    std::function<QString()> m_currentPath;
    QString m_status = QStringLiteral("Stopped");
    QString m_path;
    QVariantMap m_metadata;
    int m_track = 0;
};
