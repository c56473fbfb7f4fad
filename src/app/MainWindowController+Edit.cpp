// SPDX-License-Identifier: GPL-3.0-or-later
// The Edit menu's commands for the cutting: undo and redo of its edits, split,
// merge, the keyboard's way of moving a start, the cut at the reference's
// sentences and placing them again. The waveform strip's context menu offers
// split and merge too. The View menu's bound command shows its keys the same
// way.

#include "app/KeyDownMonitor.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "localization/LocalizedString.h"
#include "localization/AlignTexts.h"
#include "localization/LocalizedTexts.h"
#include "localization/SentenceCutTexts.h"
#include "preferences/Keyboard.h"
#include "preferences/ObjectStorage.h"
#include "preferences/ShortcutBindings.h"
#include "views/WaveformView.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QUndoStack>

namespace {

// After a tab a menu prints the text where it prints a shortcut: the keys
// are the key hook's, so the actions carry none of their own.
QString withKeys(const QString& text, const QString& keys)
{
    return text + QLatin1Char('\t') + keys;
}

QString boundKeys(const ShortcutSet& shortcuts, ShortcutAction action)
{
    const auto& bindings = shortcutBindings();
    for (std::size_t i = 0; i < bindings.size(); ++i) {
        if (bindings[i].action == action)
            return Keyboard::shortcutText(shortcuts[i].keyCode(), shortcuts[i].modifierFlags());
    }
    return {};
}

} // namespace

void MainWindowController::setupEditMenu(QMenu* edit)
{
    ViewController* session = m_viewController;
    auto item = [&](const char* name, auto slot) {
        QAction* action = edit->addAction(QString());
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    m_undoItem = item("menuUndo", [session] { session->undoCuttingEdit(); });
    m_redoItem = item("menuRedo", [session] { session->redoCuttingEdit(); });
    edit->addSeparator();
    m_splitItem = item("menuSplitSegment", [session] {
        KeyDownMonitor::perform(ShortcutAction::SplitSegment, *session);
    });
    m_mergeItem = item("menuMergeSegments", [session] {
        KeyDownMonitor::perform(ShortcutAction::MergeSegments, *session);
    });
    QAction* earlier = item("menuStartEarlier", [session] { session->nudgeCurrentSegmentStart(-1); });
    earlier->setText(withKeys(LocalizedString(Texts::MenuStartEarlier), QStringLiteral("Alt+Left")));
    QAction* later = item("menuStartLater", [session] { session->nudgeCurrentSegmentStart(1); });
    later->setText(withKeys(LocalizedString(Texts::MenuStartLater), QStringLiteral("Alt+Right")));
    for (QAction* command : {m_splitItem, m_mergeItem, earlier, later})
        needsLesson(command);
    // Only a reference with times has sentences to cut at; the menu asks as it opens.
    m_cutAtSentencesItem =
        item("menuCutAtSentences", [session] { session->cutSegmentsAtSentences(); });
    m_cutAtSentencesItem->setText(LocalizedString(Texts::MenuCutAtSentences));
    // A plain or aligned reference has sentences to place on the recording.
    m_alignAgainItem = item("menuAlignAgain", [session] { session->alignReferenceAgain(); });
    m_alignAgainItem->setText(LocalizedString(Texts::MenuAlignAgain));
    edit->addSeparator();

    // A right click in the strip offers what the play head is in.
    WaveformView* strip = session->waveformView();
    strip->addAction(m_splitItem);
    strip->addAction(m_mergeItem);
    strip->setContextMenuPolicy(Qt::ActionsContextMenu);

    connect(session->cuttingEdits(), &QUndoStack::indexChanged, this,
            &MainWindowController::updateEditMenu);
    connect(edit, &QMenu::aboutToShow, this, &MainWindowController::updateEditMenu);
    for (auto changed :
         {&ViewController::lessonShownChanged, &ViewController::referenceTextChanged})
        connect(session, changed, this, &MainWindowController::updateEditMenu);
    updateEditMenu();
}

void MainWindowController::updateEditMenu()
{
    const QUndoStack* edits = m_viewController->cuttingEdits();
    const QString undo = edits->canUndo() ? stringWithFormat(LocalizedString(Texts::MenuUndoNamed),
                                                             {edits->undoText()})
                                          : LocalizedString(Texts::MenuUndo);
    const QString redo = edits->canRedo() ? stringWithFormat(LocalizedString(Texts::MenuRedoNamed),
                                                             {edits->redoText()})
                                          : LocalizedString(Texts::MenuRedo);
    m_undoItem->setText(
        withKeys(undo, QKeySequence(QKeySequence::Undo).toString(QKeySequence::NativeText)));
    m_redoItem->setText(
        withKeys(redo, QKeySequence(QKeySequence::Redo).toString(QKeySequence::NativeText)));
    m_undoItem->setEnabled(edits->canUndo());
    m_redoItem->setEnabled(edits->canRedo());
    const ShortcutSet shortcuts = storedShortcuts(ObjectStorage(m_defaults));
    m_splitItem->setText(withKeys(LocalizedString(Texts::MenuSplitSegment),
                                  boundKeys(shortcuts, ShortcutAction::SplitSegment)));
    m_mergeItem->setText(withKeys(LocalizedString(Texts::MenuMergeSegments),
                                  boundKeys(shortcuts, ShortcutAction::MergeSegments)));
    m_cutAtSentencesItem->setEnabled(m_viewController->canCutAtSentences());
    m_alignAgainItem->setEnabled(m_viewController->canAlignReference());
}

void MainWindowController::updateViewMenu()
{
    m_hardSentencesItem->setText(
        withKeys(LocalizedString(Texts::MenuPractiseHard),
                 boundKeys(storedShortcuts(ObjectStorage(m_defaults)), ShortcutAction::PractiseHard)));
}
