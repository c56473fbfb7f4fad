// SPDX-License-Identifier: GPL-3.0-or-later
// The Open Recent list in the defaults store.

#include "app/RecentDocuments.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QString touch(const QTemporaryDir& dir, const QString& name)
{
    const QString path = dir.filePath(name);
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    return path;
}

} // namespace

TEST(RecentDocuments, KeepsTenPathsNewestFirstWithoutRepeats)
{
    TestSupport::TempDefaults defaults;
    QTemporaryDir dir;
    RecentDocuments recent(defaults.store());
    for (int i = 0; i < 12; ++i)
        recent.add(touch(dir, QStringLiteral("lesson %1.mp3").arg(i)));
    recent.add(dir.filePath(QStringLiteral("lesson 5.mp3")));

    defaults.reopen();
    const QStringList paths = RecentDocuments(defaults.store()).paths();
    ASSERT_EQ(paths.size(), 10);
    EXPECT_EQ(paths[0], dir.filePath("lesson 5.mp3"));
    EXPECT_EQ(paths[1], dir.filePath("lesson 11.mp3"));
    EXPECT_EQ(paths.count(dir.filePath("lesson 5.mp3")), 1);
    EXPECT_FALSE(paths.contains(dir.filePath("lesson 1.mp3")));
}

TEST(RecentDocuments, ShowsOnlyFilesThatStillExistAndSurvivesOddPaths)
{
    TestSupport::TempDefaults defaults;
    QTemporaryDir dir;
    RecentDocuments recent(defaults.store());
    const QString kept = touch(dir, QStringLiteral("a, b; \"c\" =d.mp3"));
    const QString gone = touch(dir, QStringLiteral("gone.mp3"));
    recent.add(gone);
    recent.add(kept);
    QFile::remove(gone);

    defaults.reopen();
    EXPECT_EQ(RecentDocuments(defaults.store()).existingPaths(), QStringList{kept});
    RecentDocuments(defaults.store()).clear();
    EXPECT_TRUE(RecentDocuments(defaults.store()).paths().isEmpty());
}

TEST(RecentDocuments, AStoredValueOfAnotherTypeCountsAsNoList)
{
    TestSupport::TempDefaults defaults;
    defaults.store().setObject(42, PreferenceKeys::RecentDocuments);
    EXPECT_TRUE(RecentDocuments(defaults.store()).paths().isEmpty());
    QTemporaryDir dir;
    RecentDocuments(defaults.store()).add(touch(dir, QStringLiteral("x.mp3")));
    EXPECT_EQ(RecentDocuments(defaults.store()).paths().size(), 1);
}
