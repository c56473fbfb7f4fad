// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/AlignLanguageDialog.h"

#include "localization/AlignTexts.h"
#include "localization/LocalizedString.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

AlignLanguageDialog::AlignLanguageDialog(const QList<Language>& languages, const QString& chosen,
                                         const QString& sourceName, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("alignLanguageDialog"));
    setWindowTitle(LocalizedString(Texts::AlignTitle));
    setAccessibleName(LocalizedString(Texts::AlignTitle));
    auto* layout = new QVBoxLayout(this);
    auto* prompt =
        new QLabel(stringWithFormat(LocalizedString(Texts::AlignPrompt), {sourceName}), this);
    prompt->setWordWrap(true);
    layout->addWidget(prompt);

    m_languages = new QComboBox(this);
    m_languages->setObjectName(QStringLiteral("alignLanguage"));
    for (const auto& [code, name] : languages)
        m_languages->addItem(name, code);
    m_languages->setCurrentIndex(std::max(0, m_languages->findData(chosen)));
    auto* form = new QFormLayout;
    auto* label = new QLabel(LocalizedString(Texts::AlignLanguage), this);
    label->setBuddy(m_languages);
    m_languages->setAccessibleName(LocalizedString(Texts::AlignLanguage).remove(u'&'));
    m_languages->setAccessibleDescription(prompt->text());
    form->addRow(label, m_languages);
    layout->addLayout(form);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* align =
        buttons->addButton(LocalizedString(Texts::AlignButton), QDialogButtonBox::AcceptRole);
    align->setObjectName(QStringLiteral("alignButton"));
    align->setDefault(true);
    buttons->addButton(LocalizedString(Texts::DontAlignButton), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("dontAlignButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    m_languages->setFocus();
}

QString AlignLanguageDialog::language() const
{
    return m_languages->currentData().toString();
}
