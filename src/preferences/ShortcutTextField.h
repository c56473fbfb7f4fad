// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QtGlobal>

class QKeyEvent;

// A field that records one key with its modifiers. Taking the focus (a click)
// starts recording: a 3-point border shows it, and an application-wide key
// hook sees every key press first and swallows it, so while a field records no
// key reaches a menu, a window or the playback shortcuts. Each key replaces the
// one before; modifier keys alone change nothing, and Ctrl+Q and Ctrl+W (the
// quit and close keys) are neither recorded nor acted on. Losing the focus
// stops recording and reports the value, whether or not a key was pressed.
class ShortcutTextField : public QLineEdit
{
    Q_OBJECT
public:
    explicit ShortcutTextField(QWidget* parent = nullptr);
    ~ShortcutTextField() override;

    qint64 keyCode() const { return m_keyCode; } // -1: none
    quint64 modifierFlags() const { return m_modifierFlags; }
    void setShortcut(qint64 keyCode, quint64 modifierFlags);

    bool isRecording() const { return m_recording; }

    // The modifiers and the key name ("Shift+R"); empty for key code -1. Key
    // code 0 shows "A" here.
    void updateShortcutDisplay();

signals:
    // Recording ended; the field's current value.
    void shortcutChanged(qint64 keyCode, quint64 modifierFlags);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void startRecording();
    void stopRecording();
    void handleKeyEvent(const QKeyEvent& event);

    qint64 m_keyCode = -1;
    quint64 m_modifierFlags = 0;
    bool m_recording = false;
};
