// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>

class AudioManager;
class MprisState;
class MprisWindow;
class NotificationCenter;

// Kelmora on the session bus as an MPRIS 2 player: the desktop's media keys
// (a headset button, a foot pedal) step through segments while the learner
// types. The same bus name keeps Kelmora to one instance: a second start
// hands its files to the window that already runs.
class MprisService : public QObject
{
    Q_OBJECT
public:
    static constexpr const char* BusName = "org.mpris.MediaPlayer2.kelmora";
    static constexpr const char* ObjectPath = "/org/mpris/MediaPlayer2";

    enum class Claim
    {
        Owned,
        OwnedElsewhere,
        NoBus
    };

    MprisService(AudioManager& engine, NotificationCenter& center,
                 const QDBusConnection& bus = QDBusConnection::sessionBus(),
                 QObject* parent = nullptr);
    ~MprisService() override;

    // Puts the player on the bus and asks for the name. Calls that arrive
    // before a window is attached wait in the event loop.
    Claim claimBusName();
    // Gives the files (made absolute) to the instance that owns the name and
    // raises its window; false when it did not answer.
    bool handOverToRunningInstance(const QStringList& paths);
    // Lets the name go, so that a new process started in this one's place
    // (a restart for a new language) owns it instead of handing over to us.
    void releaseBusName();
    void attachWindow(MprisWindow* window);

    // What the bus calls reach.
    void playPause();
    void play();
    void pause();
    void next();
    void previous();
    void raise();
    void quit();
    void openUri(const QString& uri);

    QString playbackStatus() const;
    QVariantMap metadata() const;
    double rate() const;

private:
    void propertiesChanged(const QVariantMap& properties);

    AudioManager& m_engine;
    QDBusConnection m_bus;
    MprisState* m_state;
    // The window reached through its interface, while its widget lives.
    MprisWindow* window() const;
    MprisWindow* m_window = nullptr;
    QPointer<QWidget> m_widget;
    bool m_registered = false;
    bool m_ownsName = false;
};
