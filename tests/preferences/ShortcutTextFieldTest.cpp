// SPDX-License-Identifier: GPL-3.0-or-later
// Recording a shortcut: what a key press records, what it never records, and
// that while a field records no key reaches anything else.

#include "preferences/ShortcutTextField.h"
#include "support/TestSupport.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

// A window with one shortcut field, a plain text field to move the focus to,
// and an application-wide Ctrl+Q action that must not fire while recording.
struct FieldWindow
{
    QWidget window;
    ShortcutTextField* field = new ShortcutTextField;
    QLineEdit* other = new QLineEdit;
    QAction* quit = new QAction(&window);

    FieldWindow()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(other);
        quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
        quit->setShortcutContext(Qt::ApplicationShortcut);
        window.addAction(quit);
        field->setShortcut(36, 0); // Return
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other->setFocus();
    }
    void startRecording() { QTest::mouseClick(field, Qt::LeftButton); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
};

} // namespace

TEST(ShortcutTextField, RecordsTheLastKeyAndReportsItWhenTheFocusLeaves)
{
    FieldWindow w;
    QSignalSpy reported(w.field, &ShortcutTextField::shortcutChanged);
    w.startRecording();
    ASSERT_TRUE(w.field->hasFocus());
    EXPECT_TRUE(w.field->isRecording());

    w.press(Qt::Key_Shift, Qt::ShiftModifier);
    EXPECT_EQ(w.field->keyCode(), 36);
    EXPECT_EQ(w.field->text(), "Return");

    w.press(Qt::Key_R, Qt::ShiftModifier);
    EXPECT_EQ(w.field->keyCode(), 15);
    EXPECT_EQ(w.field->modifierFlags(), 0x20000u);
    EXPECT_EQ(w.field->text(), "Shift+R");
    EXPECT_EQ(reported.count(), 0);

    // Tab is a key like any other here, and the focus stays.
    w.press(Qt::Key_Tab);
    EXPECT_EQ(w.field->keyCode(), 48);
    EXPECT_EQ(w.field->modifierFlags(), 0u);
    EXPECT_TRUE(w.field->hasFocus());

    w.press(Qt::Key_F2);
    w.other->setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(w.field->isRecording());
    ASSERT_EQ(reported.count(), 1);
    EXPECT_EQ(reported[0][0].value<qint64>(), 120);
    EXPECT_EQ(reported[0][1].value<quint64>(), 0u);
    EXPECT_EQ(w.field->text(), "F2");

    // Keys typed now go where the focus is again.
    QTest::keyClicks(w.other, "ab");
    EXPECT_EQ(w.other->text(), "ab");
}

TEST(ShortcutTextField, QuitAndCloseKeysAreSwallowedNotRecorded)
{
    FieldWindow w;
    QSignalSpy quits(w.quit, &QAction::triggered);
    // Outside recording the quit key works.
    w.press(Qt::Key_Q, Qt::ControlModifier);
    ASSERT_EQ(quits.count(), 1);

    w.startRecording();
    w.press(Qt::Key_Q, Qt::ControlModifier);
    w.press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(quits.count(), 1);
    EXPECT_EQ(w.field->keyCode(), 36);
    EXPECT_TRUE(w.window.isVisible());

    // With one more modifier they are ordinary keys, shown with both.
    w.press(Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(w.field->keyCode(), 12);
    EXPECT_EQ(w.field->modifierFlags(), 0x40000u | 0x80000u);
    EXPECT_EQ(w.field->text(), "Ctrl+Alt+Q");
    EXPECT_EQ(quits.count(), 1);
}

TEST(ShortcutTextField, CapsLockAndModifierKeysAloneChangeNothing)
{
    FieldWindow w;
    w.startRecording();
    for (Qt::Key key : {Qt::Key_CapsLock, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta})
        w.press(key);
    EXPECT_EQ(w.field->keyCode(), 36);
    // With Caps Lock on, Qt reports R without a modifier: recorded as plain R.
    w.press(Qt::Key_R);
    EXPECT_EQ(w.field->keyCode(), 15);
    EXPECT_EQ(w.field->modifierFlags(), 0u);
    EXPECT_EQ(w.field->text(), "R");
}

TEST(ShortcutTextField, FocusWithoutAKeyWritesTheValueBackAndTheBorderShowsRecording)
{
    FieldWindow w;
    w.field->setShortcut(0, 0); // the A key shows "A" in the field
    EXPECT_EQ(w.field->text(), "A");
    QSignalSpy reported(w.field, &ShortcutTextField::shortcutChanged);

    const QImage idle = w.field->grab().toImage();
    w.startRecording();
    const QImage recording = w.field->grab().toImage();
    const QColor highlight = w.field->palette().color(QPalette::Active, QPalette::Highlight);
    const qreal dpr = recording.devicePixelRatio();
    const QPoint leftEdge(QPointF(2, w.field->height() / 2.0).toPoint() * dpr);
    EXPECT_EQ(recording.pixelColor(leftEdge).rgb(), highlight.rgb());
    EXPECT_EQ(idle.pixelColor(leftEdge).rgb(), QColor(Qt::white).rgb());

    w.other->setFocus(Qt::MouseFocusReason);
    ASSERT_EQ(reported.count(), 1);
    EXPECT_EQ(reported[0][0].value<qint64>(), 0);
    EXPECT_EQ(reported[0][1].value<quint64>(), 0u);
    EXPECT_EQ(w.field->grab().toImage().pixelColor(leftEdge).rgb(), QColor(Qt::white).rgb());
}
