// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UpdateAlertSheets.h"

#include "common/Log.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>

namespace {

QMessageBox* makeSheet(QWidget* window, QMessageBox::Icon icon, const QString& title,
                       const QString& message)
{
    auto* box = new QMessageBox(window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setObjectName(QStringLiteral("updateAlert"));
    box->setIcon(icon);
    // An empty title would leave the dialog nameless for a screen reader.
    const QString name = title.isEmpty() ? message : title;
    box->setWindowTitle(name);
    box->setAccessibleName(name);
    box->setText(title.isEmpty() ? message : title);
    if (!title.isEmpty())
        box->setInformativeText(message);
    box->setWindowModality(window ? Qt::WindowModal : Qt::ApplicationModal);
    return box;
}

bool isWebAddress(const QUrl& url)
{
    const QString scheme = url.scheme().toLower();
    return url.isValid() && (scheme == QLatin1String("http") || scheme == QLatin1String("https"));
}

} // namespace

UpdateAlertSheets::UpdateAlertSheets(QWidget* window, UrlOpener opener)
    : m_window(window), m_opener(std::move(opener))
{
    if (!m_opener)
        m_opener = [](const QUrl& url) { return QDesktopServices::openUrl(url); };
}

void UpdateAlertSheets::showUpdateAlert(const UpdateOffer& offer)
{
    QMessageBox* box = makeSheet(m_window.data(), QMessageBox::Information, offer.messageText,
                                 offer.informativeText);
    QPushButton* update = box->addButton(offer.updateButton, QMessageBox::AcceptRole);
    QPushButton* later = box->addButton(offer.laterButton, QMessageBox::RejectRole);
    box->setDefaultButton(update);
    box->setEscapeButton(later);
    const QUrl url = offer.trackUrl;
    const UrlOpener opener = m_opener;
    QObject::connect(box, &QMessageBox::finished, box, [box, update, url, opener] {
        if (box->clickedButton() != update)
            return;
        // Only a web page is ever opened, whatever the answer named.
        if (!isWebAddress(url)) {
            qCInfo(lcApp, "checkupdate:no store page to open");
            return;
        }
        if (!opener(url))
            qCInfo(lcApp, "checkupdate:could not open %s", qPrintable(url.toString()));
    });
    box->open();
}

void UpdateAlertSheets::showMsg(const QString& title, const QString& message)
{
    QMessageBox* box = makeSheet(m_window.data(), QMessageBox::Information, title, message);
    box->addButton(LocalizedString(Texts::OK), QMessageBox::AcceptRole);
    box->open();
}

void UpdateAlertSheets::showErrMsg(const QString& title, const QString& message)
{
    QMessageBox* box = makeSheet(m_window.data(), QMessageBox::Warning, title, message);
    box->addButton(LocalizedString(Texts::OK), QMessageBox::AcceptRole);
    box->open();
}
