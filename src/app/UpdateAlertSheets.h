// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "update/UpdateAlerts.h"

#include <QPointer>
#include <QWidget>
#include <functional>

// The update check's three alerts as window-modal message boxes on the main
// window, so the learner can keep the window in view while one is open.
class UpdateAlertSheets : public UpdateAlerts
{
public:
    using UrlOpener = std::function<bool(const QUrl&)>;

    // The opener defaults to the desktop's browser (QDesktopServices).
    explicit UpdateAlertSheets(QWidget* window, UrlOpener opener = {});

    void showUpdateAlert(const UpdateOffer& offer) override;
    void showMsg(const QString& title, const QString& message) override;
    void showErrMsg(const QString& title, const QString& message) override;

private:
    QPointer<QWidget> m_window;
    UrlOpener m_opener;
};
