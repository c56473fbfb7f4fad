// SPDX-License-Identifier: GPL-3.0-or-later
// A lesson's reference text: attached from a file, kept in the store beside
// the transcript, laid over the segments, taken away.

#include "app/FileIdentity.h"
#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "common/Log.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "common/ThreadHandOff.h"
#include "dialogs/Dialogs.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "reference/ReferenceMapping.h"
#include "reference/ReferenceReader.h"
#include "reference/ReferenceStore.h"
#include "views/CheckBar.h"
#include "views/TranscriptionTableView.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>
#include <QTimer>
#include <QUndoStack>
#include <cmath>

namespace {

const char* messageFor(ReferenceReadError::Kind kind)
{
    using Kind = ReferenceReadError::Kind;
    switch (kind) {
    case Kind::Unreadable:
        return Texts::ReferenceUnreadable;
    case Kind::UnknownFormat:
        return Texts::ReferenceUnknownFormat;
    case Kind::TooLarge:
        return Texts::ReferenceTooLarge;
    case Kind::NotText:
        return Texts::ReferenceNotText;
    case Kind::NotUtf8:
        return Texts::ReferenceNotUtf8;
    case Kind::Empty:
        return Texts::ReferenceEmpty;
    case Kind::NotWebVtt:
        return Texts::ReferenceNotWebVtt;
    case Kind::NothingUsable:
        return Texts::ReferenceNothingUsable;
    }
    return Texts::ReferenceUnreadable;
}

} // namespace

void ViewController::buildCheckBar()
{
    m_checkBar = new CheckBar(this);
    m_checkBar->setAccessibleDescription(LocalizedString(Texts::ToolbarCheck));
    m_checkBar->hide();
    connect(m_table, &TranscriptionTableView::rowTextChanged, this, &ViewController::rowTextChanged);
    connect(m_table, &TranscriptionTableView::currentRowChanged, this,
            &ViewController::showCheckBarForRow);
    m_checkBarRefresh = new QTimer(this);
    m_checkBarRefresh->setSingleShot(true);
    m_checkBarRefresh->setInterval(0);
    connect(m_checkBarRefresh, &QTimer::timeout, this, [this] {
        if (m_reference)
            showCheckBarForRow(m_table->currentIndex());
    });
    m_center.addObserver(Notifications::CheckOptionsDidChange, this,
                         [this](const NotificationCenter::Notification&) { checkOptionsChanged(); });
    // The bar wears the table's look; the table takes a change first.
    for (const char* name : {Notifications::TableBackgroundColorDidChange,
                             Notifications::DictationTextColorDidChange,
                             Notifications::DictationTextFontDidChange}) {
        m_center.addObserver(name, this, [this](const NotificationCenter::Notification&) {
            QMetaObject::invokeMethod(this, &ViewController::refreshCheckBarLook,
                                      Qt::QueuedConnection);
        });
    }
}

std::optional<QString> ViewController::lessonIdentity() const
{
    if (m_currentAudioPath.isEmpty())
        return std::nullopt;
    return FileIdentity::uniqueIdentifierForFileAtPath(m_currentAudioPath);
}

bool ViewController::hasReferenceText() const
{
    return m_reference.has_value();
}

void ViewController::attachReferenceText()
{
    if (m_segmentsShown == 0 || isProcessing())
        return;
    auto* panel = new QFileDialog(window(),
                                  LocalizedString(Texts::MenuAttachReference).remove(u'&'));
    panel->setObjectName(QStringLiteral("referencePanel"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setAcceptMode(QFileDialog::AcceptOpen);
    panel->setNameFilter(Dialogs::nameFilterForExtensions(LocalizedString(Texts::ReferenceFiles),
                                                          ReferenceReader::extensions()));
    panel->setDirectory(QFileInfo(m_currentAudioPath).absolutePath());
    panel->setWindowModality(Qt::WindowModal);
    connect(panel, &QFileDialog::fileSelected, this, &ViewController::attachReferenceTextFrom);
    panel->open();
}

void ViewController::attachReferenceTextFrom(const QString& path)
{
    if (path.isEmpty() || m_segmentsShown == 0)
        return;
    // A big file is read on a worker so that the window stays live; the
    // result only counts for the lesson it was read for.
    const double duration = m_engine.duration();
    const QString audioPath = m_currentAudioPath;
    const quint64 read = ++m_referenceReads;
    QPointer<ViewController> self(this);
    startHandedOver(QThreadPool::globalInstance(), [self, path, audioPath, duration, read] {
        ReferenceReadError error;
        std::optional<ReferenceText> reference = ReferenceReader::readFile(path, duration, &error);
        // The application outlives any window, so it carries the result back.
        postHandedOver(qApp, [self, path, audioPath, reference = std::move(reference), error,
                              read] {
            ViewController* controller = self.data();
            if (controller && read == controller->m_referenceReads)
                controller->referenceFileRead(path, audioPath, reference, error);
        });
    });
}

void ViewController::referenceFileRead(const QString& path, const QString& audioPath,
                                       const std::optional<ReferenceText>& reference,
                                       const ReferenceReadError& error)
{
    if (audioPath != m_currentAudioPath)
        return;
    const QString name = QFileInfo(path).fileName();
    if (!reference) {
        qCWarning(lcReference, "%s", qUtf8Printable(error.message));
        Dialogs::showMsg(LocalizedString(Texts::CannotReadReference),
                         stringWithFormat(LocalizedString(messageFor(error.kind)), {name}));
        return;
    }
    const std::optional<QString> identity = lessonIdentity();
    QString storeError;
    if (!identity || !ReferenceStore(m_documents).save(*identity, *reference, &storeError)) {
        // Still checked against for this session; only keeping it failed.
        qCWarning(lcReference, "The reference text was not stored: %s", qUtf8Printable(storeError));
        Dialogs::showMsg(LocalizedString(Texts::CannotStoreReference), storeError);
    }
    qCInfo(lcReference, "Attached %s: %lld units", qUtf8Printable(name),
           qlonglong(reference->units().size()));
    stopAlignment();
    setReference(reference);
    // A text without times may have its sentences placed on the recording.
    if (!reference->isTimed())
        askAlignmentLanguage(QString());
}

void ViewController::removeReferenceText()
{
    if (!m_reference)
        return;
    ++m_referenceReads;
    stopAlignment();
    if (const std::optional<QString> identity = lessonIdentity()) {
        QString error;
        if (!ReferenceStore(m_documents).remove(*identity, &error))
            qCWarning(lcReference, "%s", qUtf8Printable(error));
    }
    setReference(std::nullopt);
}

void ViewController::loadLessonReference()
{
    ++m_referenceReads;
    stopAlignment();
    std::optional<ReferenceText> stored;
    if (const std::optional<QString> identity = lessonIdentity()) {
        QString error;
        stored = ReferenceStore(m_documents).load(*identity, &error);
        if (!error.isEmpty()) {
            // The lesson opens as without one; the file stays for a look.
            qCWarning(lcReference, "%s", qUtf8Printable(error));
            Dialogs::showMsg(LocalizedString(Texts::CannotReadReference), error);
        }
    }
    setReference(stored);
    // A lesson opened again: the starts its sentences placed with doubt are
    // marked again where no one moved them. After an import the edit that
    // brought the rows keeps the marks.
    if (m_cuttingEdits->count() == 0) {
        m_uncertainStarts = uncertainSentenceStarts();
        showUncertainStarts();
    }
}

QList<double> ViewController::uncertainSentenceStarts() const
{
    QList<double> starts;
    if (!m_reference || !m_reference->isAligned())
        return starts;
    // The store keeps starts to the millisecond; the cut put them on the frame.
    const SegmentList& segments = m_engine.segments();
    for (const ReferenceUnit& unit : m_reference->units()) {
        if (!unit.uncertain || !unit.start)
            continue;
        const qsizetype index = CuttingEdits::segmentAt(segments, *unit.start);
        for (qsizetype i : {index, index + 1}) {
            if (i > 0 && i < segments.size() &&
                std::abs(segments[i].start - *unit.start) <= CuttingEdits::kFrame)
                starts.append(segments[i].start);
        }
    }
    return starts;
}

void ViewController::setReference(std::optional<ReferenceText> reference)
{
    const bool changed = m_reference != reference;
    m_reference = std::move(reference);
    m_referenceBySegment =
        m_reference ? ReferenceMapping::map(*m_reference, m_engine.segments()) : QStringList();
    m_rowChecks.clear();
    m_checkedRows.clear();
    m_hints.clear();
    m_table->clearAllRowMarks();
    m_checkBar->setVisible(m_reference.has_value());
    if (m_reference) {
        refreshCheckBarLook();
        showCheckBarForRow(m_table->currentIndex() >= 0 ? m_table->currentIndex()
                                                        : m_currentSegmentIndex);
        refreshDueCount();
    }
    if (changed)
        emit referenceTextChanged(m_reference.has_value());
}
