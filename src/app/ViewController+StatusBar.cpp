// SPDX-License-Identifier: GPL-3.0-or-later
// The status bar, the window title and the error alert.

#include "app/StatusText.h"
#include "app/ViewController.h"
#include "common/Log.h"
#include "dialogs/Dialogs.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

#include <QLabel>

QString ViewController::statusText() const
{
    return m_statusBarLabel->text();
}

void ViewController::updateStatusBar()
{
    if (isProcessing())
        return;
    QString text = m_currentAudioPath.isEmpty()
                       ? LocalizedString(Texts::NoAudioFileOpened)
                       : StatusText::build(StatusSnapshot::of(m_engine, m_currentAudioPath));
    if (m_practisingHard)
        text += QStringLiteral(" | ") + hardSentencesStatus();
    m_statusBarLabel->setText(text);
    m_statusBarLabel->setAccessibleName(text);
}

void ViewController::changeWindowTitle(const QString& title)
{
    QWidget* window = this->window();
    if (!window)
        return;
    window->setWindowTitle(title.isEmpty() ? LocalizedString(Texts::AppName) : title);
}

void ViewController::showError(const QString& title, const QString& message)
{
    qCInfo(lcApp, "Error: %s - %s", qUtf8Printable(title), qUtf8Printable(message));
    Dialogs::showModalAlert(title, message, QStringLiteral("OK"), true);
}
