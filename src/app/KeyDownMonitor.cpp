// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/KeyDownMonitor.h"

#include "app/ViewController.h"
#include "common/ThreadHandOff.h"
#include "preferences/Keyboard.h"
#include "preferences/ObjectStorage.h"
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
    if (event->type() != QEvent::KeyPress)
        return false;
    // A key press reaches the filter once for the window and once for each
    // widget it is offered to; the first widget is the one that decides.
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (!widget || widget->window() != m_session.window())
        return false;
    if (isOtherTextInput(QApplication::focusWidget()))
        return false;

    const KeyStroke stroke = Keyboard::keyStrokeForEvent(*static_cast<QKeyEvent*>(event));
    if (!stroke.isValid())
        return false;
    // Read afresh each time: a shortcut changed in the preferences applies
    // to the very next key press.
    const std::optional<ShortcutAction> action =
        matchStoredShortcut(ObjectStorage(m_defaults), stroke.keyCode, stroke.rawModifierFlags);
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
