// SPDX-License-Identifier: GPL-3.0-or-later
// What the dictation table draws: the packed header, the rows in the stored
// look, the look's changes through the notifications, no selection highlight,
// the row being typed in on its light field lined up with the painted rows,
// the current row's mark, and long rows cut short.

#include "TranscriptionTableFixture.h"
#include "common/NotificationNames.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PreferenceKeys.h"
#include "views/ColorContrast.h"

#include <QDir>
#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

const QColor kBand(89, 180, 240);
const QColor kDefaultBackground(18, 63, 124);
const QColor kDefaultText(228, 223, 78);

class TranscriptionTableLook : public TranscriptionTableFixture
{
protected:
    // Left- and rightmost columns of white title pixels in the header band.
    std::pair<int, int> titleExtent(const QImage& image) const
    {
        int left = -1;
        int right = -1;
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < table->tableHeaderHeight(); ++y)
                if (near(image.pixelColor(x, y), Qt::white, 60)) {
                    if (left < 0)
                        left = x;
                    right = x;
                    break;
                }
        return {left, right};
    }

    int textWidth(const QString& text) const
    {
        return QFontMetrics(table->dictationTextFont()).horizontalAdvance(text);
    }

    // How much of a pixel of colour `p` is `ink` drawn on `paper`, from 0 to
    // 1; 0 for a colour off the line between the two.
    static double coverage(QColor p, QColor paper, QColor ink)
    {
        const double dr = ink.red() - paper.red();
        const double dg = ink.green() - paper.green();
        const double db = ink.blue() - paper.blue();
        const double pr = p.red() - paper.red();
        const double pg = p.green() - paper.green();
        const double pb = p.blue() - paper.blue();
        const double t = (pr * dr + pg * dg + pb * db) / (dr * dr + dg * dg + db * db);
        const double off = std::hypot(pr - t * dr, pg - t * dg, pb - t * db);
        return off < 48 ? std::clamp(t, 0.0, 1.0) : 0.0;
    }

    // The bounding box of the pixels in `area` that are more `ink` than `paper`.
    static QRect inkBox(const QImage& image, QRect area, QColor paper, QColor ink)
    {
        QRect box;
        area = area.intersected(image.rect());
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (coverage(image.pixelColor(x, y), paper, ink) > 0.5)
                    box |= QRect(x, y, 1, 1);
        return box;
    }

    // The centre of the ink in `area`, each pixel weighed by its coverage.
    static QPointF inkCentre(const QImage& image, QRect area, QColor paper, QColor ink)
    {
        double sum = 0;
        QPointF weighted;
        area = area.intersected(image.rect());
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x) {
                const double c = coverage(image.pixelColor(x, y), paper, ink);
                sum += c;
                weighted += c * QPointF(x, y);
            }
        return sum > 0 ? weighted / sum : QPointF();
    }

    // The bounding box of the pixels of exactly `color` in `area`.
    static QRect colorBox(const QImage& image, QRect area, QColor color)
    {
        QRect box;
        area = area.intersected(image.rect());
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (image.pixelColor(x, y) == color)
                    box |= QRect(x, y, 1, 1);
        return box;
    }

    QPoint inViewport(QPoint p) const { return p - table->viewport()->geometry().topLeft(); }
};

// The same, once with each monospace family.
class TranscriptionTableText : public TranscriptionTableLook,
                               public ::testing::WithParamInterface<const char*>
{
};

// The table colours the contrast must hold on: the default navy, a dark and a
// light one.
const QColor kTableColors[] = {kDefaultBackground, QColor(24, 24, 24), QColor(236, 236, 220)};

TEST_F(TranscriptionTableLook, HeaderPacksTheTitlesFromTheLeftEdgeOnTheBand)
{
    makeTable();
    load({"one", "two"});
    EXPECT_EQ(table->model()->columnCount(), 2);
    const int width = table->viewport()->width();
    const int numberWidth = table->getTableHeaderSegmentSize(table->dictationTextFont()).width();
    EXPECT_EQ(table->columnWidth(0), numberWidth);
    EXPECT_EQ(table->columnWidth(0) + table->columnWidth(1), width);

    QImage image = render();
    EXPECT_EQ(image.pixelColor(width - 2, table->tableHeaderHeight() / 2), kBand);
    auto [left, right] = titleExtent(image);
    EXPECT_LE(left, 3) << "\"Segment\" starts at the left edge";
    // "Segment" then "|Dictation", side by side, not over the wide column.
    EXPECT_NEAR(right, textWidth("Segment|Dictation"), 6);
    EXPECT_LT(right, width / 2);
    EXPECT_EQ(table->model()->headerData(1, Qt::Horizontal).toString(), "|Dictation");

    center.post(Notifications::ShowLineNumbersDidChange, false);
    TestSupport::processEvents();
    EXPECT_FALSE(table->showLineNumbers());
    EXPECT_TRUE(table->isColumnHidden(0));
    EXPECT_EQ(table->columnWidth(1), width) << "the text column takes the whole width";
    image = render();
    std::tie(left, right) = titleExtent(image);
    EXPECT_LE(left, 3) << "the dictation title starts at the left edge";
    EXPECT_NEAR(right, textWidth("Dictation"), 6);
    EXPECT_EQ(table->model()->headerData(1, Qt::Horizontal).toString(), "Dictation");

    center.post(Notifications::ShowLineNumbersDidChange, QStringLiteral("yes"));
    EXPECT_FALSE(table->showLineNumbers()) << "a wrong-typed object is ignored";
    center.post(Notifications::ShowLineNumbersDidChange, true);
    EXPECT_FALSE(table->isColumnHidden(0));
}

TEST_F(TranscriptionTableLook, StoredLookIsReadAtCreation)
{
    ObjectStorage storage(defaults.store());
    storage.setColor(QColor(250, 250, 250), PreferenceKeys::TableBackgroundColor);
    defaults.store().setBool(false, PreferenceKeys::ShowLineNumbers);
    useFont("Noto Sans Mono", 30);
    makeTable();
    EXPECT_EQ(table->tableBackgroundColor(), QColor(250, 250, 250));
    EXPECT_EQ(table->dictationTextColor(), kDefaultText);
    EXPECT_FALSE(table->showLineNumbers());
    EXPECT_EQ(table->dictationTextFont().family(), "Noto Sans Mono");
    EXPECT_EQ(table->dictationTextFont().pointSizeF(), 30.0);
}

TEST_F(TranscriptionTableLook, RowsAndHeaderFollowTheFontTitleHeight)
{
    makeTable({900, 400});
    load(QStringList(5, "Hej, så går vi!"));
    for (const char* family : kMonospaceFamilies)
        for (const int points : {20, 36, 13}) {
            center.post(Notifications::DictationTextFontDidChange, monospaceFont(family, points));
            TestSupport::processEvents();
            const int h = table->getTableHeaderSegmentSize(table->dictationTextFont()).height();
            EXPECT_GE(h, QFontMetrics(table->dictationTextFont()).height());
            EXPECT_NEAR(table->rowHeight(3), 1.4 * h, 0.5) << points;
            EXPECT_EQ(table->tableHeaderHeight(), int(h + 4.0)) << points;
            EXPECT_EQ(table->horizontalHeader()->height(), table->tableHeaderHeight());
            EXPECT_EQ(table->viewport()->geometry().top(), table->tableHeaderHeight());
            EXPECT_EQ(table->height() - table->viewport()->geometry().bottom() - 1, 10)
                << "room under the rows";
            // The row's field keeps its text where the painted rows have theirs.
            table->setFocus();
            const QImage image = render();
            EXPECT_TRUE(image.copy(cellRect(0, 1)) == image.copy(cellRect(1, 1)))
                << family << " " << points;
        }
    EXPECT_EQ(table->editorForRow(0)->font().pointSize(), 13);
}

TEST_F(TranscriptionTableLook, RowsAreDrawnInTheLookAndFollowItsChanges)
{
    makeTable();
    load({"", "MMMMMM", ""});
    table->setFocus(); // row 1 is painted, not edited
    QImage image = render();
    const QRect number = cellRect(1, 0);
    const QRect text = cellRect(1, 1);
    EXPECT_EQ(image.pixelColor(text.right() - 3, text.center().y()), kDefaultBackground);
    EXPECT_EQ(image.pixelColor(cellRect(2, 1).center()), kDefaultBackground);
    EXPECT_GT(countNear(image, text, kDefaultText), 20) << "the dictation text colour";
    // The numbers take the background's complementary colour.
    EXPECT_GT(countNear(image, number, QColor(237, 192, 131)), 5) << "the number colour";

    const QColor background = QColor::fromRgbF(0.2f, 0.4f, 0.6f);
    center.post(Notifications::TableBackgroundColorDidChange, background);
    center.post(Notifications::DictationTextColorDidChange, QColor(255, 0, 0));
    center.post(Notifications::DictationTextColorDidChange, QStringLiteral("green")); // ignored
    table->setFocus();
    image = render();
    EXPECT_EQ(image.pixelColor(text.right() - 3, text.center().y()), background.toRgb());
    EXPECT_EQ(countNear(image, text, kDefaultText), 0);
    EXPECT_GT(countNear(image, text, QColor(255, 0, 0)), 20);
    EXPECT_GT(countNear(image, number, QColor::fromRgbF(0.8f, 0.6f, 0.4f)), 5);
    EXPECT_EQ(table->dictationTextColor(), QColor(255, 0, 0));
}

TEST_F(TranscriptionTableLook, ContrastIsMeasuredAsTheAccessibilityGuidelinesDo)
{
    EXPECT_NEAR(ColorContrast::ratio(Qt::black, Qt::white), 21.0, 1e-9);
    EXPECT_NEAR(ColorContrast::ratio(QColor(119, 119, 119), Qt::white), 4.48, 0.01);
    EXPECT_NEAR(ColorContrast::ratio(kDefaultBackground, kDefaultBackground), 1.0, 1e-9);
    EXPECT_EQ(ColorContrast::bestOn(kDefaultBackground, {Qt::black, Qt::white}), QColor(Qt::white));
}

TEST_P(TranscriptionTableText, TheRowBeingTypedInLinesUpWithThePaintedRowsToThePixel)
{
    useFont(GetParam());
    makeTable({720, 420});
    // Capitals with marks above, descenders, Cyrillic and punctuation: glyphs
    // whose boxes differ from the font's line.
    const QStringList samples = {"same words", "Ça a été — ÉÀÜ, façon?", "Привет, ЁЙЩ дела?",
                                 "gjpqy ([{|}])"};
    QStringList texts;
    for (const QString& sample : samples)
        texts << sample << sample;
    load(texts);
    for (int i = 0; i < samples.size(); ++i) {
        const int painted = 2 * i;
        const int edited = 2 * i + 1;
        table->setFocus(); // the row's field shows its text as the painted rows do
        table->setCurrentSegment(edited);
        ASSERT_TRUE(table->editorForRow(edited));
        QImage image = render();
        const QImage other = image.copy(cellRect(painted, 1));
        EXPECT_GT(countNear(other, other.rect(), kDefaultText), 20);
        EXPECT_TRUE(image.copy(cellRect(edited, 1)) == other)
            << "no highlight, and the field's text sits where the painted text does: "
            << samples[i].toStdString();

        // Typed in: black on the light field, the same glyphs in the same place.
        table->editorForRow(edited)->setFocus();
        image = render();
        const QRect cell = cellRect(edited, 1);
        const QColor field = image.pixelColor(cell.right() - 12, cell.center().y());
        // The coverage-weighted centres of the glyphs agree: a part-covered
        // pixel counts as ink or paper by a rounding that differs with the
        // colours, so their boxes may differ by one. Between the field's
        // rounded corners, in both rows.
        const int down = cellRect(painted, 1).top() - cell.top();
        const QRect band = cell.adjusted(0, 6, 0, -6);
        const QPointF typedCentre = inkCentre(image, band, field, Qt::black);
        const QPointF shownCentre =
            inkCentre(image, band.translated(0, down), kDefaultBackground, kDefaultText);
        EXPECT_NEAR(typedCentre.x(), shownCentre.x(), 0.1) << samples[i].toStdString();
        EXPECT_NEAR(typedCentre.y() + down, shownCentre.y(), 0.1) << samples[i].toStdString();
        const QRect typed = inkBox(image, band, field, Qt::black).translated(0, down);
        const QRect shown =
            inkBox(image, band.translated(0, down), kDefaultBackground, kDefaultText);
        EXPECT_FALSE(shown.isEmpty());
        EXPECT_LE((typed.topLeft() - shown.topLeft()).manhattanLength(), 1);
        EXPECT_LE((typed.bottomRight() - shown.bottomRight()).manhattanLength(), 1);
    }
}

TEST_P(TranscriptionTableText, TheRowBeingTypedInReadsBlackOnALightFieldOnAnyTableColour)
{
    useFont(GetParam());
    makeTable({720, 300});
    load({"A painted row", "", "Another painted row"});
    table->setCurrentSegment(1);
    QWidget* editor = table->editorForRow(1);
    ASSERT_TRUE(editor);
    editor->setFocus();
    QTest::keyClicks(editor, "MWM typed");
    for (const QColor& background : kTableColors) {
        center.post(Notifications::TableBackgroundColorDidChange, background);
        const QImage image = render();
        const QRect cell = cellRect(1, 1);
        const int y = cell.center().y();
        const QColor field = image.pixelColor(cell.right() - 12, y);
        const QRect fieldBox = colorBox(image, cell, field);
        // A field inset from the row's edges, its corners rounded.
        EXPECT_GT(fieldBox.left(), cell.left()) << background.name().toStdString();
        EXPECT_LT(fieldBox.right(), cell.right());
        EXPECT_GT(fieldBox.top(), cell.top());
        EXPECT_LT(fieldBox.bottom(), cell.bottom());
        EXPECT_EQ(image.pixelColor(cell.left(), y), background);
        EXPECT_EQ(image.pixelColor(cell.right() - 12, cell.top()), background);
        EXPECT_NE(image.pixelColor(fieldBox.topLeft()), field) << "rounded";
        EXPECT_EQ(image.pixelColor(fieldBox.topLeft() + QPoint(4, 4)), field);
        // Black text on it at 10:1 or better (black on white is 21:1).
        const QRect ink = inkBox(image, fieldBox, field, Qt::black);
        ASSERT_FALSE(ink.isEmpty());
        double darkest = 1.0;
        QColor text;
        for (int py = ink.top(); py <= ink.bottom(); ++py)
            for (int px = ink.left(); px <= ink.right(); ++px)
                if (const QColor p = image.pixelColor(px, py);
                    ColorContrast::luminance(p) < darkest) {
                    darkest = ColorContrast::luminance(p);
                    text = p;
                }
        EXPECT_EQ(text, QColor(Qt::black));
        const double contrast = ColorContrast::ratio(field, text);
        EXPECT_GE(contrast, 10.0) << background.name().toStdString();
        std::printf("table %s: field %s, text %s, contrast %.2f:1\n", qPrintable(background.name()),
                    qPrintable(field.name()), qPrintable(text.name()), contrast);
        EXPECT_GT(countNear(image, fieldBox, Qt::black, 30), 20);
        // The painted rows stay on the table colour: no highlight.
        EXPECT_EQ(image.pixelColor(cellRect(0, 1).right() - 3, cellRect(0, 1).center().y()),
                  background);
    }
}

TEST_P(TranscriptionTableText, ALongRowIsCutShortWithAnEllipsisAndShownWholeInATooltip)
{
    useFont(GetParam());
    makeTable({480, 300});
    const QString longText = QString("Mississippi ").repeated(12).trimmed();
    load({"", longText, "tiny", longText});
    table->setFocus();
    const QImage image = render();
    const QRect cell = cellRect(1, 1);
    const QRect ink = inkBox(image, cell, kDefaultBackground, kDefaultText);
    const int advance = QFontMetrics(table->dictationTextFont()).horizontalAdvance('M');
    EXPECT_LT(ink.right(), cell.right() - 2) << "the text stops short of the edge";
    EXPECT_GT(ink.right(), cell.right() - 2 * advance - 8) << "after using the width";
    // The last glyph is the ellipsis: dots on the baseline, below the letters'
    // tops.
    const QRect last =
        inkBox(image, QRect(ink.right() - advance + 2, cell.top(), advance - 2, cell.height()),
               kDefaultBackground, kDefaultText);
    EXPECT_GT(last.top(), ink.top() + ink.height() / 2);
    EXPECT_TRUE(image.copy(cell) == image.copy(cellRect(3, 1)));

    // Hovering: a row that fits has no tooltip, a cut one shows its whole text.
    const auto hover = [&](int row) {
        const QPoint at = inViewport(cellRect(row, 1).center());
        QHelpEvent help(QEvent::ToolTip, at, table->viewport()->mapToGlobal(at));
        QApplication::sendEvent(table->viewport(), &help);
    };
    hover(2);
    EXPECT_FALSE(QToolTip::isVisible());
    hover(1);
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QToolTip::text(), longText);
    QToolTip::hideText();
}

INSTANTIATE_TEST_SUITE_P(Monospace, TranscriptionTableText, ::testing::ValuesIn(kMonospaceFamilies),
                         [](const ::testing::TestParamInfo<const char*>& family) {
                             return QString(family.param).remove(' ').toStdString();
                         });

TEST_F(TranscriptionTableLook, TheCurrentRowKeepsAMarkWhereverTheFocusIs)
{
    makeTable();
    load({"one", "two", "three"});
    // A bar down the left edge of the row's first column.
    const auto markOf = [&](const QImage& image, int row, int column) {
        const QRect cell = cellRect(row, column);
        return image.pixelColor(cell.left() + 1, cell.center().y());
    };
    const auto hasMark = [&](const QImage& image, int row, int column) {
        const QRect cell = cellRect(row, column);
        const QColor background = table->tableBackgroundColor();
        const QColor mark = markOf(image, row, column);
        const int y = cell.center().y();
        return mark != background && image.pixelColor(cell.left(), y) == mark &&
               image.pixelColor(cell.left() + 2, y) == mark &&
               image.pixelColor(cell.left() + 4, y) == background && // thin
               image.pixelColor(cell.left() + 1, cell.top()) == background;
    };
    for (const QColor& background : kTableColors) {
        center.post(Notifications::TableBackgroundColorDidChange, background);
        for (const int row : {0, 2}) {
            table->setCurrentSegment(row);
            table->editorForRow(row)->setFocus();
            QImage image = render();
            EXPECT_TRUE(hasMark(image, row, 0)) << row;
            EXPECT_FALSE(hasMark(image, 1, 0));
            EXPECT_EQ(markOf(image, 1, 0), background);
            EXPECT_GE(ColorContrast::ratio(markOf(image, row, 0), background), 3.0)
                << background.name().toStdString();
            table->setFocus(); // the focus elsewhere, the mark stays
            image = render();
            EXPECT_TRUE(hasMark(image, row, 0)) << "unfocused " << row;
        }
    }
    // Without the number column the mark sits at the text's left edge.
    center.post(Notifications::ShowLineNumbersDidChange, false);
    const QImage image = render();
    EXPECT_TRUE(hasMark(image, 2, 1));
    EXPECT_FALSE(hasMark(image, 0, 1));
    EXPECT_GT(countNear(image, cellRect(2, 1), kDefaultText), 20) << "the text is not covered";
}

TEST_F(TranscriptionTableLook, TheEditedRowIsBlackWithABlueCaret)
{
    makeTable({720, 520});
    QStringList texts;
    for (int i = 0; i < 12; ++i)
        texts << QString();
    texts[0] = "Good morning, everyone.";
    texts[1] = "Today we talk about the weather.";
    texts[2] = "It is cold in the north";
    texts[4] = "Many people there keep a warm coat by the door all year, even in summer.";
    load(texts);
    table->setCurrentSegment(3);
    QWidget* editor = table->editorForRow(3);
    ASSERT_TRUE(editor);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, inViewport(cellRect(3, 0).center()));
    QTest::keyClicks(editor, "and warm in the sou");
    const QImage image = render();
    // The row being typed in: black text and the blue caret.
    EXPECT_GT(countNear(image, cellRect(3, 1), Qt::black, 30), 20);
    EXPECT_GT(countNear(image, cellRect(3, 1), QColor(0, 122, 255), 30), 8);
    EXPECT_EQ(countNear(image, cellRect(3, 1), kDefaultText, 30), 0);
    QDir().mkpath(KELMORA_SCREENSHOT_DIR);
    ASSERT_TRUE(image.save(QStringLiteral(KELMORA_SCREENSHOT_DIR "/edited-row.png")));
}

} // namespace
