// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/ObjectStorage.h"

#include "preferences/ArchivedObjects.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

using TestSupport::LogCapture;
using TestSupport::TempDefaults;
using namespace PreferenceKeys;

namespace {

bool logHasLineStartingWith(const LogCapture& log, const QString& prefix)
{
    for (const QString& line : log.lines()) {
        if (line.startsWith(prefix))
            return true;
    }
    return false;
}

} // namespace

TEST(DefaultPreferences, FreshUserReadsEveryRegisteredValue)
{
    TempDefaults t;
    regDefaultPreference(t.store());
    Defaults& d = t.store();
    ObjectStorage objects(d);

    // QColor's equality compares the colour model and every component.
    EXPECT_EQ(objects.colorForKey(TableBackgroundColor), QColor(18, 63, 124));
    EXPECT_EQ(objects.colorForKey(DictationTextColor), QColor(228, 223, 78));

    const std::optional<QFont> font = objects.fontForKey(DictationTextFont);
    ASSERT_TRUE(font);
    EXPECT_EQ(font->family(), "Menlo");
    EXPECT_EQ(font->pointSizeF(), 20.0);

    EXPECT_TRUE(d.boolForKey(ShowLineNumbers));
    EXPECT_TRUE(d.boolForKey(ShowAudioWave));
    EXPECT_TRUE(d.boolForKey(ShowStatusBar));
    EXPECT_EQ(d.doubleForKey(MinSegmentDuration), 1.0);
    EXPECT_EQ(d.doubleForKey(PlaySpeed), 1.0);
    EXPECT_EQ(d.integerForKey(MaxRepeatPlayTimes), 20);
    EXPECT_EQ(d.integerForKey(Sensitivity), 1);
    EXPECT_EQ(objects.keyboardShortcutForKey(RepeatPlayShortcut), KeyboardShortcut(15, 0x40000));

    // Nothing registered goes to disk, and keys without a default stay absent.
    EXPECT_FALSE(d.objectForKey(MinGapDuration).isValid());
    EXPECT_FALSE(d.objectForKey(AppLanguage).isValid());
    EXPECT_FALSE(d.objectForKey(AppleLanguages).isValid());
    ASSERT_TRUE(d.synchronize());
    t.reopen();
    EXPECT_FALSE(t.store().objectForKey(TableBackgroundColor).isValid());
}

TEST(DefaultPreferences, RegisteringAgainChangesNothingForAUserWithStoredValues)
{
    TempDefaults t;
    regDefaultPreference(t.store());
    ObjectStorage objects(t.store());
    const QColor mine = QColor::fromRgbF(0.25f, 0.5f, 0.75f, 0.5f);
    QFont myFont(QStringLiteral("DejaVu Sans Mono"));
    myFont.setPointSizeF(13.5);
    ASSERT_TRUE(objects.setColor(mine, TableBackgroundColor));
    ASSERT_TRUE(objects.setFont(myFont, DictationTextFont));
    ASSERT_TRUE(objects.setKeyboardShortcut({1, 0x100000}, NextSegmentShortcut));
    t.store().setBool(false, ShowStatusBar);
    t.store().setDouble(2.5, PlaySpeed);
    t.store().setInteger(7, MaxRepeatPlayTimes);

    regDefaultPreference(t.store());
    regDefaultPreference(t.store());

    EXPECT_EQ(objects.colorForKey(TableBackgroundColor), mine);
    EXPECT_EQ(objects.fontForKey(DictationTextFont)->family(), "DejaVu Sans Mono");
    EXPECT_EQ(objects.keyboardShortcutForKey(NextSegmentShortcut), KeyboardShortcut(1, 0x100000));
    EXPECT_FALSE(t.store().boolForKey(ShowStatusBar));
    EXPECT_EQ(t.store().doubleForKey(PlaySpeed), 2.5);
    EXPECT_EQ(t.store().integerForKey(MaxRepeatPlayTimes), 7);
    // Keys the user never set still answer with their defaults.
    EXPECT_EQ(objects.colorForKey(DictationTextColor), QColor(228, 223, 78));
    EXPECT_EQ(objects.keyboardShortcutForKey(PlayPauseShortcut), KeyboardShortcut(36, 0));
}

TEST(ObjectStorage, ColoursKeepModelAndComponentsThroughAReopenedFile)
{
    const QList<QColor> colours = {
        QColor::fromRgbF(18 / 255.0f, 63 / 255.0f, 124 / 255.0f, 1.0f),
        QColor::fromRgbF(0.123456f, 0.999f, 0.0001f, 0.3333f),
        QColor::fromRgb(0, 0, 0, 0),
        QColor::fromHsvF(0.61f, 0.4f, 0.9f, 0.8f),
        QColor::fromHsvF(-1.0f, 0.0f, 0.5f), // a grey: no hue
        QColor::fromHslF(0.1f, 0.7f, 0.35f),
        QColor::fromCmykF(0.1f, 0.2f, 0.3f, 0.4f, 0.9f),
        QColor::fromRgbF(1.5f, -0.25f, 0.5f, 1.0f), // extended range
        QColor(QColor::fromRgbF(0.2f, 0.4f, 0.6f).toExtendedRgb()),
    };
    TempDefaults t;
    for (int i = 0; i < colours.size(); ++i)
        ASSERT_TRUE(ObjectStorage(t.store()).setColor(colours[i], QStringLiteral("c%1").arg(i)));
    t.reopen();
    ObjectStorage objects(t.store());
    for (int i = 0; i < colours.size(); ++i) {
        const std::optional<QColor> back = objects.colorForKey(QStringLiteral("c%1").arg(i));
        ASSERT_TRUE(back) << i;
        EXPECT_EQ(*back, colours[i]) << i << " " << qPrintable(colours[i].name(QColor::HexArgb));
    }
}

TEST(ObjectStorage, FontsAndShortcutsSurviveAReopenedFile)
{
    TempDefaults t;
    {
        ObjectStorage objects(t.store());
        QFont font(QStringLiteral("Noto Sans CJK JP"));
        font.setPointSizeF(17.25);
        ASSERT_TRUE(objects.setFont(font, DictationTextFont));
        ASSERT_TRUE(objects.setKeyboardShortcut({-5, ~quint64(0)}, QStringLiteral("odd")));
        ASSERT_TRUE(objects.setKeyboardShortcut({0xffff, 0x1e0000}, QStringLiteral("wide")));
    }
    t.reopen(); // nothing registered: what comes back was read from the file
    ObjectStorage objects(t.store());
    const std::optional<QFont> font = objects.fontForKey(DictationTextFont);
    ASSERT_TRUE(font);
    EXPECT_EQ(font->family(), "Noto Sans CJK JP");
    EXPECT_EQ(font->pointSizeF(), 17.25);
    EXPECT_EQ(objects.keyboardShortcutForKey("odd"), KeyboardShortcut(-5, ~quint64(0)));
    EXPECT_EQ(objects.keyboardShortcutForKey("wide"), KeyboardShortcut(0xffff, 0x1e0000));
}

TEST(ObjectStorage, UnreadableDataReadsAsNothingWithTheLogLineAndStaysInPlace)
{
    QString error;
    const QByteArray colour = *ArchivedObjects::archiveColor(QColor(1, 2, 3), &error);
    const QByteArray font = *ArchivedObjects::archiveFont(QFont("Menlo", 12), &error);
    const QByteArray shortcut = *ArchivedObjects::archiveKeyboardShortcut({15, 0x40000}, &error);
    QByteArray noise(200, Qt::Uninitialized);
    QRandomGenerator gen(4242);
    for (char& c : noise)
        c = char(gen.bounded(256));

    struct Case
    {
        const char* key;
        QByteArray good;
        QByteArray otherClass;
        const char* line;
    };
    const Case cases[] = {
        {TableBackgroundColor, colour, shortcut, "Error unarchiving color: "},
        {DictationTextFont, font, colour, "Error unarchiving font: "},
        {PlayPauseShortcut, shortcut, font, "Error unarchiving keyboardShortcut: "},
    };
    for (const Case& c : cases) {
        const QList<QVariant> bad = {c.otherClass,          c.good.left(c.good.size() - 1),
                                     c.good.left(9),        noise,
                                     QByteArray(),          c.good + '\0',
                                     QStringLiteral("red"), 42};
        for (const QVariant& value : bad) {
            TempDefaults t;
            regDefaultPreference(t.store()); // a registered default must not hide the bad value
            t.store().setObject(value, c.key);
            ASSERT_TRUE(t.store().synchronize());
            t.reopen();
            LogCapture log;
            ObjectStorage objects(t.store());
            bool readSomething = true;
            if (QString(c.key) == TableBackgroundColor)
                readSomething = objects.colorForKey(c.key).has_value();
            else if (QString(c.key) == DictationTextFont)
                readSomething = objects.fontForKey(c.key).has_value();
            else
                readSomething = objects.keyboardShortcutForKey(c.key).has_value();
            EXPECT_FALSE(readSomething) << c.key << " " << value.toByteArray().toHex().constData();
            EXPECT_TRUE(logHasLineStartingWith(log, c.line)) << c.key;
            EXPECT_EQ(log.lines().size(), 1) << log.lines().join('\n').toStdString();
            EXPECT_TRUE(t.store().hasUserValue(c.key)) << "an unreadable value is left in place";
        }
    }
}

TEST(ObjectStorage, AbsentKeyReadsAsNothingWithoutALogLine)
{
    TempDefaults t;
    LogCapture log;
    ObjectStorage objects(t.store());
    EXPECT_FALSE(objects.colorForKey("nothing"));
    EXPECT_FALSE(objects.fontForKey("nothing"));
    EXPECT_FALSE(objects.keyboardShortcutForKey("nothing"));
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST(ObjectStorage, ObjectsThatCannotBeArchivedAreLoggedAndChangeNothing)
{
    TempDefaults t;
    ObjectStorage objects(t.store());
    ASSERT_TRUE(objects.setColor(QColor(9, 9, 9), "kept"));
    QFont pixelFont(QStringLiteral("Menlo"));
    pixelFont.setPixelSize(14); // no point size to keep

    LogCapture log;
    EXPECT_FALSE(objects.setColor(QColor(), "kept"));
    EXPECT_TRUE(log.contains("Error archiving color: the colour is invalid"));
    EXPECT_EQ(objects.colorForKey("kept"), QColor(9, 9, 9));

    EXPECT_FALSE(objects.registerColorForKey("fresh", QColor()));
    EXPECT_TRUE(log.contains("Error archiving color for key fresh: the colour is invalid"));
    EXPECT_FALSE(t.store().objectForKey("fresh").isValid());

    EXPECT_FALSE(objects.setFont(pixelFont, "f"));
    EXPECT_TRUE(log.contains("Error archiving font: the font has no point size"));
    EXPECT_FALSE(objects.registerFontForKey("f", QFont()));
    EXPECT_TRUE(log.contains("Error archiving font for key f: the font has no family"));
    EXPECT_FALSE(t.store().objectForKey("f").isValid());
}

TEST(ObjectStorage, AnUnreadableValueIsReplacedByTheNextWrite)
{
    TempDefaults t;
    t.store().setObject(QByteArray("garbage"), RepeatPlayShortcut);
    ObjectStorage objects(t.store());
    {
        LogCapture log;
        EXPECT_FALSE(objects.keyboardShortcutForKey(RepeatPlayShortcut));
    }
    ASSERT_TRUE(objects.setKeyboardShortcut({15, 0x100000}, RepeatPlayShortcut));
    t.reopen();
    EXPECT_EQ(ObjectStorage(t.store()).keyboardShortcutForKey(RepeatPlayShortcut),
              KeyboardShortcut(15, 0x100000));
}
