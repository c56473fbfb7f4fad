// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QFileDialog;
class QMessageBox;
class QWidget;

// The alerts and file panels shared by the session and the preferences. Every
// alert is a QMessageBox, so assistive technology sees a dialog with named
// buttons; a sheet is window-modal on its window, a modal alert blocks.
class Dialogs
{
public:
    // Why a file panel gave no file.
    struct FileSelectionError
    {
        QString domain = QStringLiteral("FileSelectionError");
        int code = 0; // the panel's response
        QString localizedDescription = QStringLiteral("User cancelled file selection");
    };
    using SelectionHandler =
        std::function<void(std::optional<QString> path, std::optional<FileSelectionError> error)>;

    // A warning with one "OK" button, as a sheet on the main window (modal when
    // there is none), shown from the main thread whichever thread asks.
    static void showMsg(const QString& title, const QString& message);

    // A warning with a confirm button (Return) and a cancel button (Escape), as
    // a sheet on the window; the completion hears on the main thread whether
    // the first button was chosen.
    static void showAlertWithTitle(const QString& title, const QString& message,
                                   const QString& confirmTitle, const QString& cancelTitle,
                                   QWidget* window, std::function<void(bool)> completion);

    // A modal alert with the title as its text and one button.
    static void showModalAlert(const QString& title, const QString& message,
                               const QString& buttonTitle, bool warning = false);

    // A free-standing panel choosing one existing file with one of the
    // extensions; the handler hears the path, or a FileSelectionError.
    static void selectFileWithExtensions(const QStringList& extensions,
                                         const SelectionHandler& handler);

    // A modal panel choosing one existing transcript (.lrc): the chosen path,
    // or nothing when it was cancelled.
    static std::optional<QString>
    asyncSelectTranscript(std::optional<FileSelectionError>* error = nullptr);

    // A save panel for a transcript, window-modal on the window, proposing the
    // name; it may name a new file or an existing one (after asking). Deletes
    // itself when closed; the caller connects to it and opens it.
    static QFileDialog* transcriptSavePanel(QWidget* window, const QString& proposedName);

    // The name filter of a file panel for the extensions ("Audio (*.mp3 *.MP3 …)").
    static QString nameFilterForExtensions(const QString& label, const QStringList& extensions);
    // "Transcripts (*.lrc)", in the interface language.
    static QString transcriptNameFilter();

    // The window alerts are shown on: the main window, else the active window.
    static QWidget* mainWindow();
    static void setMainWindow(QWidget* window);
};
