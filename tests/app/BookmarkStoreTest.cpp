// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/BookmarkStore.h"

#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using TestSupport::LogCapture;
using TestSupport::TempDefaults;

namespace {

const QString bookmarkKey = PreferenceKeys::LastDirectoryBookmark;
const QString fileKey = PreferenceKeys::LastAudioFileName;

} // namespace

TEST(BookmarkStore, StoresBase64AndReadsItBackAfterARestart)
{
    TempDefaults defaults;
    QTemporaryDir folder;
    {
        BookmarkStore store(defaults.store());
        LogCapture log;
        store.saveBookmarkData(BookmarkStore::bookmarkDataForDirectory(folder.path()), bookmarkKey);
        EXPECT_TRUE(log.contains("Saved bookmark for key: LastDirectoryBookmark"));
        EXPECT_EQ(defaults.store().stringForKey(bookmarkKey), folder.path().toUtf8().toBase64());
    }
    defaults.reopen();
    BookmarkStore store(defaults.store());
    const auto data = store.loadBookmarkDataForKey(bookmarkKey);
    ASSERT_TRUE(data);
    bool stale = true;
    EXPECT_EQ(BookmarkStore::resolveBookmarkData(*data, &stale), folder.path());
    EXPECT_FALSE(stale);
    EXPECT_FALSE(store.loadBookmarkDataForKey("absent"));
}

TEST(BookmarkStore, AbsentDataIsLoggedAndNotStored)
{
    TempDefaults defaults;
    BookmarkStore store(defaults.store());
    LogCapture log;
    store.saveBookmarkData(std::nullopt, bookmarkKey);
    EXPECT_EQ(log.lines(), QStringList{"No bookmark data to save for key: LastDirectoryBookmark"});
    EXPECT_FALSE(defaults.store().hasUserValue(bookmarkKey));
}

TEST(BookmarkStore, ResolvingChecksTheFolder)
{
    QTemporaryDir dir;
    bool stale = false;
    QString error;
    // A relative path is stored absolute.
    EXPECT_EQ(BookmarkStore::bookmarkDataForDirectory("."), QDir::currentPath().toUtf8());

    const QByteArray gone = BookmarkStore::bookmarkDataForDirectory(dir.filePath("gone"));
    EXPECT_EQ(BookmarkStore::resolveBookmarkData(gone, &stale), dir.filePath("gone"));
    EXPECT_TRUE(stale);

    TestSupport::writeFile(dir.filePath("file"), {});
    EXPECT_FALSE(BookmarkStore::resolveBookmarkData(dir.filePath("file").toUtf8(), &stale, &error));
    EXPECT_TRUE(error.endsWith("Not a directory"));
    for (const QByteArray& junk : {QByteArray(), QByteArray("relative/path"),
                                   QByteArray("/bad\xff utf8"), QByteArray("/nul\0inside", 11)}) {
        EXPECT_FALSE(BookmarkStore::resolveBookmarkData(junk, &stale, &error));
    }
    EXPECT_TRUE(BookmarkStore::startAccessingDirectory(dir.path()));
    EXPECT_FALSE(BookmarkStore::startAccessingDirectory(dir.filePath("file")));
    EXPECT_FALSE(BookmarkStore::startAccessingDirectory(QString()));
}

TEST(BookmarkStore, RestoreKeepsAGoodBookmarkAndClearsABadOne)
{
    TempDefaults defaults;
    QTemporaryDir folder;
    BookmarkStore store(defaults.store());
    store.saveBookmarkData(BookmarkStore::bookmarkDataForDirectory(folder.path()), bookmarkKey);
    defaults.store().setObject(QStringLiteral("lesson.mp3"), fileKey);

    LogCapture log;
    store.restoreLastAudioFile();
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_TRUE(defaults.store().hasUserValue(bookmarkKey));
    EXPECT_TRUE(defaults.store().hasUserValue(fileKey));

    // Only the bookmark, no file name: nothing is checked or removed.
    defaults.store().removeObject(fileKey);
    store.saveBookmarkData(BookmarkStore::bookmarkDataForDirectory(folder.filePath("gone")),
                           bookmarkKey);
    log.clear();
    store.restoreLastAudioFile();
    EXPECT_TRUE(defaults.store().hasUserValue(bookmarkKey));

    // A folder that has gone is stale: both keys go, on disk too.
    defaults.store().setObject(QStringLiteral("lesson.mp3"), fileKey);
    log.clear();
    store.restoreLastAudioFile();
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines()[0].startsWith("Error resolving directory bookmark: "));
    defaults.reopen();
    EXPECT_FALSE(defaults.store().hasUserValue(bookmarkKey));
    EXPECT_FALSE(defaults.store().hasUserValue(fileKey));
}

TEST(BookmarkStore, DamagedStoredValueIsClearedToo)
{
    TempDefaults defaults;
    BookmarkStore store(defaults.store());
    defaults.store().setObject(QStringLiteral("*** not base64 ***"), bookmarkKey);
    defaults.store().setObject(QStringLiteral("lesson.mp3"), fileKey);
    EXPECT_FALSE(store.loadBookmarkDataForKey(bookmarkKey));
    LogCapture log;
    store.restoreLastAudioFile();
    EXPECT_EQ(
        log.lines(),
        QStringList{
            "Error resolving directory bookmark: The bookmark data is not valid base64 text"});
    EXPECT_FALSE(defaults.store().hasUserValue(bookmarkKey));
    EXPECT_FALSE(defaults.store().hasUserValue(fileKey));
}
