// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/KeyDownMonitor.h"

#include "app/ViewController.h"
#include "common/ThreadHandOff.h"
#include "preferences/Keyboard.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PracticePreferences.h"
#include "views/TranscriptionTableView.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

KeyDownMonitor::KeyDownMonitor(ViewController& session, Defaults& defaults, QObject* parent)
    : QObject(parent), m_session(session), m_defaults(defaults)
{
    if (QCoreApplication* app = QCoreApplication::instance())
        app->installEventFilter(this);
}

KeyDownMonitor::~KeyDownMonitor()
{
    if (QCoreApplication* app = QCoreApplication::instance())
        app->removeEventFilter(this);
}

bool KeyDownMonitor::isOtherTextInput(const QWidget* focus) const
{
    if (!focus)
        return false;
    const bool textInput =
        qobject_cast<const QLineEdit*>(focus) || qobject_cast<const QTextEdit*>(focus) ||
        qobject_cast<const QPlainTextEdit*>(focus) || qobject_cast<const QAbstractSpinBox*>(focus);
    const auto* combo = qobject_cast<const QComboBox*>(focus);
    if (!textInput && !(combo && combo->isEditable()))
        return false;
    return !m_session.transcriptionTableView()->isAncestorOf(focus);
}

void KeyDownMonitor::perform(ShortcutAction action, ViewController& session)
{
    switch (action) {
    case ShortcutAction::PreviousSegment:
        session.playPreviousSegment();
        break;
    case ShortcutAction::NextSegment:
        session.playNextSegment();
        break;
    case ShortcutAction::PlayPause:
        session.togglePlayPause();
        break;
    case ShortcutAction::RepeatPlay:
        session.toggleRepeat(nullptr);
        break;
    case ShortcutAction::PlayFirst:
        session.playFirstSegment();
        break;
    case ShortcutAction::SplitAudio:
        session.processAudioFile();
        break;
    case ShortcutAction::Check:
        session.checkCurrentSegment();
        break;
    case ShortcutAction::ShowNextWord:
        session.showNextWord();
        break;
    case ShortcutAction::SplitSegment:
        session.splitSegmentAtPlayHead();
        break;
    case ShortcutAction::MergeSegments:
        session.mergeWithNextSegment();
        break;
    case ShortcutAction::PractiseHard:
        session.togglePractiseHardSentences();
        break;
    }
}

bool KeyDownMonitor::eventFilter(QObject* watched, QEvent* event)
{
    // Every event passes here first, including those workers post back.
    ThreadHandOff::acquired();
    const bool release = event->type() == QEvent::KeyRelease;
    if (event->type() != QEvent::KeyPress && !release)
        return false;
    // A key press reaches the filter once for the window and once for each
    // widget it is offered to; the first widget is the one that decides.
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (!widget || widget->window() != m_session.window())
        return false;
    if (isOtherTextInput(QApplication::focusWidget()))
        return false;
    if (release)
        return releaseHeldKey(*static_cast<QKeyEvent*>(event));

    const KeyStroke stroke = Keyboard::keyStrokeForEvent(*static_cast<QKeyEvent*>(event));
    if (!stroke.isValid())
        return false;
    // Read afresh each time: a shortcut changed in the preferences applies
    // to the very next key press.
    const std::optional<ShortcutAction> action =
        matchStoredShortcut(ObjectStorage(m_defaults), stroke.keyCode, stroke.rawModifierFlags);
    if (action == ShortcutAction::PlayPause && storedPracticeOptions(m_defaults).holdToPlay) {
        holdKey(*static_cast<QKeyEvent*>(event));
        return true;
    }
    if (action) {
        perform(*action, m_session);
        return true;
    }
    const auto* key = static_cast<const QKeyEvent*>(event);
    // Alt with an arrow moves the current segment's start, as a drag would.
    if (key->modifiers() == Qt::AltModifier &&
        (key->key() == Qt::Key_Left || key->key() == Qt::Key_Right)) {
        m_session.nudgeCurrentSegmentStart(key->key() == Qt::Key_Left ? -1 : 1);
        return true;
    }
    const bool undo = key->matches(QKeySequence::Undo);
    if (!undo && !key->matches(QKeySequence::Redo))
        return false;
    // A row keeps its own undo of what was typed in it; once that has none
    // left, the keys step through the edits of the cutting.
    const auto* editor = qobject_cast<const QLineEdit*>(QApplication::focusWidget());
    if (editor && m_session.transcriptionTableView()->isDictationEditor(editor) &&
        (undo ? editor->isUndoAvailable() : editor->isRedoAvailable()))
        return false;
    if (undo)
        m_session.undoCuttingEdit();
    else
        m_session.redoCuttingEdit();
    return true;
}

void KeyDownMonitor::holdKey(const QKeyEvent& event)
{
    // A held key repeats; only its first press starts the sound. None of
    // them types anything into a row.
    if (event.isAutoRepeat() || m_heldKey)
        return;
    m_heldKey = event.key();
    m_session.setPlayHeld(true);
}

bool KeyDownMonitor::releaseHeldKey(const QKeyEvent& event)
{
    // Matched by the key alone: a modifier let go first must not leave the
    // sound running.
    if (!m_heldKey || event.key() != m_heldKey)
        return false;
    if (!event.isAutoRepeat()) {
        m_heldKey = 0;
        m_session.setPlayHeld(false);
    }
    return true;
}
