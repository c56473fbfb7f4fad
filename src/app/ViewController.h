// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CuttingCommand.h"
#include "app/SessionServices.h"
#include "practice/PracticeRecord.h"
#include "reference/Checker.h"
#include "reference/ReferenceText.h"
#include "views/TranscriptionTableDelegate.h"

#include <QDate>
#include <QHash>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QWidget>
#include <atomic>
#include <functional>
#include <memory>

class AudioManager;
class AutoSaveQueue;
class CheckBar;
struct ReferenceReadError;
class Timer;
class Defaults;
class LoadingIndicator;
class NotificationCenter;
class QAction;
class QDialog;
class QGraphicsOpacityEffect;
class QLabel;
class QParallelAnimationGroup;
class QProgressDialog;
class QScrollArea;
class QStatusBar;
class QThreadPool;
class QTimer;
class QUndoStack;
class DocumentManager;
class TranscriptionManager;
class TranscriptionTableView;
class TypingJournal;
class WaveformView;

// The main window's content and the session: it owns the table, the waveform
// strip and the status bar, wires them to the engine, and holds the file that
// is open. Toolbar and menu commands only forward to it.
class ViewController : public QWidget, public TranscriptionTableDelegate
{
    Q_OBJECT
public:
    explicit ViewController(const SessionServices& services, QWidget* parent = nullptr);
    ~ViewController() override;

    // ---- Set-up (ViewController.cpp) ----
    void showStatusBarHidden(bool hidden, bool animated);
    void showWaveViewHidden(bool hidden, bool animated);
    void resizeWindowToWidth(int width, int height);
    // Where a window of the new size goes: no larger than the visible area,
    // the same centre, kept on that area (an empty one when there is no
    // screen, and then the size is kept).
    static QRect frameKeepingCentre(const QRect& old, const QSize& size, const QRect& visible);
    void updateToolbarItemImagName(const QString& identifier, const QString& imageName);

    // ---- Opening (ViewController+Opening.cpp) ----
    // The checked road: the open panel, then the type and size checks.
    void openFile();
    // What the Open panel does with the file the learner chose.
    void openFileChosen(const QString& path);
    void handleSelectedFile(const QString& path);
    static bool isValidAudioFile(const QString& path);
    static const QStringList& audioFileExtensions();
    // The direct road: no type or size check.
    void openFileFromPath(const QString& path);
    // Runs the engine on currentAudioPath() on a worker, then shows the result;
    // after a failure the session stays on the lesson it showed.
    void processAudioFile();
    bool isProcessing() const { return m_loadsRunning > 0; }
    // Whether the window shows a file with segments (read without touching
    // the engine, which a running analysis may be rewriting).
    bool hasSegmentsShown() const { return m_segmentsShown > 0; }
    // Whether the latest save into the store (auto-save, export, close) failed.
    bool lastSaveFailed() const { return m_lastSaveFailed; }
    // Called with the outcome after each opening has been shown (tests, the shell).
    void setOpeningFinishedHandler(std::function<void(bool success)> handler);
    void showLoadingIndicator();
    void hideLoadingIndicator();
    // Reaches a folder: at once when it can be read, else through a panel
    // asking the learner to choose it (the choice is remembered).
    void
    requestDirectoryAccess(const QString& folder,
                           const std::function<void(bool granted, const QString&)>& completion);
    // Checks the remembered folder; it does not reopen anything.
    void restoreLastAudioFile();

    // ---- Navigation (ViewController+Navigation.cpp) ----
    void playSegement(qint64 index);
    void updateUIForCurrentSegment(qint64 index);
    void playPreviousSegment();
    void playNextSegment();
    void replayCurrentSegment();
    void playFirstSegment();
    void togglePlayPause();
    // Plays while `held`, pauses when not: a pedal's press and release.
    void setPlayHeld(bool held);
    // Repeat each segment, or play on; the sender's icon follows (a key press
    // has none, and the toolbar item is found by its identifier).
    void toggleRepeat(QAction* sender);
    // The repeat switch's end of segment, timed at the current rate; timed
    // again when the rate changes while it waits.
    void armRepeatSwitchEnd();
    void preparePlaySegment();
    void didSelectSegmentAtIndex(qint64 index) override;
    void startAutoUpdateWavePosTimer(int intervalMs);
    void stopAutoUpdateWavePos();
    void updateCurrentSegmentIndex();
    // Kept as the hooks they have always been; nothing fills them.
    void updatePlaybackProgress() {}
    void updateSegmentInfo() {}

    // ---- Persistence (ViewController+Persistence.cpp) ----
    void initTranscription();
    void initEmptyTranscriptions();
    // Asks for a .lrc file in the save panel of Export, writes the transcript
    // there and into the store; the completion hears whether it was written
    // (false also when the panel was cancelled).
    void saveTranscriptionWithCompletion(const std::function<void(bool)>& completion);
    bool saveTranscriptionToSandbox();
    // Export through a save panel proposing "<audio name>.lrc".
    void saveTranscription();
    void exportTranscriptionTo(const QString& path);
    // Throttled save into the store on the auto-save thread; `now` saves
    // whatever the throttle says (a restart that reopens the lesson).
    void autoSaveTranscription(bool now = false);
    void importTranscription();
    // The import after its file was chosen. `inTimeOrder` recovers a damaged
    // file: bytes that are not UTF-8 are read as replacement characters and
    // the lines are put in the order of their stamps.
    void importTranscriptionFrom(const QString& path, bool inTimeOrder = false);
    void clearTranscription();
    // The application's data folder, created when missing; empty (and a log
    // line) when it cannot be.
    static QString applicationSupportDirectory();

    // ---- Store files that could not be used (ViewController+Recovery.cpp) ----
    // File -> Recover Earlier Dictation...: the set-aside versions of the open
    // lesson in a list; the chosen one is read the way an import reads.
    void recoverEarlierDictation();
    // The set-aside versions of the open lesson's store file, newest first.
    QStringList setAsideTranscripts() const;

    // ---- Reference text and the check (ViewController+Reference.cpp) ----
    // Asks for a .txt, .srt, .vtt or .lrc file in a panel, then attaches it.
    void attachReferenceText();
    // Reads the file, keeps it in the store beside the transcript and maps it
    // onto the segments; a file that cannot be read changes nothing.
    void attachReferenceTextFrom(const QString& path);
    void removeReferenceText();
    bool hasReferenceText() const;
    // Checks the current segment's row against its part of the reference.
    void checkCurrentSegment();

    // ---- Placing a plain reference's sentences (ViewController+Alignment.cpp) ----
    // Whether the reference shown has sentences to place: a plain or an
    // aligned one, and no alignment running.
    bool canAlignReference() const;
    // Edit → Align Again…: asks the language (the stored one first) and
    // places the reference's sentences on the recording anew.
    void alignReferenceAgain();
    // Shows the reference word after the last one typed right.
    void showNextWord();

    // ---- Fixing the cutting by hand (ViewController+Cutting.cpp) ----
    // Each edit is one step on cuttingEdits(); the rows go with the segments,
    // and the engine, the strip, the table, the reference and the store follow.
    // The segment under the play head cut at the play head; the current row's
    // text is cut at its caret when the caret is inside it.
    void splitSegmentAtPlayHead();
    // The current segment and the next as one, their texts joined.
    void mergeWithNextSegment();
    // Segment `index` starts at `seconds` (on the analysis frame, kept off
    // its neighbours), the previous one ending there.
    void moveSegmentStart(qint64 index, double seconds);
    // The current segment's start a tenth of a second earlier (-1) or later (+1).
    void nudgeCurrentSegmentStart(int direction);
    void undoCuttingEdit();
    void redoCuttingEdit();
    // Whether the rows and the segments can be edited now (a lesson shown,
    // no analysis running, no question open).
    bool canEditCutting() const;
    QUndoStack* cuttingEdits() const { return m_cuttingEdits; }
    // Whether the lesson shown has a reference text with times to cut at.
    bool canCutAtSentences() const;
    // The lesson cut anew, one step, so that each unit of the timed reference
    // (a sentence, a cue) is one segment; each row's text goes to the segment
    // that holds its old segment's middle. Starts from sentences placed with
    // doubt are marked in the strip until they are moved.
    void cutSegmentsAtSentences();

    // ---- The practice record and hard sentences (ViewController+Practice.cpp) ----
    // The open lesson's record, kept beside its transcript. Checks, hints and
    // the time spent on a segment (while the window is active and a reference
    // text is attached) are recorded; nothing is written until something was.
    const PracticeRecord& practiceRecord() const { return m_practice; }
    // Writes the record now if it changed (the window closes).
    void savePracticeRecord();
    // What a row's tooltip says about its practice; empty for a row with none.
    QString practiceSummary(qint64 row) const;
    // While on, Next and Previous step through the hard segments only, in
    // order and wrapping. It goes on at the first hard segment at or after
    // the current one, and stays off when there is none.
    void togglePractiseHardSentences();
    bool isPractisingHardSentences() const { return m_practisingHard; }
    // The day checks are recorded on and reviews fall due by (today unless
    // a test says otherwise).
    void setPracticeDaySource(std::function<QDate()> today);

    // ---- Typing journal (ViewController+Journal.cpp) ----
    // Commits what the journal holds to the disk now (row changes, quit).
    void syncJournal();

    // ---- A dictation found again (ViewController+Fingerprint.cpp) ----
    // The content fingerprint of the lesson shown; empty before the first.
    QString contentFingerprint() const { return m_contentFingerprint; }

    // ---- Status bar and title (ViewController+StatusBar.cpp) ----
    void updateStatusBar();
    void changeWindowTitle(const QString& title);
    static void showError(const QString& title, const QString& message);
    QString statusText() const;

    QString currentAudioPath() const { return m_currentAudioPath; }
    qint64 currentSegmentIndex() const { return m_currentSegmentIndex; }
    AudioManager& engine() const { return m_engine; }
    TranscriptionTableView* transcriptionTableView() const { return m_table; }
    WaveformView* waveformView() const { return m_waveformView; }
    QWidget* waveformContainer() const { return m_waveformContainer; }
    CheckBar* checkBar() const { return m_checkBar; }
    QStatusBar* statusBar() const { return m_statusBar; }
    LoadingIndicator* loadingIndicator() const { return m_loadingIndicator; }

signals:
    // A lesson appeared in the window, or the window went back to having none
    // (hasSegmentsShown()); the commands that need one follow it.
    void lessonShownChanged(bool shown);
    // A reference text was attached to the lesson shown, replaced by
    // another, or went away.
    void referenceTextChanged(bool attached);
    // Practise Hard Sentences went on or off.
    void practisingHardSentencesChanged(bool on);

private:
    // Every change of what the window shows goes through here.
    void setSegmentsShown(qsizetype count);
    void buildViews();
    void listenNotifications();
    void setupStatusBar();
    void setupConstraints();
    void showUIElement();
    void animateHeight(QWidget* area, QGraphicsOpacityEffect* effect, int height, bool hidden,
                       bool animated);
    // While a lesson is analysed the rows and the strip it replaces are
    // hidden, not cleared: they come back as they were if the open fails.
    void setLessonContentHidden(bool hidden);
    void finishOpening(bool success, const QString& path);
    void loadAudioFile(const QString& path);
    void startLoad(const QString& path);
    void showAnalysisProgress();
    void typeCheckFinished(const QString& path, bool valid);
    // The engine's segments and peaks into the views, segment 0 current and
    // playing: the end of an opening and of an import.
    void showEngineSegmentsAndPlay();
    QString transcriptionStorePath() const;
    void stageTranscriptions(TranscriptionManager& store) const;

    // Reference text (ViewController+Reference.cpp)
    void buildCheckBar();
    std::optional<QString> lessonIdentity() const;
    // The lesson shown has new segments, or is another lesson: its stored
    // reference is read again and laid over the segments.
    void loadLessonReference();
    void setReference(std::optional<ReferenceText> reference);
    // The segment starts, but the first, within a frame of the start of a
    // sentence the reference placed with doubt.
    QList<double> uncertainSentenceStarts() const;
    void referenceFileRead(const QString& path, const QString& audioPath,
                           const std::optional<ReferenceText>& reference,
                           const ReferenceReadError& error);

    // Placing a plain reference's sentences (ViewController+Alignment.cpp)
    // Asks the lesson's language for the reference shown; "Align" runs it.
    void askAlignmentLanguage(const QString& language);
    // Runs the aligner on a worker behind a progress dialog with Cancel.
    void alignReference(const QString& language);
    void referenceAligned(const std::optional<AlignedSentences>& sentences,
                          const QString& language, const QString& error);
    // The question or the run for a reference no longer shown goes away.
    void stopAlignment();
    // The widget that had the focus before the question takes it again.
    void giveBackAlignmentFocus();

    // A save into the store ended: a failure puts up a notice that stays
    // until a later save succeeds.
    void storeSaveFinished(bool saved);

    // A dictation found again (ViewController+Fingerprint.cpp)
    // In an opening, once the store was read: the lesson's fingerprint is
    // taken, and when the file has no transcript of its own but the store's
    // index knows one for its audio, a sheet offers it.
    void offerDictationFoundElsewhere();
    // "Use It": the dictation is copied to this file's identity and loaded.
    void useDictationFoundElsewhere(const QString& audioPath, const QString& from);
    // The fingerprint a save records: none while every row is empty.
    QString fingerprintForSave() const;
    // A save on this thread wrote the identity's transcript.
    void recordFingerprint(const QString& identifier);

    // Fixing the cutting (ViewController+Cutting.cpp)
    LessonCutting currentCutting() const;
    // Pushes an edit whose result is `after`, `current` the segment then
    // current; the state now is what an undo brings back.
    void pushCuttingEdit(const char* name, LessonCutting after, qint64 current,
                         std::optional<qsizetype> caret, int kind = -1, qint64 movedIndex = -1);
    void pushCuttingState(const char* name, CuttingCommand::State next, int kind = -1,
                          qint64 movedIndex = -1);
    void applyCutting(const CuttingCommand::State& state);
    // The strip marks the segments whose start is in m_uncertainStarts.
    void showUncertainStarts();
    // Every row emptied, the cutting kept.
    void clearAllRows();
    double playHeadPosition() const;

    // The practice record (ViewController+Practice.cpp)
    // The record of the lesson just shown, read from the store; the one
    // before is saved first.
    void openLessonPractice();
    void closeLessonPractice();
    void practiceTick();
    void recordPracticeCheck(qint64 row);
    void recordPracticeHint(qint64 row);
    void practiceChanged();
    // The due count and the hard-sentence status, after a new threshold or record.
    void refreshPracticeView();
    QDate practiceDay() const;
    QList<qsizetype> hardSegmentsNow() const;
    bool isHardSegment(qint64 index) const;
    // The hard segment after (+1) or before (-1) the current one, wrapping;
    // nothing, and the mode off, when none is left.
    std::optional<qsizetype> nextHardSegment(int direction);
    void leaveHardSentences(bool noneLeft);
    // The count of hard segments the status bar adds while the mode is on.
    QString hardSentencesStatus() const;
    void refreshDueCount();
    void reportPracticeFault(const char* text, const QString& error);

    // Typing journal (ViewController+Journal.cpp)
    void buildJournal();
    // The journal of the lesson just loaded: opened, and its records applied
    // over the rows the store gave.
    void openLessonJournal();
    void closeLessonJournal();
    void journalAllRows();
    quint64 journalSequence() const;
    QString journalPath() const;
    // A save of the rows as they were at `sequence` of that journal succeeded.
    void journalSaved(const QString& journalPath, quint64 sequence);

    // The check (ViewController+Check.cpp)
    CheckOptions checkOptions() const;
    // The check of a row's text against its reference, kept until either changes.
    const CheckResult& checkOfRow(qint64 row, const CheckOptions& options);
    std::optional<double> currentLessonScore(const CheckOptions& options);
    void rowTextChanged(qint64 row);
    void showCheckOfRow(qint64 row);
    void showCheckBarForRow(qint64 row);
    void refreshCheckBarLook();
    // The checked rows and the bar again, under the options now stored.
    void checkOptionsChanged();
    // A hold-to-play release that has settled: the sound and the loop stop.
    void letGoOfPlay();

    AudioManager& m_engine;
    NotificationCenter& m_center;
    // The hold-to-play key came up: playback waits for it, not for the loop.
    bool m_pedalReleased = false;
    Defaults& m_defaults;
    TranscriptionManager& m_transcriptions;
    const DocumentManager& m_documents;
    AutoSaveQueue& m_autoSave;

    TranscriptionTableView* m_table = nullptr;
    QWidget* m_waveformContainer = nullptr;
    QScrollArea* m_waveformScrollArea = nullptr;
    WaveformView* m_waveformView = nullptr;
    QStatusBar* m_statusBar = nullptr;
    QLabel* m_statusBarLabel = nullptr;
    QLabel* m_timeLabel = nullptr;
    LoadingIndicator* m_loadingIndicator = nullptr;
    QPointer<QWidget> m_focusBeforeLoading; // given back when the content returns
    QGraphicsOpacityEffect* m_waveformOpacity = nullptr;
    QGraphicsOpacityEffect* m_statusBarOpacity = nullptr;
    QPointer<QParallelAnimationGroup> m_waveAnimation;
    int m_heightWaveView = 0;
    int m_heightStatusBar = 0;

    QString m_currentAudioPath;
    qint64 m_currentSegmentIndex = 0;

    QTimer* m_autoUpdateWavePosTimer = nullptr;
    QTimer* m_progressTimer = nullptr; // reads the analysis fraction while a load runs
    // One-shot timers on the engine's clock, so that tests can run them.
    std::shared_ptr<Timer> m_pauseTimer;
    std::shared_ptr<Timer> m_playbackTimer; // the repeat switch's end of segment
    std::shared_ptr<Timer> m_letGoTimer;    // a hold-to-play release settling

    // Loads run one after another on their own thread; the engine is not
    // touched from here while one runs.
    std::unique_ptr<QThreadPool> m_analysisQueue;
    int m_loadsRunning = 0;
    bool m_loadInFlight = false; // a worker is analysing into the engine
    QString m_pendingLoad;       // the open waiting for it, the latest only
    QString m_loadedNotShown;    // loaded by the engine, shown once no load follows
    qsizetype m_segmentsShown = 0;
    std::function<void(bool)> m_openingFinished;

    // The reference text of the lesson shown, each segment's part of it, and
    // the checks: computed on demand, shown on the rows in m_checkedRows.
    CheckBar* m_checkBar = nullptr;
    QTimer* m_checkBarRefresh = nullptr; // one bar update for a burst of keys
    std::optional<ReferenceText> m_reference;
    QStringList m_referenceBySegment;
    struct RowCheck
    {
        QString typed;
        QString reference;
        CheckResult result;
    };
    QHash<qint64, RowCheck> m_rowChecks;
    CheckOptions m_rowChecksOptions;
    QSet<qint64> m_checkedRows;
    QHash<qint64, int> m_hints;
    quint64 m_referenceReads = 0; // drops a read that a newer one overtook
    // The language question and the alignment running, with its cancel flag.
    QPointer<QDialog> m_alignQuestion;
    QPointer<QProgressDialog> m_alignProgress;
    std::shared_ptr<std::atomic<bool>> m_alignCancel;
    QPointer<QWidget> m_focusBeforeAligning;

    // The content fingerprint of the lesson shown, and the sheet offering a
    // dictation found for it while it waits for an answer (nothing is saved
    // meanwhile).
    QString m_contentFingerprint;
    QPointer<QWidget> m_foundDictationSheet;

    // The edits of the lesson shown's cutting; emptied when a lesson opens.
    QUndoStack* m_cuttingEdits = nullptr;
    // Segment starts, in seconds, from sentences placed with doubt.
    QList<double> m_uncertainStarts;

    // The practice record of the lesson shown, under the identity it was
    // read for; changes not yet saved, and the seconds since the last save.
    PracticeRecord m_practice;
    QString m_practiceIdentity;
    bool m_practiceDirty = false;
    // The stored record could not be read: it is never saved over.
    bool m_practiceRefused = false;
    // A fault is reported once a lesson.
    bool m_practiceFaultShown = false;
    int m_secondsSinceSave = 0;
    std::shared_ptr<Timer> m_practiceTick;
    std::function<QDate()> m_practiceDay;
    QDate m_practiceViewDay; // the day the due count and hard sentences were counted for
    bool m_practisingHard = false;

    // The typing journal of the lesson shown.
    std::unique_ptr<TypingJournal> m_journal;
    QTimer* m_journalSyncTimer = nullptr;
    bool m_replayingJournal = false;
    bool m_lastSaveFailed = false;
    // The lesson's store file exists but is not a regular file: it is not
    // saved over.
    bool m_storeRefused = false;
    // A store file whose content was not loaded whole; the next save moves it
    // aside first.
    QString m_unusedStore;
    // Moves m_unusedStore aside if `storePath` is about to replace it; false
    // when it is still in the way.
    bool setAsideUnusedStore(const QString& storePath);
};
