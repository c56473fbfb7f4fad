// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window shows when it has no lesson, while a lesson is being
// analysed, and what it does with a recording dropped on it. Judged offscreen
// by the pixels of the window's picture.

#include "app/EmptyWindowHint.h"
#include "app/LoadingIndicator.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "support/TestSupport.h"
#include "views/TranscriptionTableView.h"
#include "views/WaveformView.h"

#include <QApplication>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

using TestSupport::fixture;

namespace {

// WCAG contrast of two opaque colours.
double contrast(const QColor& a, const QColor& b)
{
    auto luminance = [](const QColor& c) {
        auto linear = [](double v) {
            return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
    };
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

bool near(const QColor& a, const QColor& b, int tolerance)
{
    return std::abs(a.red() - b.red()) <= tolerance &&
           std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance;
}

// The window's picture in logical pixels, so that widget geometry maps onto it.
QImage picture(WindowHarness& h)
{
    QApplication::processEvents();
    QImage image = h.window().grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (image.devicePixelRatio() != 1.0)
        image = image.scaled(h.window().size());
    return image;
}

QRect inWindow(WindowHarness& h, const QWidget* widget)
{
    return QRect(widget->mapTo(&h.window(), QPoint(0, 0)), widget->size());
}

int count(const QImage& image, const QRect& area, const std::function<bool(QColor)>& match)
{
    int n = 0;
    const QRect r = area.intersected(image.rect());
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x)
            n += match(image.pixelColor(x, y)) ? 1 : 0;
    return n;
}

// The smallest rectangle holding every matching pixel of the area.
QRect bounds(const QImage& image, const QRect& area, const std::function<bool(QColor)>& match)
{
    QRect found;
    const QRect r = area.intersected(image.rect());
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x)
            if (match(image.pixelColor(x, y)))
                found |= QRect(x, y, 1, 1);
    return found;
}

const QColor kNavy(18, 63, 124);
const QColor kDictationYellow(228, 223, 78);

bool isWaveformGreen(const QColor& c)
{
    return c.green() > 120 && c.green() - c.red() > 60 && c.green() - c.blue() > 40;
}

// Sends a drag over `target` and then drops it there, as a file manager does.
// Returns whether the enter was accepted and with which action.
std::pair<bool, Qt::DropAction> dragAndDrop(QWidget* target, const QMimeData& data)
{
    const QPointF at(target->width() / 2.0, target->height() / 2.0);
    const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    QDragEnterEvent enter(at.toPoint(), offered, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return {false, Qt::IgnoreAction};
    QDropEvent drop(at, offered, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    return {drop.isAccepted(), drop.dropAction()};
}

QMimeData* filesMime(const QStringList& paths)
{
    auto* data = new QMimeData;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls << (path.contains(QStringLiteral("://")) ? QUrl(path) : QUrl::fromLocalFile(path));
    data->setUrls(urls);
    // File managers offer the paths as text too; a row must not take them.
    data->setText(paths.join(u'\n'));
    return data;
}

} // namespace

TEST(EmptyWindow, ShowsACentredHintLegibleOnTheTableColourUntilALessonOpens)
{
    WindowHarness h;
    auto* hint = h.window().findChild<QLabel*>(QStringLiteral("emptyWindowHint"));
    ASSERT_NE(hint, nullptr);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(hint->text(), "Open a recording with Ctrl+O or drop it here");
    // As the learner sees it; the probes below use a font of their own.
    const QImage shot = h.screenshot(QStringLiteral("empty-window"));
    ASSERT_FALSE(shot.isNull());
    hint->setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 15));
    QWidget* rows = h.session().transcriptionTableView()->viewport();
    const QRect area = inWindow(h, rows);
    const QImage image = picture(h);
    // Light ink on the navy table, centred both ways in the rows' area.
    auto isInk = [](const QColor& c) { return c.lightness() > 200; };
    const QRect ink = bounds(image, area, isInk);
    ASSERT_TRUE(ink.isValid());
    EXPECT_GT(count(image, area, isInk), 150);
    EXPECT_NEAR(ink.center().x(), area.center().x(), 3);
    EXPECT_NEAR(ink.center().y(), area.center().y(), 3);
    EXPECT_LT(ink.height(), 40) << "one line at this width";
    for (const QColor& background :
         {kNavy, QColor(0, 0, 255), QColor(0, 255, 0), QColor(128, 128, 128), QColor(255, 0, 0),
          QColor(0, 0, 0), QColor(255, 255, 255)}) {
        EXPECT_GE(contrast(EmptyWindowHint::inkColorOver(background), background), 4.5)
            << background.name().toStdString();
    }
    // On a light table the ink turns dark.
    const QColor cream(250, 240, 200);
    h.center().post(Notifications::TableBackgroundColorDidChange, cream);
    EXPECT_GE(contrast(EmptyWindowHint::inkColorOver(cream), cream), 7.0);
    EXPECT_GT(count(picture(h), area, [](const QColor& c) { return c.lightness() < 90; }), 150);

    // A lesson's rows replace it.
    ASSERT_TRUE(h.open(fixture("speech.wav")));
    EXPECT_FALSE(hint->isVisible());
}

TEST(LoadingWindow, HidesThePreviousRowsBehindASpinnerThatReadsOnAnyTableColour)
{
    WindowHarness h;
    QApplication::setActiveWindow(&h.window());
    ASSERT_TRUE(h.open(fixture("speech.wav")));
    TranscriptionTableView* table = h.session().transcriptionTableView();
    ASSERT_GT(table->model()->rowCount(), 3);
    table->updateTranscription(QStringLiteral("Good morning"), 2);
    QApplication::processEvents();
    QWidget* editor = table->editorForRow(0);
    ASSERT_TRUE(waitFor([&] { return QApplication::focusWidget() == editor; }));

    const QRect rowsArea = inWindow(h, table->viewport());
    const QRect stripArea = inWindow(h, h.session().waveformContainer());
    auto isYellow = [](const QColor& c) { return near(c, kDictationYellow, 40); };
    QImage image = picture(h);
    ASSERT_GT(count(image, rowsArea, isYellow), 50) << "the typed row is drawn";
    ASSERT_GT(count(image, stripArea, isWaveformGreen), 50) << "the waveform is drawn";

    // An analysis as long as it takes: the spinner over the table colour only.
    LoadingIndicator* spinner = h.session().loadingIndicator();
    h.session().showLoadingIndicator();
    spinner->setFraction(0.42);
    EXPECT_FALSE(table->viewport()->isVisible());
    EXPECT_NE(QApplication::focusWidget(), editor) << "keys do not go to a hidden row";
    h.screenshot(QStringLiteral("loading-spinner"));
    for (const QColor& background : {kNavy, QColor(250, 240, 200), QColor(128, 128, 128),
                                     QColor(0, 0, 255), QColor(0, 0, 0), QColor(255, 255, 255)}) {
        SCOPED_TRACE(background.name().toStdString());
        h.center().post(Notifications::TableBackgroundColorDidChange, background);
        image = picture(h);
        EXPECT_EQ(count(image, rowsArea, isYellow), 0);
        EXPECT_EQ(count(image, stripArea, isWaveformGreen), 0);
        const QRect plate = inWindow(h, spinner);
        ASSERT_TRUE(rowsArea.united(stripArea).contains(plate.center()));
        // Outside the plate the table colour alone, inside a plate that
        // stands out from it with ink that reads on the plate.
        const QRect beside = plate.translated(plate.width() + 10, 0);
        EXPECT_EQ(count(image, beside, [&](const QColor& c) { return !near(c, background, 2); }),
                  0);
        const QColor plateColour = image.pixelColor(plate.left() + 6, plate.center().y());
        EXPECT_GE(contrast(plateColour, background), 3.0);
        auto isInk = [&](const QColor& c) { return contrast(c, plateColour) >= 7.0; };
        // The spinner's spokes in the upper part, the percentage below them.
        const QRect spokes(plate.left(), plate.top(), plate.width(), 60);
        const QRect percentage(plate.left(), plate.top() + 60, plate.width(), plate.height() - 60);
        EXPECT_GT(count(image, spokes, isInk), 60);
        EXPECT_GT(count(image, percentage, isInk), 15);
    }
    spinner->setFraction(-1.0);
    image = picture(h);
    const QRect plate = inWindow(h, spinner);
    const QColor plateColour = image.pixelColor(plate.left() + 6, plate.center().y());
    EXPECT_EQ(count(image, plate.adjusted(4, 60, -4, -4),
                    [&](const QColor& c) { return contrast(c, plateColour) >= 3.0; }),
              0)
        << "no percentage before the engine reports one";

    // The open failed or was refused: the same rows come back, typing included.
    h.session().hideLoadingIndicator();
    EXPECT_TRUE(table->viewport()->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), editor);
    EXPECT_EQ(table->mutableTranscriptions().value(2), "Good morning");

    // A real open hides them at once and shows the new lesson's rows after.
    h.center().post(Notifications::TableBackgroundColorDidChange, kNavy);
    bool finished = false;
    h.session().setOpeningFinishedHandler([&](bool) { finished = true; });
    h.session().openFileFromPath(fixture("lesson_95s.wav"));
    EXPECT_FALSE(table->viewport()->isVisible());
    EXPECT_FALSE(h.session().waveformView()->parentWidget()->isVisible());
    ASSERT_TRUE(waitFor([&] { return finished; }, 60000));
    h.session().setOpeningFinishedHandler({});
    EXPECT_TRUE(table->viewport()->isVisible());
    EXPECT_TRUE(h.session().waveformView()->isVisible());
    EXPECT_EQ(table->model()->rowCount(), h.engine().numberOfSegments());
    EXPECT_TRUE(table->mutableTranscriptions().value(2).isEmpty());
}

TEST(LoadingWindow, ARefusedFileBringsThePreviousRowsBack)
{
    WindowHarness h;
    ASSERT_TRUE(h.open(fixture("speech.wav")));
    TranscriptionTableView* table = h.session().transcriptionTableView();
    const qsizetype rows = table->model()->rowCount();
    table->updateTranscription(QStringLiteral("Good morning"), 1);
    AlertAnswerer answerer(QStringLiteral("OK"));
    h.session().openFileChosen(fixture("text.mp3"));
    EXPECT_FALSE(table->viewport()->isVisible()) << "hidden while the file is checked";
    ASSERT_TRUE(answerer.waitForAlerts(1));
    EXPECT_EQ(answerer.seen()[0].text, "Invalid File Type");
    ASSERT_TRUE(waitFor([&] { return table->viewport()->isVisible(); }));
    EXPECT_EQ(table->model()->rowCount(), rows);
    EXPECT_EQ(table->mutableTranscriptions().value(1), "Good morning");
    EXPECT_TRUE(h.session().waveformView()->isVisible());
}

TEST(DroppedFile, AnAudioFileOpensThroughTheDirectRoadOtherDropsAreLeftAlone)
{
    WindowHarness h;
    QApplication::setActiveWindow(&h.window());
    bool finished = false;
    h.session().setOpeningFinishedHandler([&](bool) { finished = true; });

    // Not taken: other kinds of file, several files with no recording among
    // them, a remote recording, nothing but text.
    for (const QStringList& paths :
         {QStringList{fixture("cover.png")}, QStringList{fixture("cover.png"), fixture("text.txt")},
          QStringList{QStringLiteral("https://example.com/lesson.mp3")}}) {
        SCOPED_TRACE(paths.join(' ').toStdString());
        std::unique_ptr<QMimeData> data(filesMime(paths));
        EXPECT_FALSE(dragAndDrop(&h.window(), *data).first);
    }
    QMimeData text;
    text.setText(fixture("speech.wav"));
    EXPECT_FALSE(dragAndDrop(&h.window(), text).first);
    QApplication::processEvents();
    EXPECT_FALSE(finished);
    EXPECT_TRUE(h.session().currentAudioPath().isEmpty());

    // A recording dropped on the empty window, with its extension in any case,
    // after a file that is not one: taken as a copy and opened.
    std::unique_ptr<QMimeData> data(filesMime({fixture("cover.png"), fixture("speech.wav")}));
    const auto [taken, action] = dragAndDrop(&h.window(), *data);
    EXPECT_TRUE(taken);
    EXPECT_EQ(action, Qt::CopyAction) << "the file is never moved";
    ASSERT_TRUE(waitFor([&] { return finished; }, 60000));
    EXPECT_EQ(h.session().currentAudioPath(), fixture("speech.wav"));
    EXPECT_EQ(h.window().windowTitle(), "speech");
    EXPECT_GT(h.session().transcriptionTableView()->model()->rowCount(), 1);

    // On an open lesson, right onto the row being typed in: the row keeps its
    // text and the new recording opens.
    TranscriptionTableView* table = h.session().transcriptionTableView();
    auto* editor = qobject_cast<QLineEdit*>(table->editorForRow(0));
    ASSERT_NE(editor, nullptr);
    finished = false;
    // A recording under an upper-case extension.
    QFile::copy(fixture("speech.flac"), h.documentsPath() + "/Lesson.FLAC");
    data.reset(filesMime({h.documentsPath() + "/Lesson.FLAC"}));
    EXPECT_TRUE(dragAndDrop(editor, *data).first);
    EXPECT_TRUE(table->mutableTranscriptions().value(0).isEmpty());
    ASSERT_TRUE(waitFor([&] { return finished; }, 60000));
    EXPECT_EQ(h.window().windowTitle(), "Lesson");
    h.session().setOpeningFinishedHandler({});

    // Text dropped on a row is still the row's.
    ASSERT_TRUE(waitFor([&] { return table->editorForRow(0) != nullptr; }));
    editor = qobject_cast<QLineEdit*>(table->editorForRow(0));
    QMimeData words;
    words.setText(QStringLiteral("Hello"));
    EXPECT_TRUE(dragAndDrop(editor, words).first);
    EXPECT_EQ(editor->text(), "Hello");
}
