// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>

class Defaults;
class QNetworkAccessManager;
class QNetworkReply;
class UpdateAlerts;
struct UpdateOffer;

// Asks the store's lookup service whether a newer version is published and
// reports what it found through UpdateAlerts. The lookup address is the
// "UpdateLookupURL" setting (http or https), else the build's default.
class CheckAppUpdate : public QObject
{
    Q_OBJECT
public:
    CheckAppUpdate(Defaults& store, UpdateAlerts& alerts, QObject* parent = nullptr);
    ~CheckAppUpdate() override;

    // Sends one lookup. With `reportLatest`, "already the latest" is shown too;
    // errors and newer versions are always shown.
    void checkForUpdates(bool reportLatest);

    // A quiet check every day from now on, and one reported check at once.
    void setupUpdateChecker();
    bool isDailyCheckScheduled() const { return m_dailyTimer.isActive(); }
    int dailyCheckIntervalMs() const { return m_dailyTimer.interval(); }

    // Identity of this build; tests and packagers may override them.
    QString bundleIdentifier() const { return m_bundleIdentifier; }
    void setBundleIdentifier(const QString& id) { m_bundleIdentifier = id; }
    QString currentVersion() const { return m_currentVersion; }
    void setCurrentVersion(const QString& version) { m_currentVersion = version; }

    // How long a lookup may wait without any data arriving before it fails
    // with the error alert (15 s).
    int transferTimeoutMs() const { return m_transferTimeoutMs; }
    void setTransferTimeoutMs(int ms) { m_transferTimeoutMs = ms; }

    static QString defaultLookupBaseUrl();
    QUrl lookupBaseUrl() const;
    // base + "lookup?bundleId=%@&country=%@&t=%d"
    static QUrl lookupUrl(const QUrl& base, const QString& bundleIdentifier, const QString& country,
                          qint64 unixTime);

    // Part-wise integer comparison of "1.10.0" style versions; with equal
    // common parts the one with more parts is greater.
    static bool isVersionGreaterThan(const QString& a, const QString& b);
    // A store version of exactly two parts gets ".0" appended.
    static QString paddedStoreVersion(const QString& version);
    // The update alert for a version and its notes, in the interface language.
    static UpdateOffer updateOffer(const QString& version, const QString& releaseNotes,
                                   const QUrl& trackUrl);

signals:
    // After each lookup's answer (or failure) has been handled.
    void checkFinished();

private:
    void handleReply(QNetworkReply* reply, bool reportLatest, bool tooLarge);
    void handleAnswer(const QByteArray& body, bool reportLatest);
    void reportAlreadyLatest(bool reportLatest);

    Defaults& m_store;
    UpdateAlerts& m_alerts;
    QNetworkAccessManager* m_network;
    QTimer m_dailyTimer;
    QString m_bundleIdentifier;
    QString m_currentVersion;
    int m_transferTimeoutMs;
};
