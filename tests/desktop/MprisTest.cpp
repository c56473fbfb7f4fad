// SPDX-License-Identifier: GPL-3.0-or-later
// The media keys over a private session bus (the binary runs under
// dbus-run-session): gdbus, as a desktop's media-key daemon would, calls the
// player, and reads what it says about playback.

#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "desktop/MprisService.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QProcess>
#include <QSignalSpy>
#include <QUrl>
#include <gtest/gtest.h>

using TestSupport::fixture;

namespace {

// Notes the player's PropertiesChanged signals as another client sees them.
class PropertiesWatcher : public QObject
{
    Q_OBJECT
public:
    QList<QVariantMap> changes;

public slots:
    void propertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList&)
    {
        if (interface == QLatin1String("org.mpris.MediaPlayer2.Player"))
            changes << changed;
    }
};

class MprisTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDBusConnection::sessionBus().isConnected()) << "no private session bus";
        ASSERT_EQ(service.claimBusName(), MprisService::Claim::Owned);
        service.attachWindow(&h.window());
    }

    // One call through gdbus, answered while this process's event loop runs.
    static QString gdbus(const QString& method, const QStringList& arguments = {})
    {
        QProcess process;
        QSignalSpy finished(&process, &QProcess::finished);
        process.start(QStringLiteral("gdbus"),
                      QStringList{"call", "--session", "--dest", MprisService::BusName,
                                  "--object-path", MprisService::ObjectPath, "--method", method} +
                          arguments);
        EXPECT_TRUE(finished.wait(10000)) << method.toStdString();
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

    static QString property(const QString& name)
    {
        return gdbus("org.freedesktop.DBus.Properties.Get",
                     {"org.mpris.MediaPlayer2.Player", name});
    }

    void playerCall(const QString& method)
    {
        gdbus("org.mpris.MediaPlayer2.Player." + method);
        QCoreApplication::processEvents();
    }

    WindowHarness h;
    MprisService service{h.engine(), h.center()};
};

} // namespace

TEST_F(MprisTest, MediaKeysStepThroughSegmentsAndPausePlayback)
{
    ASSERT_TRUE(h.open(fixture("speech.mp3")));
    ASSERT_GT(h.engine().numberOfSegments(), 2);
    ASSERT_TRUE(waitFor([&] { return h.engine().isPlaying(); }));

    playerCall("Next");
    EXPECT_EQ(h.session().currentSegmentIndex(), 1);
    playerCall("Next");
    EXPECT_EQ(h.session().currentSegmentIndex(), 2);
    playerCall("Previous");
    EXPECT_EQ(h.session().currentSegmentIndex(), 1);

    playerCall("PlayPause");
    EXPECT_FALSE(h.engine().isPlaying());
    playerCall("Pause"); // already paused: stays so
    EXPECT_FALSE(h.engine().isPlaying());
    playerCall("Play");
    EXPECT_TRUE(h.engine().isPlaying());
    playerCall("Play"); // already playing: stays so
    EXPECT_TRUE(h.engine().isPlaying());
    playerCall("Pause");
    EXPECT_FALSE(h.engine().isPlaying());
    playerCall("PlayPause");
    EXPECT_TRUE(h.engine().isPlaying());
    EXPECT_EQ(h.session().currentSegmentIndex(), 1);
}

TEST_F(MprisTest, StatusAndTitleFollowTheEngine)
{
    PropertiesWatcher watcher;
    QDBusConnection observer =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, "mpris-observer");
    ASSERT_TRUE(observer.connect(MprisService::BusName, MprisService::ObjectPath,
                                 "org.freedesktop.DBus.Properties", "PropertiesChanged", &watcher,
                                 SLOT(propertiesChanged(QString, QVariantMap, QStringList))));
    EXPECT_EQ(property("PlaybackStatus"), "(<'Stopped'>,)");
    EXPECT_EQ(property("Metadata"), "(<@a{sv} {}>,)");

    ASSERT_TRUE(h.open(fixture("speech.wav")));
    ASSERT_TRUE(waitFor([&] { return h.engine().isPlaying(); }));
    EXPECT_EQ(property("PlaybackStatus"), "(<'Playing'>,)");
    const QString metadata = property("Metadata");
    EXPECT_TRUE(metadata.contains("'xesam:title': <'speech.wav'>")) << metadata.toStdString();
    EXPECT_TRUE(metadata.contains("'mpris:trackid': <objectpath '/com/kelmora/Kelmora/track/"))
        << metadata.toStdString();

    h.session().togglePlayPause();
    EXPECT_EQ(property("PlaybackStatus"), "(<'Paused'>,)");
    ASSERT_TRUE(waitFor([&] {
        return !watcher.changes.isEmpty() &&
               watcher.changes.last().value("PlaybackStatus") == "Paused";
    }));
    // The title was announced when the file started playing.
    bool titled = false;
    for (const QVariantMap& change : watcher.changes) {
        if (!change.contains("Metadata"))
            continue;
        const auto announced =
            qdbus_cast<QVariantMap>(change.value("Metadata").value<QDBusArgument>());
        titled |= announced.value("xesam:title") == "speech.wav";
    }
    EXPECT_TRUE(titled);

    h.engine().closeAudioFile();
    EXPECT_EQ(property("PlaybackStatus"), "(<'Stopped'>,)");
    EXPECT_EQ(property("Metadata"), "(<@a{sv} {}>,)");
    QDBusConnection::disconnectFromBus("mpris-observer");
}

TEST_F(MprisTest, RaiseShowsTheWindowAndOpenUriOpensByTheDirectRoad)
{
    h.window().hide();
    gdbus("org.mpris.MediaPlayer2.Raise");
    EXPECT_TRUE(waitFor([&] { return h.window().isVisible(); }));

    const QString path = fixture("speech.flac");
    gdbus("org.mpris.MediaPlayer2.Player.OpenUri", {QUrl::fromLocalFile(path).toString()});
    EXPECT_TRUE(waitFor([&] { return h.session().hasSegmentsShown(); }, 60000));
    EXPECT_EQ(h.session().currentAudioPath(), path);

    // Only local files are opened.
    gdbus("org.mpris.MediaPlayer2.Player.OpenUri", {"https://example.org/lesson.mp3"});
    EXPECT_EQ(h.session().currentAudioPath(), path);
}

#include "MprisTest.moc"
