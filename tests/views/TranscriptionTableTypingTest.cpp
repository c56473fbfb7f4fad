// SPDX-License-Identifier: GPL-3.0-or-later
// Typing into a row: where the text goes, what the row keeps, and the
// transcript line of a row from a real engine.

#include "TranscriptionTableFixture.h"

#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalSpy>

using TestSupport::fixture;

namespace {

class TranscriptionTableTyping : public TranscriptionTableFixture
{
protected:
    QLineEdit* editor(int row) const { return qobject_cast<QLineEdit*>(table->editorForRow(row)); }
};

TEST_F(TranscriptionTableTyping, TypedTextLandsInTheRowsAndTheModelAtOnce)
{
    makeTable();
    load({"", "kept"});
    QSignalSpy changed(table->model(), &QAbstractItemModel::dataChanged);
    QTest::keyClicks(editor(0), "Hello");
    EXPECT_EQ(table->mutableTranscriptions(), (QStringList{"Hello", "kept"}));
    EXPECT_EQ(table->model()->index(0, 1).data(Qt::DisplayRole).toString(), "Hello");
    ASSERT_EQ(changed.count(), 5) << "one change per keystroke";
    for (const auto& args : changed) {
        EXPECT_EQ(args[0].toModelIndex(), table->model()->index(0, 1));
        EXPECT_EQ(args[1].toModelIndex(), table->model()->index(0, 1));
    }
    EXPECT_EQ(editor(0)->text(), "Hello");
    EXPECT_EQ(editor(0)->cursorPosition(), 5) << "the caret stays after what was typed";

    // A screen reader sees the cells' texts.
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(table.get());
    ASSERT_TRUE(accessible && accessible->tableInterface());
    QAccessibleInterface* cell = accessible->tableInterface()->cellAt(1, 1);
    ASSERT_TRUE(cell);
    EXPECT_EQ(cell->text(QAccessible::Name), "kept");

    // Text set from outside is stored; out-of-range rows are ignored.
    table->updateTranscription("set", 1);
    table->updateTranscription("nowhere", 2);
    table->updateTranscription("nowhere", -1);
    EXPECT_EQ(table->mutableTranscriptions(), (QStringList{"Hello", "set"}));
}

TEST_F(TranscriptionTableTyping, ReturnTabBacktabAndEscapeDoNothingInARow)
{
    makeTable();
    load({"", "other"});
    QLineEdit* field = editor(0);
    QTest::keyClicks(field, "abcd");
    QTest::keyClick(field, Qt::Key_Left);
    QTest::keyClick(field, Qt::Key_Left);
    delegate.heard.clear();
    for (const Qt::Key key :
         {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape}) {
        QTest::keyClick(field, key);
        QTest::keyClick(field, Qt::Key_Tab, Qt::ShiftModifier);
        TestSupport::processEvents();
        EXPECT_EQ(table->editorForRow(0), field) << key;
        EXPECT_EQ(QApplication::focusWidget(), field) << key;
        EXPECT_EQ(field->text(), "abcd") << key;
        EXPECT_EQ(field->cursorPosition(), 2) << key;
    }
    EXPECT_EQ(table->mutableTranscriptions()[0], "abcd");
    EXPECT_TRUE(table->selectionModel()->isRowSelected(0, {}));
    EXPECT_TRUE(delegate.heard.isEmpty());

    QTest::keyClicks(field, "X");
    EXPECT_EQ(table->mutableTranscriptions()[0], "abXcd") << "typing goes on where it was";
}

TEST_F(TranscriptionTableTyping, TextTypedInARowSurvivesMovingToAnotherRowAndGoesOnAtItsEnd)
{
    makeTable();
    load({"", "", ""});
    // Typed where the focus is, which moves with the current row.
    QTest::keyClicks(QApplication::focusWidget(), "zero");
    table->setCurrentSegment(1);
    QTest::keyClicks(QApplication::focusWidget(), "one");
    table->setCurrentSegment(0);
    EXPECT_EQ(editor(0)->text(), "zero");
    EXPECT_EQ(table->mutableTranscriptions(), (QStringList{"zero", "one", ""}));
    // Back in a row, typing goes on after what is there, from any road in.
    QTest::keyClicks(QApplication::focusWidget(), " more");
    table->setFocus();
    editor(0)->setFocus(Qt::TabFocusReason); // would select the whole text
    EXPECT_FALSE(editor(0)->hasSelectedText());
    QTest::keyClicks(QApplication::focusWidget(), "!");
    EXPECT_EQ(table->mutableTranscriptions()[0], "zero more!");
}

TEST_F(TranscriptionTableTyping, TranscriptLineStampsTheSegmentStartTruncated)
{
    bool ok = false;
    engine.processAudioFile(fixture("speech.wav"), [&](bool success) { ok = success; });
    ASSERT_TRUE(ok) << engine.lastError().toStdString();
    const qsizetype count = engine.numberOfSegments();
    ASSERT_GE(count, 2);
    makeTable();
    load(QStringList(count, QString()));

    const QRegularExpression stamp(R"(^\[(\d\d):(\d\d)\.(\d\d\d)\](.*)$)");
    for (qint64 i = 0; i < count; ++i) {
        const QString line = table->generateLRCStringForText("Words, [here].", i);
        const auto m = stamp.match(line);
        ASSERT_TRUE(m.hasMatch()) << line.toStdString();
        EXPECT_EQ(m.captured(4), "Words, [here].");
        const double seconds =
            m.captured(1).toInt() * 60 + m.captured(2).toInt() + m.captured(3).toInt() / 1000.0;
        const double start = engine.segments()[i].start;
        EXPECT_LE(seconds, start + 1e-9) << "truncated, never rounded up";
        EXPECT_GT(seconds, start - 0.001);
    }
    EXPECT_TRUE(table->generateLRCStringForText("x", 0).startsWith("[00:00.000]"));
}

} // namespace
