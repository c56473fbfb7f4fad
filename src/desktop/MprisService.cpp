// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/MprisService.h"

#include "audio/AudioManager.h"
#include "common/Log.h"
#include "desktop/MprisPlayerAdaptor.h"
#include "desktop/MprisRootAdaptor.h"
#include "desktop/MprisState.h"
#include "desktop/MprisWindow.h"

#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFileInfo>
#include <QUrl>

namespace {

constexpr const char* PlayerInterface = "org.mpris.MediaPlayer2.Player";
// A running instance that does not answer within this is taken for gone.
constexpr int kHandOverTimeoutMs = 10000;

} // namespace

MprisService::MprisService(AudioManager& engine, NotificationCenter& center,
                           const QDBusConnection& bus, QObject* parent)
    : QObject(parent), m_engine(engine), m_bus(bus)
{
    m_state = new MprisState(
        center,
        [this]() -> QString {
            MprisWindow* shown = window();
            return shown ? shown->mprisAudioPath() : QString();
        },
        this);
    connect(m_state, &MprisState::changed, this, &MprisService::propertiesChanged);
    new MprisRootAdaptor(this);
    new MprisPlayerAdaptor(this);
}

MprisService::~MprisService()
{
    if (m_ownsName)
        m_bus.unregisterService(QLatin1String(BusName));
    if (m_registered)
        m_bus.unregisterObject(QLatin1String(ObjectPath));
}

MprisService::Claim MprisService::claimBusName()
{
    if (!m_bus.isConnected()) {
        qCInfo(lcDesktop, "mpris:no session bus, media keys are off");
        return Claim::NoBus;
    }
    // The object is there before the name, so no call finds the name without it.
    if (!m_registered)
        m_registered =
            m_bus.registerObject(QLatin1String(ObjectPath), this, QDBusConnection::ExportAdaptors);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        m_bus.interface()->registerService(QLatin1String(BusName),
                                           QDBusConnectionInterface::DontQueueService,
                                           QDBusConnectionInterface::DontAllowReplacement);
    if (reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered) {
        m_ownsName = true;
        return Claim::Owned;
    }
    if (m_bus.interface()->isServiceRegistered(QLatin1String(BusName)))
        return Claim::OwnedElsewhere;
    qCInfo(lcDesktop, "mpris:could not own %s: %s", BusName, qPrintable(reply.error().message()));
    return Claim::NoBus;
}

void MprisService::releaseBusName()
{
    if (!m_ownsName)
        return;
    m_bus.interface()->unregisterService(QLatin1String(BusName));
    m_ownsName = false;
}

bool MprisService::handOverToRunningInstance(const QStringList& paths)
{
    QDBusInterface player(QLatin1String(BusName), QLatin1String(ObjectPath),
                          QLatin1String(PlayerInterface), m_bus);
    QDBusInterface root(QLatin1String(BusName), QLatin1String(ObjectPath),
                        QStringLiteral("org.mpris.MediaPlayer2"), m_bus);
    player.setTimeout(kHandOverTimeoutMs);
    root.setTimeout(kHandOverTimeoutMs);
    for (const QString& path : paths) {
        const QString uri = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toString();
        const QDBusMessage answer = player.call(QStringLiteral("OpenUri"), uri);
        if (answer.type() == QDBusMessage::ErrorMessage) {
            qCInfo(lcDesktop, "mpris:the running instance did not take %s: %s", qPrintable(uri),
                   qPrintable(answer.errorMessage()));
            return false;
        }
        qCInfo(lcDesktop, "mpris:handed %s to the running instance", qPrintable(uri));
    }
    const QDBusMessage raised = root.call(QStringLiteral("Raise"));
    return raised.type() != QDBusMessage::ErrorMessage;
}

void MprisService::attachWindow(MprisWindow* window)
{
    m_window = window;
    m_widget = window ? window->mprisWidget() : nullptr;
}

MprisWindow* MprisService::window() const
{
    return m_widget ? m_window : nullptr;
}

void MprisService::playPause()
{
    if (MprisWindow* shown = window())
        shown->mprisTogglePlayPause();
}

void MprisService::play()
{
    if (!m_engine.isPlaying())
        playPause();
}

void MprisService::pause()
{
    if (m_engine.isPlaying())
        playPause();
}

void MprisService::next()
{
    if (MprisWindow* shown = window())
        shown->mprisNextSegment();
}

void MprisService::previous()
{
    if (MprisWindow* shown = window())
        shown->mprisPreviousSegment();
}

void MprisService::raise()
{
    QWidget* window = m_widget.data();
    if (!window)
        return;
    if (window->isMinimized())
        window->showNormal();
    else
        window->show();
    window->raise();
    window->activateWindow();
}

void MprisService::quit()
{
    // The window's own close asks about unsaved dictation first.
    if (QWidget* window = m_widget.data())
        window->close();
}

void MprisService::openUri(const QString& uri)
{
    const QUrl url(uri);
    MprisWindow* shown = window();
    if (!shown || !url.isLocalFile()) {
        qCInfo(lcDesktop, "mpris:not opening %s", qPrintable(uri));
        return;
    }
    // The direct road, as for a file given on the command line.
    shown->mprisOpenFile(url.toLocalFile());
    raise();
}

QString MprisService::playbackStatus() const
{
    return m_state->playbackStatus();
}

QVariantMap MprisService::metadata() const
{
    return m_state->metadata();
}

double MprisService::rate() const
{
    return m_engine.currentRate();
}

void MprisService::propertiesChanged(const QVariantMap& properties)
{
    if (!m_registered)
        return;
    QDBusMessage signal = QDBusMessage::createSignal(
        QLatin1String(ObjectPath), QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("PropertiesChanged"));
    signal << QLatin1String(PlayerInterface) << properties << QStringList();
    m_bus.send(signal);
}
