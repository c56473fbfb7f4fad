// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/ShortcutTextField.h"

#include "common/Log.h"
#include "preferences/Keyboard.h"
#include "preferences/KeyboardShortcut.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

ShortcutTextField::ShortcutTextField(QWidget* parent) : QLineEdit(parent)
{
    setReadOnly(true);
    setFrame(false);
    setAlignment(Qt::AlignCenter);
    setContextMenuPolicy(Qt::NoContextMenu);
    // Recording starts with a click. Tab does not enter a field, since a
    // recording field keeps Tab as a key to record.
    setFocusPolicy(Qt::ClickFocus);
    setAutoFillBackground(true);
    QPalette p = palette();
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::Text, Qt::black);
    setPalette(p);
    setMinimumHeight(28);
}

ShortcutTextField::~ShortcutTextField()
{
    if (m_recording)
        qApp->removeEventFilter(this);
}

void ShortcutTextField::setShortcut(qint64 keyCode, quint64 modifierFlags)
{
    m_keyCode = keyCode;
    m_modifierFlags = modifierFlags;
    updateShortcutDisplay();
}

void ShortcutTextField::updateShortcutDisplay()
{
    setText(Keyboard::shortcutText(m_keyCode, m_modifierFlags));
}

void ShortcutTextField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    startRecording();
}

void ShortcutTextField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    stopRecording();
}

void ShortcutTextField::startRecording()
{
    if (m_recording)
        return;
    m_recording = true;
    // Installed last, so it is asked first: before menus, shortcuts and the
    // main window's key hook.
    qApp->installEventFilter(this);
    update();
}

void ShortcutTextField::stopRecording()
{
    if (!m_recording)
        return;
    m_recording = false;
    qApp->removeEventFilter(this);
    update();
    emit shortcutChanged(m_keyCode, m_modifierFlags);
    updateShortcutDisplay();
}

bool ShortcutTextField::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Claiming the key keeps every shortcut (Quit included) from firing;
        // the key press that follows is recorded below.
        event->accept();
        return true;
    case QEvent::KeyPress:
        handleKeyEvent(*static_cast<QKeyEvent*>(event));
        return true;
    case QEvent::KeyRelease:
        return true;
    default:
        return QLineEdit::eventFilter(watched, event);
    }
}

void ShortcutTextField::handleKeyEvent(const QKeyEvent& event)
{
    // Caps Lock changes a state, not a key; the original platform never
    // reports it as a key press.
    if (event.key() == Qt::Key_CapsLock)
        return;
    const KeyStroke stroke = Keyboard::keyStrokeForEvent(event);
    if (!stroke.isValid())
        return;
    const qint64 keyCode = stroke.keyCode & 0xFFFF;
    if (Keyboard::isModifierKey(keyCode))
        return;
    const quint64 masked = stroke.rawModifierFlags & ModifierFlag::RecordingMask;
    // The desktop's quit and close keys (Ctrl+Q, Ctrl+W) stay theirs; with
    // any further modifier they are ordinary keys.
    if ((keyCode == Keyboard::KeyQ || keyCode == Keyboard::KeyW) && masked == ModifierFlag::Control)
        return;
    m_keyCode = keyCode;
    m_modifierFlags = masked;
    qCInfo(lcPreferences, "shortcut:%s,keyCode:%lld,掩码后的修饰值: %llu,原始修饰值: %llu",
           qUtf8Printable(Keyboard::keyCodeToString(keyCode)), static_cast<long long>(keyCode),
           static_cast<unsigned long long>(masked),
           static_cast<unsigned long long>(stroke.rawModifierFlags));
    updateShortcutDisplay();
}

void ShortcutTextField::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (!m_recording)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(palette().color(QPalette::Active, QPalette::Highlight), 3.0);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    // The pen straddles the path; inset by half its width so all 3 points show.
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 4.0, 4.0);
}
