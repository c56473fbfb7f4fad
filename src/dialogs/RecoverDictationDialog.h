// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QString>

class QListWidget;

// Lists the set-aside versions of a lesson's dictation, newest first, each by
// when it was set aside and the first words typed in it; the learner picks
// one to bring back.
class RecoverDictationDialog : public QDialog
{
    Q_OBJECT
public:
    struct Version
    {
        QString path;    // the set-aside file
        QString when;    // already formatted for the interface language
        QString preview; // the first typed words, may be empty
    };

    RecoverDictationDialog(const QList<Version>& versions, QWidget* parent);

    // The chosen file after the dialog was accepted.
    QString chosenPath() const;

private:
    QListWidget* m_list = nullptr;
    QList<Version> m_versions;
};
