// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/ShortcutBindings.h"

#include <QObject>

class Defaults;
class QKeyEvent;
class ViewController;

// The bound shortcuts, for the whole application: an event filter on the
// application object that sees every key press before any widget does. A
// press in the main window that matches a stored shortcut runs its command
// and goes no further; so do the fixed keys of the cutting's edits (Undo,
// Redo, Alt+Left, Alt+Right); anything else reaches its widget untouched.
//
// A dictation row's editor is not a reason to stand aside: the learner types
// there and steps through the segments with the same hands. Any other text
// input (a dialog's field, a future search box) keeps all of its keys.
//
// With "hold to play" on, the play/pause key works as a transcription pedal
// does: the sound plays while the key is down and pauses when it comes up.
class KeyDownMonitor : public QObject
{
    Q_OBJECT
public:
    // Installs itself on the application; goes away with its parent.
    KeyDownMonitor(ViewController& session, Defaults& defaults, QObject* parent = nullptr);
    ~KeyDownMonitor() override;

    // What each bound command does, for a key press and a menu item alike.
    static void perform(ShortcutAction action, ViewController& session);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isOtherTextInput(const QWidget* focus) const;
    void holdKey(const QKeyEvent& event);
    bool releaseHeldKey(const QKeyEvent& event);

    ViewController& m_session;
    Defaults& m_defaults;
    int m_heldKey = 0; // the play/pause key while it is held down
};
