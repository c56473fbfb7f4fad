// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QList>
#include <QString>
#include <utility>

class QComboBox;

// Asks which language a plain reference text is read in before its
// sentences are placed on the recording. Accepted is "Align"; rejected
// (also Escape) is "Don't Align".
class AlignLanguageDialog : public QDialog
{
    Q_OBJECT
public:
    // Each language's code and name, in the order shown; `chosen` is
    // selected first (the first language when it is not among them).
    // `sourceName` names the text.
    using Language = std::pair<QString, QString>;
    AlignLanguageDialog(const QList<Language>& languages, const QString& chosen,
                        const QString& sourceName, QWidget* parent);

    // The code of the language selected.
    QString language() const;

private:
    QComboBox* m_languages = nullptr;
};
