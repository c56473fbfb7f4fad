// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/CheckAppUpdate.h"

#include "common/Log.h"
#include "localization/CountryCode.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "update/UpdateAlerts.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <limits>
#include <memory>

namespace {

constexpr int kDayMs = 86400 * 1000;
constexpr int kTransferTimeoutMs = 15 * 1000;
// A lookup answer is a few kilobytes; anything far larger is not one.
constexpr qint64 kMaxAnswerBytes = 4 * 1024 * 1024;

bool isWebUrl(const QUrl& url)
{
    const QString scheme = url.scheme().toLower();
    return url.isValid() && !url.host().isEmpty() &&
           (scheme == QLatin1String("http") || scheme == QLatin1String("https"));
}

// The integer value of a version part as earlier versions read it: leading
// spaces, an optional sign, then digits up to the first other character;
// no digits read as 0, and values beyond 64 bits saturate.
qint64 integerValue(const QString& s)
{
    qsizetype i = 0;
    while (i < s.size() && s[i].isSpace())
        ++i;
    bool negative = false;
    if (i < s.size() && (s[i] == QLatin1Char('+') || s[i] == QLatin1Char('-')))
        negative = s[i++] == QLatin1Char('-');
    qint64 value = 0;
    for (; i < s.size() && s[i] >= QLatin1Char('0') && s[i] <= QLatin1Char('9'); ++i) {
        const int digit = s[i].unicode() - '0';
        if (value > (std::numeric_limits<qint64>::max() - digit) / 10)
            return negative ? std::numeric_limits<qint64>::min()
                            : std::numeric_limits<qint64>::max();
        value = value * 10 + digit;
    }
    return negative ? -value : value;
}

QString jsonText(const QJsonValue& v)
{
    if (v.isString())
        return v.toString();
    if (v.isDouble())
        return v.toVariant().toString();
    return QString();
}

} // namespace

CheckAppUpdate::CheckAppUpdate(Defaults& store, UpdateAlerts& alerts, QObject* parent)
    : QObject(parent), m_store(store), m_alerts(alerts), m_network(new QNetworkAccessManager(this)),
      m_bundleIdentifier(QStringLiteral(KELMORA_APP_ID)),
      m_currentVersion(QStringLiteral(KELMORA_VERSION)), m_transferTimeoutMs(kTransferTimeoutMs)
{
    m_dailyTimer.setInterval(kDayMs);
    m_dailyTimer.setSingleShot(false);
    // Periodic checks stay quiet unless an update or an error is found.
    connect(&m_dailyTimer, &QTimer::timeout, this, [this] { checkForUpdates(false); });
}

CheckAppUpdate::~CheckAppUpdate() = default;

QString CheckAppUpdate::defaultLookupBaseUrl()
{
    return QStringLiteral(KELMORA_UPDATE_LOOKUP_URL);
}

QUrl CheckAppUpdate::lookupBaseUrl() const
{
    const QString configured =
        m_store.stringForKey(QString::fromLatin1(PreferenceKeys::UpdateLookupURL)).trimmed();
    if (!configured.isEmpty()) {
        const QUrl url(configured, QUrl::StrictMode);
        if (isWebUrl(url))
            return url;
        qCInfo(lcUpdate, "checkupdate:ignoring lookup address that is not http(s): %s",
               qPrintable(configured));
    }
    return QUrl(defaultLookupBaseUrl());
}

QUrl CheckAppUpdate::lookupUrl(const QUrl& base, const QString& bundleIdentifier,
                               const QString& country, qint64 unixTime)
{
    QString address = base.toString(QUrl::FullyEncoded | QUrl::RemoveQuery | QUrl::RemoveFragment);
    if (!address.endsWith(QLatin1Char('/')))
        address += QLatin1Char('/');
    // One arg() call: a chained one would also fill "%3" inside an encoded value.
    address +=
        QStringLiteral("lookup?bundleId=%1&country=%2&t=%3")
            .arg(QString::fromLatin1(QUrl::toPercentEncoding(bundleIdentifier)),
                 QString::fromLatin1(QUrl::toPercentEncoding(country)), QString::number(unixTime));
    return QUrl::fromEncoded(address.toLatin1(), QUrl::StrictMode);
}

void CheckAppUpdate::setupUpdateChecker()
{
    m_dailyTimer.start();
    checkForUpdates(true);
}

void CheckAppUpdate::checkForUpdates(bool reportLatest)
{
    const QString country = getCountryCodeForCurrentLanguage(true);
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    QNetworkRequest request(lookupUrl(lookupBaseUrl(), m_bundleIdentifier, country, now));
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setTransferTimeout(m_transferTimeoutMs);

    QNetworkReply* reply = m_network->get(request);
    auto tooLarge = std::make_shared<bool>(false);
    connect(reply, &QNetworkReply::downloadProgress, reply,
            [reply, tooLarge](qint64 received, qint64) {
                if (received > kMaxAnswerBytes && !*tooLarge) {
                    *tooLarge = true;
                    reply->abort();
                }
            });
    connect(reply, &QNetworkReply::finished, this, [this, reply, reportLatest, tooLarge] {
        reply->deleteLater();
        handleReply(reply, reportLatest, *tooLarge);
        emit checkFinished();
    });
}

void CheckAppUpdate::handleReply(QNetworkReply* reply, bool reportLatest, bool tooLarge)
{
    // An HTTP error status is a failed exchange too: its body is an error
    // page, not an answer, whatever it looks like.
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool httpError = status >= 400;
    const bool failed = reply->error() != QNetworkReply::NoError;
    if (tooLarge || failed || httpError) {
        QString description;
        if (tooLarge)
            description =
                QStringLiteral("The answer is larger than %1 bytes.").arg(kMaxAnswerBytes);
        else if (reply->error() == QNetworkReply::OperationCanceledError)
            description = QStringLiteral("The request timed out.");
        else
            description = reply->errorString();
        qCInfo(lcUpdate, "Error checking for updates: %s", qPrintable(description));
        m_alerts.showErrMsg(LocalizedString(Texts::ErrorCheckingForUpdates),
                            LocalizedString(description));
        return;
    }
    handleAnswer(reply->readAll(), reportLatest);
}

void CheckAppUpdate::handleAnswer(const QByteArray& body, bool reportLatest)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(body, &parseError);
    QString description;
    if (parseError.error != QJsonParseError::NoError)
        description = QStringLiteral("%1 at offset %2")
                          .arg(parseError.errorString(), QString::number(parseError.offset));
    else if (!document.isObject())
        description = QStringLiteral("The answer is not a JSON object.");
    if (!description.isEmpty()) {
        qCInfo(lcUpdate, "Error parsing updates JSON: %s", qPrintable(description));
        m_alerts.showErrMsg(LocalizedString(Texts::ErrorParsingUpdatesJson),
                            LocalizedString(description));
        return;
    }

    const QJsonArray results = document.object().value(QLatin1String("results")).toArray();
    if (results.isEmpty()) {
        reportAlreadyLatest(reportLatest);
        return;
    }
    const QJsonObject result = results.first().toObject();
    const QString storeVersion =
        paddedStoreVersion(jsonText(result.value(QLatin1String("version"))));
    qCInfo(lcUpdate, "checkupdate:storeVer=%s,curVer=%s", qPrintable(storeVersion),
           qPrintable(m_currentVersion));
    if (!isVersionGreaterThan(storeVersion, m_currentVersion)) {
        reportAlreadyLatest(reportLatest);
        return;
    }
    const QString trackText = jsonText(result.value(QLatin1String("trackViewUrl")));
    QUrl trackUrl(trackText, QUrl::StrictMode);
    if (!isWebUrl(trackUrl)) {
        qCInfo(lcUpdate, "checkupdate:ignoring trackViewUrl that is not http(s): %s",
               qPrintable(trackText));
        trackUrl = QUrl();
    }
    m_alerts.showUpdateAlert(
        updateOffer(storeVersion, jsonText(result.value(QLatin1String("releaseNotes"))), trackUrl));
}

void CheckAppUpdate::reportAlreadyLatest(bool reportLatest)
{
    if (!reportLatest)
        return;
    qCInfo(lcUpdate, "The app is already the latest version;");
    m_alerts.showMsg(QString(), LocalizedString(Texts::AlreadyLatestVersion));
}

bool CheckAppUpdate::isVersionGreaterThan(const QString& a, const QString& b)
{
    const QStringList pa = a.split(QLatin1Char('.'));
    const QStringList pb = b.split(QLatin1Char('.'));
    const qsizetype common = std::min(pa.size(), pb.size());
    for (qsizetype i = 0; i < common; ++i) {
        const qint64 x = integerValue(pa[i]);
        const qint64 y = integerValue(pb[i]);
        if (x != y)
            return x > y;
    }
    return pa.size() > pb.size();
}

QString CheckAppUpdate::paddedStoreVersion(const QString& version)
{
    if (version.split(QLatin1Char('.')).size() == 2)
        return version + QStringLiteral(".0");
    return version;
}

UpdateOffer CheckAppUpdate::updateOffer(const QString& version, const QString& releaseNotes,
                                        const QUrl& trackUrl)
{
    UpdateOffer offer;
    offer.version = version;
    offer.releaseNotes = releaseNotes;
    offer.trackUrl = trackUrl;
    offer.messageText = LocalizedString(Texts::UpdateAvailable);
    const QString notes =
        releaseNotes.isEmpty() ? LocalizedString(Texts::NoReleaseNotes) : releaseNotes;
    offer.informativeText =
        stringWithFormat(LocalizedString(Texts::UpdateAvailableMessage), {version, notes});
    offer.updateButton = LocalizedString(Texts::Update);
    offer.laterButton = LocalizedString(Texts::Later);
    return offer;
}
