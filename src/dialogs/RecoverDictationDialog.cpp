// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/RecoverDictationDialog.h"

#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

RecoverDictationDialog::RecoverDictationDialog(const QList<Version>& versions, QWidget* parent)
    : QDialog(parent), m_versions(versions)
{
    setWindowTitle(LocalizedString(Texts::RecoverTitle));
    auto* layout = new QVBoxLayout(this);
    auto* prompt = new QLabel(LocalizedString(Texts::RecoverPrompt), this);
    prompt->setWordWrap(true);
    layout->addWidget(prompt);

    m_list = new QListWidget(this);
    m_list->setAccessibleName(LocalizedString(Texts::RecoverTitle));
    for (const Version& version : versions) {
        const QString text = version.preview.isEmpty()
                                 ? version.when
                                 : version.when + QStringLiteral(" \u2014 ") + version.preview;
        m_list->addItem(text);
    }
    m_list->setCurrentRow(0);
    prompt->setBuddy(m_list);
    layout->addWidget(m_list);

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(LocalizedString(Texts::RecoverButton), QDialogButtonBox::AcceptRole)
        ->setDefault(true);
    buttons->addButton(LocalizedString(Texts::Cancel), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    layout->addWidget(buttons);
    m_list->setFocus();
    resize(520, 320);
}

QString RecoverDictationDialog::chosenPath() const
{
    const int row = m_list->currentRow();
    return row >= 0 && row < m_versions.size() ? m_versions[row].path : QString();
}
