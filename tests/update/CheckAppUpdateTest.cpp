// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/CheckAppUpdate.h"

#include "localization/CountryCode.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/LocalHttpServer.h"
#include "support/TestSupport.h"
#include "update/UpdateAlerts.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QNetworkProxy>
#include <QSignalSpy>
#include <QThread>
#include <QUrlQuery>
#include <gtest/gtest.h>

using TestSupport::LogCapture;
using TestSupport::TempDefaults;

namespace {

// Records the alerts the window would show.
struct RecordingAlerts : UpdateAlerts
{
    struct Shown
    {
        QString kind; // "update", "msg" or "error"
        QString title;
        QString message;
    };
    QList<Shown> shown;
    QList<UpdateOffer> offers;
    bool offMainThread = false;

    void note(const QString& kind, const QString& title, const QString& message)
    {
        offMainThread |= QThread::currentThread() != QCoreApplication::instance()->thread();
        shown << Shown{kind, title, message};
    }
    void showUpdateAlert(const UpdateOffer& offer) override
    {
        offers << offer;
        note("update", offer.messageText, offer.informativeText);
    }
    void showMsg(const QString& title, const QString& message) override
    {
        note("msg", title, message);
    }
    void showErrMsg(const QString& title, const QString& message) override
    {
        note("error", title, message);
    }
};

class CheckAppUpdateTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // The test talks to 127.0.0.1 only, whatever proxy the machine names.
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        ASSERT_TRUE(server.listen());
        defaults.store().setObject(server.baseUrl(), PreferenceKeys::UpdateLookupURL);
        checker.setCurrentVersion("2.1");
    }

    // Runs one check against the server's answer and waits for it to be handled.
    void check(bool reportLatest)
    {
        QSignalSpy finished(&checker, &CheckAppUpdate::checkFinished);
        checker.checkForUpdates(reportLatest);
        ASSERT_TRUE(finished.wait(10000));
        EXPECT_FALSE(alerts.offMainThread);
    }

    static QByteArray answerWith(const QByteArray& version, const QByteArray& extra = {})
    {
        return R"({"resultCount":1,"results":[{"version":")" + version + '"' + extra + "}]}";
    }

    TempDefaults defaults;
    LocalHttpServer server;
    RecordingAlerts alerts;
    CheckAppUpdate checker{defaults.store(), alerts};
};

} // namespace

TEST_F(CheckAppUpdateTest, RequestNamesTheAppCountryAndTimeAndBypassesCaches)
{
    server.answer(200, R"({"resultCount":0,"results":[]})");
    checker.setBundleIdentifier("com.kelmora.Test App");
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    check(true);
    const qint64 after = QDateTime::currentSecsSinceEpoch();

    ASSERT_EQ(server.requests().size(), 1);
    const LocalHttpServer::Request& r = server.requests().first();
    EXPECT_EQ(r.method, "GET");
    const QUrl url(QString::fromLatin1(r.target));
    EXPECT_EQ(url.path(), "/lookup");
    const QUrlQuery query(url);
    EXPECT_EQ(query.queryItems(QUrl::FullyDecoded).size(), 3);
    EXPECT_EQ(query.queryItemValue("bundleId", QUrl::FullyDecoded), "com.kelmora.Test App");
    EXPECT_EQ(query.queryItemValue("country"),
              countryCodeForLanguage(preferredSystemLanguage(), true));
    const qint64 t = query.queryItemValue("t").toLongLong();
    EXPECT_GE(t, before);
    EXPECT_LE(t, after);
    EXPECT_TRUE(r.headerLines.contains("cache-control: no-cache"));
}

TEST_F(CheckAppUpdateTest, EmptyResultsReportTheLatestVersionOnlyWhenAsked)
{
    server.answer(200, R"({"resultCount":0,"results":[]})");
    {
        LogCapture log;
        check(true);
        ASSERT_EQ(alerts.shown.size(), 1);
        EXPECT_EQ(alerts.shown[0].kind, "msg");
        EXPECT_EQ(alerts.shown[0].title, "");
        EXPECT_EQ(alerts.shown[0].message, "App is already the latest version");
        EXPECT_TRUE(log.contains("The app is already the latest version;"));
    }
    alerts.shown.clear();
    {
        LogCapture log;
        check(false);
        EXPECT_TRUE(alerts.shown.isEmpty());
        EXPECT_TRUE(log.lines().isEmpty());
    }
    // An answer without "results" at all is no different.
    server.answer(200, "{}");
    check(false);
    EXPECT_TRUE(alerts.shown.isEmpty());
}

TEST_F(CheckAppUpdateTest, ANewerVersionIsOfferedEvenToAQuietCheck)
{
    server.answer(200, answerWith("2.1", R"(,"releaseNotes":"Faster seeking.",)"
                                         R"("trackViewUrl":"https://example.org/kelmora?x=1")"));
    LogCapture log;
    check(false);
    // The store's 2.1 is padded to 2.1.0 and so beats the current 2.1.
    EXPECT_TRUE(log.contains("checkupdate:storeVer=2.1.0,curVer=2.1"));
    ASSERT_EQ(alerts.offers.size(), 1);
    const UpdateOffer& offer = alerts.offers[0];
    EXPECT_EQ(offer.version, "2.1.0");
    EXPECT_EQ(offer.releaseNotes, "Faster seeking.");
    EXPECT_EQ(offer.trackUrl, QUrl("https://example.org/kelmora?x=1"));
    EXPECT_EQ(offer.messageText, "Update Available");
    EXPECT_EQ(offer.informativeText,
              "Version 2.1.0 is available.\n\nRelease Notes:\nFaster seeking.");
    EXPECT_EQ(offer.updateButton, "Update");
    EXPECT_EQ(offer.laterButton, "Later");
}

TEST_F(CheckAppUpdateTest, MissingNotesAndNonWebStorePagesAreHandled)
{
    server.answer(200, answerWith("3.0.0", R"(,"trackViewUrl":"file:///etc/passwd")"));
    LogCapture log;
    check(false);
    ASSERT_EQ(alerts.offers.size(), 1);
    EXPECT_TRUE(alerts.offers[0].trackUrl.isEmpty());
    EXPECT_EQ(alerts.offers[0].informativeText,
              "Version 3.0.0 is available.\n\nRelease Notes:\nNo release notes available");
    EXPECT_TRUE(
        log.contains("checkupdate:ignoring trackViewUrl that is not http(s): file:///etc/passwd"));

    server.answer(200, answerWith("3.0.0", R"x(,"trackViewUrl":"javascript:alert(1)")x"));
    check(false);
    ASSERT_EQ(alerts.offers.size(), 2);
    EXPECT_TRUE(alerts.offers[1].trackUrl.isEmpty());
}

TEST_F(CheckAppUpdateTest, MalformedAnswersShowTheParsingErrorEvenToAQuietCheck)
{
    const QList<QPair<int, QByteArray>> answers = {
        {200, "{\"results\": [ oops"},
        {200, "[1, 2, 3]"},
        {200, ""},
    };
    for (const auto& [status, body] : answers) {
        alerts.shown.clear();
        server.answer(status, body);
        LogCapture log;
        check(false);
        ASSERT_EQ(alerts.shown.size(), 1) << body.constData();
        EXPECT_EQ(alerts.shown[0].kind, "error");
        EXPECT_EQ(alerts.shown[0].title, "Error parsing updates JSON");
        EXPECT_FALSE(alerts.shown[0].message.isEmpty());
        ASSERT_EQ(log.lines().size(), 1);
        EXPECT_TRUE(log.lines()[0].startsWith("Error parsing updates JSON: ")) << body.constData();
    }
}

TEST_F(CheckAppUpdateTest, TransportFailuresShowTheTransportErrorEvenToAQuietCheck)
{
    // An error status fails the check whatever its body says; so does an
    // answer too large to read.
    const QList<QPair<int, QByteArray>> answers = {
        {500, "<html>Internal Server Error</html>"},
        {500, R"({"results":[]})"},
        {404, "{}"},
        {200, QByteArray(5 * 1024 * 1024, ' ') + "{}"},
    };
    for (const auto& [status, body] : answers) {
        alerts.shown.clear();
        server.answer(status, body);
        check(false);
        ASSERT_EQ(alerts.shown.size(), 1) << status;
        EXPECT_EQ(alerts.shown[0].kind, "error");
        EXPECT_EQ(alerts.shown[0].title, "Error checking for updates");
    }

    // A service that never answers is given up on after the transfer timeout.
    EXPECT_EQ(checker.transferTimeoutMs(), 15000);
    checker.setTransferTimeoutMs(200);
    alerts.shown.clear();
    server.answer(0, {});
    {
        LogCapture log;
        check(false);
        ASSERT_EQ(alerts.shown.size(), 1);
        EXPECT_TRUE(log.contains("Error checking for updates: The request timed out."));
    }

    // Nothing listens on the port any more.
    alerts.shown.clear();
    server.close();
    LogCapture log;
    check(false);
    ASSERT_EQ(alerts.shown.size(), 1);
    EXPECT_TRUE(alerts.shown[0].message.contains("refused", Qt::CaseInsensitive))
        << alerts.shown[0].message.toStdString();
    EXPECT_TRUE(log.contains("Error checking for updates: " + alerts.shown[0].message));
}

TEST_F(CheckAppUpdateTest, SetupChecksAtOnceAndSchedulesADailyQuietCheck)
{
    server.answer(200, R"({"results":[]})");
    EXPECT_FALSE(checker.isDailyCheckScheduled());
    QSignalSpy finished(&checker, &CheckAppUpdate::checkFinished);
    checker.setupUpdateChecker();
    ASSERT_TRUE(finished.wait(10000));
    EXPECT_TRUE(checker.isDailyCheckScheduled());
    EXPECT_EQ(checker.dailyCheckIntervalMs(), 86400 * 1000);
    ASSERT_EQ(alerts.shown.size(), 1); // the first check reports "already the latest"
    EXPECT_EQ(server.requests().size(), 1);
}

TEST(CheckAppUpdate, LookupAddressComesFromTheSettingWhenItIsAWebAddress)
{
    TempDefaults t;
    RecordingAlerts alerts;
    CheckAppUpdate checker(t.store(), alerts);
    EXPECT_EQ(checker.lookupBaseUrl(), QUrl(CheckAppUpdate::defaultLookupBaseUrl()));
    // Kelmora's own release feed, never a third party's store.
    EXPECT_TRUE(CheckAppUpdate::defaultLookupBaseUrl().startsWith("https://kelmora.app/"));

    t.store().setObject("http://127.0.0.1:8080/store/", PreferenceKeys::UpdateLookupURL);
    EXPECT_EQ(checker.lookupBaseUrl(), QUrl("http://127.0.0.1:8080/store/"));
    LogCapture log;
    t.store().setObject("file:///tmp/answers/", PreferenceKeys::UpdateLookupURL);
    EXPECT_EQ(checker.lookupBaseUrl(), QUrl(CheckAppUpdate::defaultLookupBaseUrl()));
    EXPECT_EQ(log.lines().size(), 1);

    const auto encoded = [](const QUrl& url) {
        return url.toString(QUrl::FullyEncoded).toStdString();
    };
    EXPECT_EQ(encoded(CheckAppUpdate::lookupUrl(QUrl("https://h.example/api"), "a.b&c=d", "us",
                                                1700000000)),
              "https://h.example/api/lookup?bundleId=a.b%26c%3Dd&country=us&t=1700000000");
    EXPECT_EQ(encoded(CheckAppUpdate::lookupUrl(QUrl("https://h.example/"), "id", "gb", 5)),
              "https://h.example/lookup?bundleId=id&country=gb&t=5");
}

TEST(CheckAppUpdate, VersionsCompareByIntegerPartsWithOnlyTheStoreSidePadded)
{
    const auto newer = [](const char* store, const char* current) {
        return CheckAppUpdate::isVersionGreaterThan(CheckAppUpdate::paddedStoreVersion(store),
                                                    current);
    };
    EXPECT_TRUE(newer("1.10", "1.9.3"));
    EXPECT_TRUE(newer("1.2.0", "1.2"));
    EXPECT_FALSE(newer("1.2", "1.2.1"));
    EXPECT_TRUE(newer("2.1", "2.1")); // 2.1.0 against 2.1
    EXPECT_FALSE(newer("2.1.0", "2.1.0"));
    EXPECT_FALSE(newer("1.9.9", "1.10"));
    EXPECT_TRUE(newer("10", "9.9.9"));

    EXPECT_EQ(CheckAppUpdate::paddedStoreVersion("2.1"), "2.1.0");
    EXPECT_EQ(CheckAppUpdate::paddedStoreVersion("2"), "2");
    EXPECT_EQ(CheckAppUpdate::paddedStoreVersion("2.1.3"), "2.1.3");
    EXPECT_EQ(CheckAppUpdate::paddedStoreVersion(""), "");

    // Parts read as their leading integer: text reads as 0, huge values saturate.
    EXPECT_FALSE(CheckAppUpdate::isVersionGreaterThan("2.0beta", "2.0"));
    EXPECT_TRUE(CheckAppUpdate::isVersionGreaterThan("2.1rc", "2.0"));
    EXPECT_FALSE(CheckAppUpdate::isVersionGreaterThan("x.y", "0.0"));
    EXPECT_TRUE(CheckAppUpdate::isVersionGreaterThan("99999999999999999999999", "1"));
    EXPECT_FALSE(CheckAppUpdate::isVersionGreaterThan("-1", "0"));
}
