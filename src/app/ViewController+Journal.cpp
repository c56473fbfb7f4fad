// SPDX-License-Identifier: GPL-3.0-or-later
// The typing journal of the lesson shown: every change of a row goes to it at
// once, it is replayed when the lesson opens, and a save drops what it wrote.

#include "app/ViewController.h"
#include "common/Log.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "transcript/TypingJournal.h"
#include "views/TranscriptionTableView.h"

#include <QDir>
#include <QPointer>
#include <QStatusBar>
#include <QTimer>

namespace {
// How long the status bar says that typing came back.
constexpr int kRecoveredMessageMs = 6000;
} // namespace

void ViewController::buildJournal()
{
    m_journalSyncTimer = new QTimer(this);
    m_journalSyncTimer->setInterval(int(TypingJournal::kSyncInterval.count()));
    connect(m_journalSyncTimer, &QTimer::timeout, this, [this] {
        if (m_journal)
            m_journal->syncIfDue();
    });
    connect(m_table, &TranscriptionTableView::rowTextChanged, this, [this](qint64 row) {
        if (m_journal && !m_replayingJournal)
            m_journal->append(int(row), m_table->mutableTranscriptions().value(row));
    });
}

void ViewController::openLessonJournal()
{
    closeLessonJournal();
    const std::optional<QString> identity = lessonIdentity();
    const QString name = identity ? TypingJournal::fileNameFor(*identity) : QString();
    if (name.isEmpty())
        return;
    m_journal =
        std::make_unique<TypingJournal>(QDir(TypingJournal::folderPath()).filePath(name));
    QPointer<ViewController> self(this);
    // The journal has logged its warning; the learner hears of it once.
    m_journal->setFailureHandler([self](const QString&) {
        if (self)
            self->m_statusBar->showMessage(LocalizedString(Texts::JournalFailed));
    });
    if (m_journal->state() != TypingJournal::State::Writing)
        m_statusBar->showMessage(LocalizedString(Texts::JournalFailed));
    m_journalSyncTimer->start();

    // What was typed after the last save comes back over what the store held.
    const QList<TypingJournal::Record>& records = m_journal->recovered().records;
    if (records.isEmpty())
        return;
    const QStringList before = m_table->mutableTranscriptions();
    QStringList rows = before;
    const TypingJournal::Applied applied = TypingJournal::apply(records, rows);
    int changed = 0;
    m_replayingJournal = true;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (rows[row] != before[row]) {
            m_table->updateTranscription(rows[row], row);
            ++changed;
        }
    }
    m_replayingJournal = false;
    if (changed == 0)
        return; // the store already held it all
    qCInfo(lcTranscript, "Recovered %d rows of typing from the journal (%d records, %d for rows "
                         "the lesson does not have)",
           changed, applied.applied, applied.pastEnd);
    m_statusBar->showMessage(LocalizedString(Texts::RecoveredTyping), kRecoveredMessageMs);
}

void ViewController::closeLessonJournal()
{
    m_journalSyncTimer->stop();
    m_journal.reset(); // syncs what is unsynced
}

void ViewController::journalAllRows()
{
    // Rows replaced all at once (cleared, imported) are journaled row by row,
    // so that a replay cannot bring back what they replaced.
    if (!m_journal)
        return;
    const QStringList& rows = m_table->mutableTranscriptions();
    for (qsizetype row = 0; row < rows.size(); ++row)
        m_journal->append(int(row), rows[row]);
    m_journal->sync();
}

void ViewController::syncJournal()
{
    if (m_journal)
        m_journal->sync();
}

quint64 ViewController::journalSequence() const
{
    return m_journal ? m_journal->lastSequence() : 0;
}

QString ViewController::journalPath() const
{
    return m_journal ? m_journal->path() : QString();
}

void ViewController::journalSaved(const QString& journalPath, quint64 sequence)
{
    // Only the records the save's snapshot held, of the journal it was taken from.
    if (m_journal && sequence > 0 && m_journal->path() == journalPath)
        m_journal->dropThrough(sequence);
}
