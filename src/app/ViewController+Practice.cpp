// SPDX-License-Identifier: GPL-3.0-or-later
// The practice record of the lesson shown: checks, hints and time recorded
// and kept beside the transcript, the rows' tooltips, the reviews that are
// due, and Practise Hard Sentences.

#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "common/Clock.h"
#include "common/Log.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "practice/HardSentences.h"
#include "practice/PracticeStore.h"
#include "preferences/PracticePreferences.h"
#include "reference/CheckSummary.h"
#include "views/CheckBar.h"
#include "views/TranscriptionTableView.h"

#include <QPointer>
#include <QStatusBar>
#include <cmath>

namespace {

// Time is written with the next check or hint, or after this long.
constexpr int kSecondsBetweenTimeSaves = 30;
constexpr int kMessageMs = 5000;

QString count(qsizetype n)
{
    return QString::number(n);
}

QString percentText(double score)
{
    return QString::number(CheckSummary::percent(score)) + QLatin1Char('%');
}

QString durationText(double seconds)
{
    const auto whole = static_cast<qint64>(std::floor(seconds));
    if (whole < 60)
        return stringWithFormat(LocalizedString(Texts::PracticeSeconds), {count(whole)});
    return stringWithFormat(LocalizedString(Texts::PracticeMinutes),
                            {count(whole / 60), count(whole % 60)});
}

} // namespace

void ViewController::setPracticeDaySource(std::function<QDate()> today)
{
    m_practiceDay = std::move(today);
}

QDate ViewController::practiceDay() const
{
    return m_practiceDay ? m_practiceDay() : QDate::currentDate();
}

void ViewController::openLessonPractice()
{
    closeLessonPractice();
    const std::optional<QString> identity = lessonIdentity();
    if (!identity)
        return;
    m_practiceIdentity = *identity;
    QString error;
    if (std::optional<PracticeRecord> stored = PracticeStore(m_documents).load(*identity, &error))
        m_practice = std::move(*stored);
    if (!error.isEmpty()) {
        // Practice goes on in memory; the file stays as it is for a look.
        m_practiceRefused = true;
        reportPracticeFault(Texts::PracticeUnreadable, error);
    }
    // Seconds on the engine's clock, so that a test can move it.
    QPointer<ViewController> self(this);
    m_practiceTick = m_engine.clock().scheduledTimer(1.0, true, [self] {
        if (self)
            self->practiceTick();
    });
}

void ViewController::closeLessonPractice()
{
    savePracticeRecord();
    if (m_practiceTick)
        m_practiceTick->invalidate();
    m_practiceTick.reset();
    leaveHardSentences(false);
    m_practice = PracticeRecord();
    m_practiceIdentity.clear();
    m_practiceDirty = false;
    m_practiceRefused = false;
    m_practiceFaultShown = false;
    m_secondsSinceSave = 0;
}

void ViewController::savePracticeRecord()
{
    m_secondsSinceSave = 0;
    if (!m_practiceDirty || m_practiceIdentity.isEmpty() || m_practiceRefused)
        return;
    QString error;
    if (PracticeStore(m_documents).save(m_practiceIdentity, m_practice, &error)) {
        m_practiceDirty = false;
        return;
    }
    // Kept in memory and tried again with the next change.
    reportPracticeFault(Texts::PracticeSaveFailed, error);
}

void ViewController::reportPracticeFault(const char* text, const QString& error)
{
    qCWarning(lcPractice, "%s", qUtf8Printable(error));
    if (m_practiceFaultShown)
        return;
    m_practiceFaultShown = true;
    m_statusBar->showMessage(stringWithFormat(LocalizedString(text), {error}));
}

void ViewController::practiceTick()
{
    // Past midnight more sentences are due, and the hard ones are counted anew.
    if (m_reference && !isProcessing() && practiceDay() != m_practiceViewDay)
        refreshPracticeView();
    // Only a lesson being checked against a reference is practised; without
    // one nothing is recorded and the store stays as it was.
    if (!m_reference || isProcessing() || m_segmentsShown == 0 || !isActiveWindow())
        return;
    if (!m_practice.addTime(m_currentSegmentIndex, 1.0))
        return;
    m_practiceDirty = true;
    if (++m_secondsSinceSave >= kSecondsBetweenTimeSaves)
        savePracticeRecord();
}

void ViewController::recordPracticeCheck(qint64 row)
{
    const std::optional<double> score = checkOfRow(row, checkOptions()).score;
    if (!score || !m_practice.recordCheck(row, *score, practiceDay()))
        return;
    practiceChanged();
}

void ViewController::recordPracticeHint(qint64 row)
{
    if (m_practice.recordHint(row))
        practiceChanged();
}

void ViewController::practiceChanged()
{
    m_practiceDirty = true;
    savePracticeRecord();
    refreshPracticeView();
}

void ViewController::refreshPracticeView()
{
    m_practiceViewDay = practiceDay();
    refreshDueCount();
    if (m_practisingHard) {
        if (hardSegmentsNow().isEmpty())
            leaveHardSentences(true);
        else
            updateStatusBar();
    }
}

QString ViewController::practiceSummary(qint64 row) const
{
    const SegmentPractice segment = m_practice.segment(row);
    if (segment.isEmpty())
        return {};
    QStringList done;
    if (segment.checks == 1)
        done << LocalizedString(Texts::PracticeCheckedOnce);
    else if (segment.checks > 1)
        done << stringWithFormat(LocalizedString(Texts::PracticeCheckedTimes),
                                 {count(segment.checks)});
    if (segment.hints == 1)
        done << LocalizedString(Texts::PracticeOneHint);
    else if (segment.hints > 1)
        done << stringWithFormat(LocalizedString(Texts::PracticeHints), {count(segment.hints)});
    QStringList parts;
    if (!done.isEmpty())
        parts << done.join(QStringLiteral(", "));
    if (segment.last && segment.best)
        parts << stringWithFormat(LocalizedString(Texts::PracticeScores),
                                  {percentText(*segment.last), percentText(*segment.best)});
    if (segment.secondsSpent >= 1.0)
        parts << durationText(segment.secondsSpent);
    return parts.join(QStringLiteral(" · "));
}

void ViewController::refreshDueCount()
{
    if (!m_reference)
        return;
    const qsizetype due = HardSentences::dueCount(m_practice, m_segmentsShown, practiceDay());
    m_checkBar->setNote(due > 0 ? stringWithFormat(LocalizedString(Texts::DueForReview),
                                                   {count(due)})
                                : QString());
}

QList<qsizetype> ViewController::hardSegmentsNow() const
{
    return HardSentences::hardSegments(m_practice, m_segmentsShown,
                                       storedPracticeOptions(m_defaults).hardThreshold,
                                       practiceDay());
}

bool ViewController::isHardSegment(qint64 index) const
{
    return HardSentences::isHard(m_practice.segment(index),
                                 storedPracticeOptions(m_defaults).hardThreshold, practiceDay());
}

std::optional<qsizetype> ViewController::nextHardSegment(int direction)
{
    const QList<qsizetype> hard = hardSegmentsNow();
    if (hard.isEmpty()) {
        leaveHardSentences(true);
        return std::nullopt;
    }
    if (direction > 0) {
        for (const qsizetype index : hard) {
            if (index > m_currentSegmentIndex)
                return index;
        }
        return hard.first();
    }
    for (auto it = hard.crbegin(); it != hard.crend(); ++it) {
        if (*it < m_currentSegmentIndex)
            return *it;
    }
    return hard.last();
}

void ViewController::togglePractiseHardSentences()
{
    if (m_practisingHard) {
        leaveHardSentences(false);
        return;
    }
    if (m_segmentsShown == 0 || isProcessing())
        return;
    const QList<qsizetype> hard = hardSegmentsNow();
    if (hard.isEmpty()) {
        m_statusBar->showMessage(LocalizedString(Texts::NoHardSentences), kMessageMs);
        emit practisingHardSentencesChanged(false);
        return;
    }
    m_practisingHard = true;
    qsizetype first = hard.first();
    for (const qsizetype index : hard) {
        if (index >= m_currentSegmentIndex) {
            first = index;
            break;
        }
    }
    if (first != m_currentSegmentIndex) {
        stopAutoUpdateWavePos();
        playSegement(first);
    }
    updateStatusBar();
    emit practisingHardSentencesChanged(true);
}

void ViewController::leaveHardSentences(bool noneLeft)
{
    if (!m_practisingHard)
        return;
    m_practisingHard = false;
    updateStatusBar();
    if (noneLeft)
        m_statusBar->showMessage(LocalizedString(Texts::NoHardSentences), kMessageMs);
    emit practisingHardSentencesChanged(false);
}

QString ViewController::hardSentencesStatus() const
{
    if (!m_practisingHard)
        return {};
    return stringWithFormat(LocalizedString(Texts::HardSentencesLeft),
                            {count(hardSegmentsNow().size())});
}
