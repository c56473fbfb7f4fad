// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/Dialogs.h"

#include "common/Log.h"
#include "common/ThreadHandOff.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QThread>

namespace {

QPointer<QWidget>& mainWindowSlot()
{
    static QPointer<QWidget> window;
    return window;
}

// Runs the function on the main thread: at once when already there, else queued.
void onMainThread(std::function<void()> function)
{
    QCoreApplication* app = QCoreApplication::instance();
    if (!app)
        return;
    if (QThread::currentThread() == app->thread())
        function();
    else
        postHandedOver(app, std::move(function));
}

QMessageBox* makeWarning(const QString& title, const QString& message, QWidget* parent)
{
    auto* box = new QMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Warning);
    box->setWindowTitle(title);
    box->setText(title);
    box->setInformativeText(message);
    box->setAccessibleName(title);
    box->setAccessibleDescription(message);
    return box;
}

} // namespace

QWidget* Dialogs::mainWindow()
{
    if (mainWindowSlot())
        return mainWindowSlot();
    return QApplication::activeWindow();
}

void Dialogs::setMainWindow(QWidget* window)
{
    mainWindowSlot() = window;
}

void Dialogs::showMsg(const QString& title, const QString& message)
{
    onMainThread([title, message] {
        QWidget* window = mainWindow();
        QMessageBox* box = makeWarning(title, message, window);
        box->addButton(LocalizedString(Texts::OK), QMessageBox::AcceptRole);
        QObject::connect(box, &QMessageBox::finished, box,
                         [] { qCInfo(lcApp, "User clicked OK"); });
        if (window) {
            box->setWindowModality(Qt::WindowModal);
            box->open();
        } else {
            box->exec();
        }
    });
}

void Dialogs::showAlertWithTitle(const QString& title, const QString& message,
                                 const QString& confirmTitle, const QString& cancelTitle,
                                 QWidget* window, std::function<void(bool)> completion)
{
    onMainThread([=] {
        QMessageBox* box = makeWarning(title, message, window);
        QPushButton* confirm = box->addButton(confirmTitle, QMessageBox::AcceptRole);
        QPushButton* cancel = box->addButton(cancelTitle, QMessageBox::RejectRole);
        box->setDefaultButton(confirm);
        box->setEscapeButton(cancel);
        QObject::connect(box, &QMessageBox::finished, box, [box, confirm, completion] {
            const bool confirmed = box->clickedButton() == confirm;
            if (completion)
                postHandedOver(qApp, [completion, confirmed] { completion(confirmed); });
        });
        box->setWindowModality(window ? Qt::WindowModal : Qt::ApplicationModal);
        box->open();
    });
}

void Dialogs::showModalAlert(const QString& title, const QString& message,
                             const QString& buttonTitle, bool warning)
{
    onMainThread([=] {
        QMessageBox* box = makeWarning(title, message, mainWindow());
        box->setIcon(warning ? QMessageBox::Warning : QMessageBox::Critical);
        box->addButton(buttonTitle, QMessageBox::AcceptRole);
        box->exec();
    });
}

QString Dialogs::nameFilterForExtensions(const QString& label, const QStringList& extensions)
{
    QStringList patterns;
    for (const QString& extension : extensions) {
        patterns << QStringLiteral("*.") + extension.toLower();
        patterns << QStringLiteral("*.") + extension.toUpper();
    }
    return QStringLiteral("%1 (%2)").arg(label, patterns.join(QLatin1Char(' ')));
}

QString Dialogs::transcriptNameFilter()
{
    // One pattern: the panels match names without regard to case.
    return LocalizedString(Texts::TranscriptFiles) + QStringLiteral(" (*.lrc)");
}

std::optional<QString> Dialogs::asyncSelectTranscript(std::optional<FileSelectionError>* error)
{
    QFileDialog dialog(mainWindow());
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setNameFilter(transcriptNameFilter());
    const int result = dialog.exec();
    if (result == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
        return dialog.selectedFiles().constFirst();
    if (error) {
        FileSelectionError cancelled;
        cancelled.code = result;
        *error = cancelled;
    }
    return std::nullopt;
}

QFileDialog* Dialogs::transcriptSavePanel(QWidget* window, const QString& proposedName)
{
    auto* panel = new QFileDialog(window, LocalizedString(Texts::SaveTranscript));
    panel->setObjectName(QStringLiteral("transcriptSavePanel"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setFileMode(QFileDialog::AnyFile);
    panel->setNameFilter(transcriptNameFilter());
    panel->setDefaultSuffix(QStringLiteral("lrc"));
    panel->setLabelText(QFileDialog::Accept, LocalizedString(Texts::Save));
    panel->selectFile(proposedName);
    panel->setWindowModality(Qt::WindowModal);
    return panel;
}

void Dialogs::selectFileWithExtensions(const QStringList& extensions,
                                       const SelectionHandler& handler)
{
    auto* dialog = new QFileDialog(mainWindow());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setNameFilter(nameFilterForExtensions(LocalizedString(Texts::AudioFiles), extensions));
    QObject::connect(dialog, &QFileDialog::finished, dialog, [dialog, handler](int result) {
        if (result == QDialog::Accepted && !dialog->selectedFiles().isEmpty()) {
            handler(dialog->selectedFiles().constFirst(), std::nullopt);
            return;
        }
        FileSelectionError error;
        error.code = result;
        handler(std::nullopt, error);
    });
    dialog->setWindowModality(Qt::NonModal);
    dialog->open();
}
