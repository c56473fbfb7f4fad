// What the dictation table draws: the packed header, the rows in the stored
// look, the look's changes through the notifications, no selection highlight.

#include "TranscriptionTableFixture.h"
#include "common/NotificationNames.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PreferenceKeys.h"

#include <QDir>
#include <QHeaderView>

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
};

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
    storage.setFont(QFont("Menlo", 30), PreferenceKeys::DictationTextFont);
    makeTable();
    EXPECT_EQ(table->tableBackgroundColor(), QColor(250, 250, 250));
    EXPECT_EQ(table->dictationTextColor(), kDefaultText);
    EXPECT_FALSE(table->showLineNumbers());
    EXPECT_EQ(table->dictationTextFont().pointSizeF(), 30.0);
}

TEST_F(TranscriptionTableLook, RowsAndHeaderFollowTheFontTitleHeight)
{
    makeTable();
    load(QStringList(5, QString()));
    for (const int points : {20, 36}) {
        center.post(Notifications::DictationTextFontDidChange, QFont("Menlo", points));
        TestSupport::processEvents();
        const int h = table->getTableHeaderSegmentSize(table->dictationTextFont()).height();
        EXPECT_GE(h, QFontMetrics(table->dictationTextFont()).height());
        EXPECT_NEAR(table->rowHeight(3), 1.4 * h, 0.5) << points;
        EXPECT_EQ(table->tableHeaderHeight(), int(h + 4.0)) << points;
        EXPECT_EQ(table->horizontalHeader()->height(), table->tableHeaderHeight());
        EXPECT_EQ(table->viewport()->geometry().top(), table->tableHeaderHeight());
        EXPECT_EQ(table->height() - table->viewport()->geometry().bottom() - 1, 10)
            << "room under the rows";
    }
    EXPECT_EQ(table->editorForRow(0)->font().pointSize(), 36);
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

TEST_F(TranscriptionTableLook, ASelectedRowLooksLikeAnyOther)
{
    makeTable();
    load({"", "same words", "same words", ""});
    table->setFocus(); // the editor shows the text as the painted rows do
    table->setCurrentSegment(2);
    ASSERT_EQ(table->currentIndex(), 2);
    const QImage image = render();
    const QImage selected = image.copy(cellRect(2, 1));
    const QImage other = image.copy(cellRect(1, 1));
    EXPECT_GT(countNear(other, other.rect(), kDefaultText), 20);
    EXPECT_TRUE(selected == other) << "no highlight, and the editor's text lines up with the "
                                      "painted rows' text";
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
    load(texts);
    table->setCurrentSegment(3);
    QWidget* editor = table->editorForRow(3);
    ASSERT_TRUE(editor);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      cellRect(3, 0).center() - table->viewport()->geometry().topLeft());
    QTest::keyClicks(editor, "and warm in the sou");
    const QImage image = render();
    // The row being typed in: black text and the blue caret.
    EXPECT_GT(countNear(image, cellRect(3, 1), Qt::black, 30), 20);
    EXPECT_GT(countNear(image, cellRect(3, 1), QColor(0, 122, 255), 30), 8);
    EXPECT_EQ(countNear(image, cellRect(3, 1), kDefaultText, 30), 0);
    QDir().mkpath(KELMORA_SCREENSHOT_DIR);
    ASSERT_TRUE(image.save(QStringLiteral(KELMORA_SCREENSHOT_DIR "/table.png")));
}

} // namespace
