// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

// What the update check found, with the alert's texts already in the
// interface language.
struct UpdateOffer
{
    QString version;         // the store's version, padded ("2.1" -> "2.1.0")
    QString releaseNotes;    // as published; may be empty
    QUrl trackUrl;           // the store page; empty unless http or https
    QString messageText;     // "Update Available"
    QString informativeText; // "Version %@ is available.\n\nRelease Notes:\n%@"
    QString updateButton;    // "Update": opens trackUrl
    QString laterButton;     // "Later": does nothing
};

// The three alerts of the update check, implemented by the main window (as
// sheets on it). Calls arrive on the main thread; every text is ready to show.
class UpdateAlerts
{
public:
    virtual ~UpdateAlerts() = default;
    virtual void showUpdateAlert(const UpdateOffer& offer) = 0;
    // An informational alert with one "OK" button.
    virtual void showMsg(const QString& title, const QString& message) = 0;
    // The same in warning style.
    virtual void showErrMsg(const QString& title, const QString& message) = 0;
};
