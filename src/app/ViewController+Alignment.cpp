// SPDX-License-Identifier: GPL-3.0-or-later
// A plain reference text placed on the recording: the lesson's language is
// asked, the aligner runs on a worker behind a progress dialog, and the
// sentences it placed replace the plain text. The plain text is attached
// first, so a refusal, a cancel or a failure leaves it as it was.

#include "align/AlignmentLanguages.h"
#include "align/SentenceAligner.h"
#include "app/ViewController.h"
#include "common/Log.h"
#include "common/ThreadHandOff.h"
#include "dialogs/AlignLanguageDialog.h"
#include "dialogs/Dialogs.h"
#include "localization/AlignTexts.h"
#include "localization/LanguageBundle.h"
#include "localization/LanguageManager.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "reference/ReferenceMapping.h"
#include "reference/ReferenceStore.h"

#include <QCoreApplication>
#include <QDialog>
#include <QProgressDialog>
#include <QStatusBar>
#include <QThreadPool>
#include <algorithm>
#include <cmath>

namespace {

// The sentences to place: an aligned reference's units are its sentences.
QStringList sentencesOf(const ReferenceText& reference)
{
    if (!reference.isAligned())
        return ReferenceMapping::sentences(reference.units());
    QStringList sentences;
    for (const ReferenceUnit& unit : reference.units())
        sentences.append(unit.text);
    return sentences;
}

} // namespace

bool ViewController::canAlignReference() const
{
    return m_segmentsShown > 0 && !isProcessing() && m_reference && !m_alignCancel &&
           (m_reference->isAligned() || !m_reference->isTimed());
}

void ViewController::alignReferenceAgain()
{
    if (canAlignReference() && !m_alignQuestion)
        askAlignmentLanguage(m_reference->language());
}

void ViewController::askAlignmentLanguage(const QString& language)
{
    QList<AlignLanguageDialog::Language> languages;
    for (const AlignmentLanguage& known : AlignmentLanguages::available())
        languages.append({known.code, known.name});
    if (languages.isEmpty() || !m_reference)
        return;
    QString chosen = language;
    if (!AlignmentLanguages::isKnown(chosen)) {
        // The interface language the learner has, not the system's.
        const QString interface =
            LanguageManager(m_defaults, m_center, LanguageBundle::main()).interfaceLanguage();
        chosen = AlignmentLanguages::guess(sentencesOf(*m_reference).join(u' '), interface);
    }
    auto* dialog = new AlignLanguageDialog(languages, chosen, m_reference->sourceName(), window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    m_alignQuestion = dialog;
    // Answered, it is gone for the session though deleted only later; the
    // typing goes on where it was.
    m_focusBeforeAligning = window()->focusWidget();
    connect(dialog, &QDialog::finished, this, [this](int answer) {
        m_alignQuestion.clear();
        if (answer == QDialog::Rejected)
            giveBackAlignmentFocus();
    });
    // Only for the reference it was asked about; Don't Align changes nothing.
    connect(dialog, &QDialog::accepted, this,
            [this, dialog, lesson = m_currentAudioPath, read = m_referenceReads] {
                if (m_currentAudioPath == lesson && m_referenceReads == read && canAlignReference())
                    alignReference(dialog->language());
            });
    dialog->open();
}

void ViewController::alignReference(const QString& language)
{
    const QStringList sentences = sentencesOf(*m_reference);
    qCInfo(lcReference, "Aligning %lld sentences in %s", qlonglong(sentences.size()),
           qUtf8Printable(language));
    auto cancel = std::make_shared<std::atomic<bool>>(false);
    m_alignCancel = cancel;

    auto* progress = new QProgressDialog(LocalizedString(Texts::Aligning),
                                         LocalizedString(Texts::Cancel), 0, 100, window());
    progress->setObjectName(QStringLiteral("alignProgress"));
    progress->setWindowTitle(LocalizedString(Texts::AlignTitle));
    progress->setAccessibleName(LocalizedString(Texts::Aligning));
    progress->setAttribute(Qt::WA_DeleteOnClose);
    progress->setWindowModality(Qt::WindowModal);
    progress->setAutoClose(false);
    progress->setAutoReset(false);
    progress->setMinimumDuration(0);
    progress->setValue(0);
    // Closing the dialog says "canceled" too: only the first one counts.
    connect(progress, &QProgressDialog::canceled, this, [this, progress, cancel] {
        progress->disconnect(this);
        qCInfo(lcReference, "Alignment cancelled");
        *cancel = true;
        m_alignCancel.reset();
        progress->close();
        giveBackAlignmentFocus();
    });
    m_alignProgress = progress;
    progress->open();

    QPointer<ViewController> self(this);
    QPointer<QProgressDialog> shown(progress);
    startHandedOver(QThreadPool::globalInstance(), [self, shown, cancel, sentences, language,
                                                    audioPath = m_currentAudioPath] {
        int percent = -1;
        const auto report = [&](double fraction) {
            const int now = int(std::lround(std::clamp(fraction, 0.0, 1.0) * 100.0));
            if (now == percent)
                return;
            percent = now;
            postHandedOver(qApp, [shown, now] {
                if (QProgressDialog* dialog = shown.data())
                    dialog->setValue(now);
            });
        };
        QString error;
        std::optional<AlignedSentences> aligned =
            SentenceAligner::align(audioPath, sentences, language, report, cancel.get(), &error);
        // The application outlives any window, so it carries the result back.
        postHandedOver(qApp, [self, cancel, language, aligned = std::move(aligned), error] {
            ViewController* controller = self.data();
            if (controller && controller->m_alignCancel == cancel && !*cancel)
                controller->referenceAligned(aligned, language, error);
        });
    });
}

void ViewController::referenceAligned(const std::optional<AlignedSentences>& sentences,
                                      const QString& language, const QString& error)
{
    m_alignCancel.reset();
    if (m_alignProgress) {
        m_alignProgress->disconnect(this);
        m_alignProgress->close();
    }
    giveBackAlignmentFocus();
    if (!m_reference) // gone meanwhile; nothing to replace
        return;
    if (!sentences) {
        qCWarning(lcReference, "Alignment failed: %s", qUtf8Printable(error));
        Dialogs::showMsg(LocalizedString(Texts::CannotAlign),
                         stringWithFormat(LocalizedString(Texts::CannotAlignMessage), {error}));
        return;
    }
    ReferenceText reference =
        ReferenceText::aligned(m_reference->sourceName(), *sentences, language);
    const std::optional<QString> identity = lessonIdentity();
    QString storeError;
    if (!identity || !ReferenceStore(m_documents).save(*identity, reference, &storeError)) {
        // Still used for this session; only keeping it failed.
        qCWarning(lcReference, "The aligned reference was not stored: %s",
                  qUtf8Printable(storeError));
        Dialogs::showMsg(LocalizedString(Texts::CannotStoreReference), storeError);
    }
    const auto uncertain =
        std::count_if(sentences->cbegin(), sentences->cend(),
                      [](const AlignedSentence& sentence) { return sentence.uncertain; });
    qCInfo(lcReference, "Aligned %lld sentences, %lld uncertain", qlonglong(sentences->size()),
           qlonglong(uncertain));
    setReference(std::move(reference));
    m_statusBar->showMessage(
        stringWithFormat(LocalizedString(Texts::AlignedStatus),
                         {QString::number(sentences->size()), QString::number(uncertain)}),
        5000);
}

void ViewController::stopAlignment()
{
    if (m_alignCancel)
        *m_alignCancel = true;
    m_alignCancel.reset();
    // Deleted rather than closed: neither answer may reach the session.
    delete m_alignQuestion.data();
    delete m_alignProgress.data();
}

void ViewController::giveBackAlignmentFocus()
{
    QWidget* before = m_focusBeforeAligning.data();
    m_focusBeforeAligning.clear();
    if (before && before->isVisible())
        before->setFocus(Qt::OtherFocusReason);
}
