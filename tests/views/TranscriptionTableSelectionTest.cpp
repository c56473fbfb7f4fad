// SPDX-License-Identifier: GPL-3.0-or-later
// Which row is current: loading rows, selections from the waveform and from
// clicks, and what the session controller hears of them.

#include "TranscriptionTableFixture.h"
#include "common/NotificationNames.h"

#include <QLineEdit>

namespace {

class TranscriptionTableSelection : public TranscriptionTableFixture
{
protected:
    QPoint inViewport(QPoint p) const { return p - table->viewport()->geometry().topLeft(); }
};

TEST_F(TranscriptionTableSelection, LoadingSelectsRowZeroOnTheNextTurnAndFocusesItsEditor)
{
    makeTable();
    table->updateTranscriptions({"bonjour", "", "au revoir"});
    EXPECT_TRUE(table->selectionModel()->selectedIndexes().isEmpty());
    EXPECT_TRUE(delegate.heard.isEmpty()) << "the first row is selected later, not now";

    TestSupport::processEvents();
    EXPECT_TRUE(table->selectionModel()->isRowSelected(0, {}));
    EXPECT_EQ(table->currentIndex(), 0);
    EXPECT_EQ(table->currentEditingRow(), 0);
    EXPECT_EQ(delegate.heard, QList<qint64>{0});
    auto* editor = qobject_cast<QLineEdit*>(table->editorForRow(0));
    ASSERT_TRUE(editor);
    EXPECT_EQ(QApplication::focusWidget(), editor);
    EXPECT_TRUE(table->isDictationEditor(editor));
    EXPECT_FALSE(table->isDictationEditor(table.get()));
    EXPECT_EQ(editor->text(), "bonjour");
    EXPECT_EQ(editor->cursorPosition(), 7) << "the caret goes after the row's text";
    EXPECT_FALSE(editor->hasSelectedText());
    EXPECT_EQ(table->editorForRow(2), nullptr) << "only the current row has a live editor";
    EXPECT_EQ(table->mutableTranscriptions(), (QStringList{"bonjour", "", "au revoir"}));
}

TEST_F(TranscriptionTableSelection, EmptyListSelectsNothingAndTellsNothing)
{
    makeTable();
    load({"a", "b"});
    delegate.heard.clear();
    load({});
    EXPECT_TRUE(delegate.heard.isEmpty());
    EXPECT_TRUE(table->selectionModel()->selectedIndexes().isEmpty());
    EXPECT_EQ(table->model()->rowCount(), 0);
    EXPECT_EQ(table->editorForRow(0), nullptr);
    EXPECT_EQ(table->currentIndex(), -1);

    // A load overtaken by an empty one before its turn selects nothing either.
    table->updateTranscriptions({"x"});
    load({});
    EXPECT_TRUE(delegate.heard.isEmpty());
}

TEST_F(TranscriptionTableSelection, SelectionChangesAreReportedAndClearingReportsMinusOne)
{
    makeTable();
    load({"a", "b", "c"});
    delegate.heard.clear();
    table->selectRow(2);
    EXPECT_EQ(table->currentIndex(), 2);
    table->clearSelection();
    EXPECT_EQ(delegate.heard, (QList<qint64>{2, -1}));
    EXPECT_EQ(table->currentIndex(), 2) << "nothing selected leaves the current row as it was";

    // From outside: only a different row within range selects anything.
    delegate.heard.clear();
    table->setCurrentSegment(2);
    table->setCurrentSegment(3);
    table->setCurrentSegment(-1);
    EXPECT_TRUE(delegate.heard.isEmpty());
    table->setCurrentSegment(1);
    EXPECT_EQ(delegate.heard, QList<qint64>{1});
}

TEST_F(TranscriptionTableSelection, WaveformClickSelectsScrollsToAndTypesInTheSegment)
{
    makeTable({500, 160});
    load(QStringList(40, "words"));
    delegate.heard.clear();
    table->setFocus(); // the keyboard elsewhere, as after a click in the strip
    center.post(Notifications::MouseDownSelectSegment, qint64(25));
    TestSupport::processEvents();
    EXPECT_TRUE(table->selectionModel()->isRowSelected(25, {}));
    EXPECT_EQ(delegate.heard, QList<qint64>{25});
    EXPECT_TRUE(table->viewport()->rect().contains(table->visualRect(table->model()->index(25, 1))))
        << "scrolled into view";
    auto* editor = qobject_cast<QLineEdit*>(table->editorForRow(25));
    ASSERT_TRUE(editor);
    EXPECT_EQ(QApplication::focusWidget(), editor) << "the keys go to the row it selected";
    EXPECT_EQ(editor->cursorPosition(), 5);
    QTest::keyClicks(QApplication::focusWidget(), "!");
    EXPECT_EQ(table->mutableTranscriptions()[25], "words!");

    center.post(Notifications::MouseDownSelectSegment, qint64(5));
    EXPECT_EQ(delegate.heard, (QList<qint64>{25, 5}));
    EXPECT_TRUE(table->viewport()->rect().contains(table->visualRect(table->model()->index(5, 1))));

    center.post(Notifications::MouseDownSelectSegment, qint64(39));
    EXPECT_TRUE(table->viewport()->rect().contains(table->visualRect(table->model()->index(39, 1))))
        << "the last row comes fully into view above the bottom room";

    center.post(Notifications::MouseDownSelectSegment, QStringLiteral("7"));
    center.post(Notifications::MouseDownSelectSegment, qint64(99));
    EXPECT_EQ(delegate.heard, (QList<qint64>{25, 5, 39})) << "a wrong object or row is ignored";
}

TEST_F(TranscriptionTableSelection, AClickAnywhereInARowPutsTheCaretInItsEditor)
{
    makeTable();
    load({"first", "second", "third"});
    delegate.heard.clear();

    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, inViewport(cellRect(2, 0).center()));
    auto* editor = qobject_cast<QLineEdit*>(table->editorForRow(2));
    ASSERT_TRUE(editor);
    EXPECT_EQ(QApplication::focusWidget(), editor) << "a click on the number column";
    EXPECT_EQ(editor->cursorPosition(), 5) << "after the row's text";
    EXPECT_FALSE(editor->hasSelectedText());
    EXPECT_EQ(table->currentEditingRow(), 2);
    EXPECT_EQ(delegate.heard, QList<qint64>{2});
    EXPECT_EQ(table->editorForRow(0), nullptr);

    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, inViewport(cellRect(1, 1).center()));
    EXPECT_EQ(QApplication::focusWidget(), table->editorForRow(1)) << "a click on the text";
    EXPECT_EQ(table->currentEditingRow(), 1);

    // Below the last row: the current row keeps the caret.
    table->setFocus();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      QPoint(40, table->viewport()->height() - 5));
    EXPECT_EQ(QApplication::focusWidget(), table->editorForRow(1));
}

} // namespace
