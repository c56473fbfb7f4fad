// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/DocumentManager.h"

#include "support/TestSupport.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class DocumentManagerTest : public ::testing::Test
{
protected:
    QTemporaryDir home;
    // The documents folder does not exist until it is first asked for.
    QString base = home.filePath("Documents");
    DocumentManager documents{base};
};

} // namespace

TEST_F(DocumentManagerTest, DocumentsFolderIsMadeOnFirstUse)
{
    EXPECT_FALSE(QFileInfo::exists(base));
    EXPECT_EQ(documents.documentsDirectory(), base);
    EXPECT_TRUE(QFileInfo(base).isDir());
    EXPECT_EQ(documents.pathForFilename("Transcriptions"), base + "/Transcriptions");
    EXPECT_EQ(documents.pathForFilename("a/b"), base + "/a/b");
}

TEST_F(DocumentManagerTest, UnusableDocumentsFolderIsLoggedAndReadsAsNull)
{
    TestSupport::writeFile(home.filePath("file"), {});
    DocumentManager broken(home.filePath("file/Documents"));
    TestSupport::LogCapture log;
    EXPECT_TRUE(broken.documentsDirectory().isNull());
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines()[0].startsWith("Error getting documents directory URL: "));
    EXPECT_TRUE(broken.pathForFilename("x").isNull());

    DocumentError error;
    EXPECT_FALSE(broken.saveData(QByteArray("x"), "x", &error));
    EXPECT_TRUE(broken.listFiles(&error).isEmpty());
    EXPECT_FALSE(error.localizedDescription.isEmpty());
}

TEST_F(DocumentManagerTest, CreateDirectoryReportsWhetherTheFolderAlreadyExisted)
{
    TestSupport::LogCapture log;
    DocumentError error;
    EXPECT_FALSE(documents.createDirectory("Transcriptions", &error));
    EXPECT_TRUE(QFileInfo(base + "/Transcriptions").isDir());
    EXPECT_TRUE(log.contains("Successfully created directory:Transcriptions"));

    log.clear();
    EXPECT_TRUE(documents.createDirectory("Transcriptions", &error));
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_FALSE(documents.createDirectory("deep/er/still", nullptr));
    EXPECT_TRUE(QFileInfo(base + "/deep/er/still").isDir());

    // Something that is not a folder counts as existing too.
    ASSERT_TRUE(documents.saveData(QByteArray("x"), "plain"));
    EXPECT_TRUE(documents.createDirectory("plain", &error));

    log.clear();
    EXPECT_FALSE(documents.createDirectory("plain/sub", &error));
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines()[0].startsWith("Failed to create directory: Error Domain="));
    EXPECT_EQ(error.domain, DocumentManager::FileSystemErrorDomain);
}

TEST_F(DocumentManagerTest, SaveLoadExistsAndDelete)
{
    DocumentError error;
    EXPECT_FALSE(documents.fileExistsWithName("notes"));
    ASSERT_TRUE(documents.saveData(QByteArray("first"), "notes", &error));
    ASSERT_TRUE(documents.saveData(QByteArray("second"), "notes", &error));
    EXPECT_TRUE(documents.fileExistsWithName("notes"));
    EXPECT_EQ(documents.loadDataWithName("notes", &error), QByteArray("second"));
    ASSERT_TRUE(documents.saveData(QByteArray(), "empty", &error));
    EXPECT_EQ(documents.loadDataWithName("empty", &error), QByteArray());

    EXPECT_TRUE(documents.deleteFileWithName("notes", &error));
    EXPECT_FALSE(documents.fileExistsWithName("notes"));
    EXPECT_TRUE(documents.deleteFileWithName("never-was", &error)); // missing counts as deleted

    ASSERT_FALSE(documents.createDirectory("folder/inner", &error));
    ASSERT_TRUE(documents.saveData(QByteArray("x"), "folder/inner/file", &error));
    EXPECT_TRUE(documents.deleteFileWithName("folder", &error));
    EXPECT_FALSE(QFileInfo::exists(base + "/folder"));

    EXPECT_FALSE(documents.loadDataWithName("never-was", &error));
    EXPECT_EQ(error.domain, DocumentManager::FileSystemErrorDomain);
}

TEST_F(DocumentManagerTest, MissingArgumentsGiveCode400)
{
    DocumentError error;
    EXPECT_FALSE(documents.saveData(std::nullopt, "name", &error));
    EXPECT_EQ(error.domain, "com.yourapp.error");
    EXPECT_EQ(error.code, 400);
    EXPECT_EQ(error.localizedDescription, "Invalid data or filename");

    EXPECT_FALSE(documents.saveData(QByteArray("x"), QString(), &error));
    EXPECT_EQ(error.localizedDescription, "Invalid data or filename");
    EXPECT_FALSE(documents.loadDataWithName("", &error));
    EXPECT_EQ(error.localizedDescription, "Invalid filename");
    error = {};
    EXPECT_FALSE(documents.deleteFileWithName(QString(), &error));
    EXPECT_EQ(error.code, 400);
    EXPECT_FALSE(documents.fileExistsWithName(QString()));

    // The error argument may be left out.
    EXPECT_FALSE(documents.saveData(std::nullopt, "name"));
}

TEST_F(DocumentManagerTest, NamesCannotReachOutsideTheDocumentsFolder)
{
    TestSupport::writeFile(home.filePath("precious"), "keep me");

    DocumentError error;
    for (const QString name : {"../precious", "a/../../precious", ".", "..", "./"}) {
        error = {};
        EXPECT_FALSE(documents.deleteFileWithName(name, &error)) << qPrintable(name);
        EXPECT_EQ(error.code, 400) << qPrintable(name);
        EXPECT_FALSE(documents.saveData(QByteArray("x"), name, &error)) << qPrintable(name);
        EXPECT_FALSE(documents.loadDataWithName(name, &error)) << qPrintable(name);
        EXPECT_FALSE(documents.fileExistsWithName(name)) << qPrintable(name);
    }
    EXPECT_TRUE(QFileInfo(base).isDir());
    EXPECT_TRUE(QFileInfo::exists(home.filePath("precious")));
    // An absolute name is appended like any other.
    ASSERT_TRUE(documents.saveData(QByteArray("x"), "/abs", &error));
    EXPECT_TRUE(QFileInfo::exists(base + "/abs"));
}

TEST_F(DocumentManagerTest, ListingAndAttributes)
{
    DocumentError error;
    EXPECT_TRUE(documents.listFiles(&error).isEmpty());
    documents.saveData(QByteArray("12345"), "b.txt");
    documents.saveData(QByteArray(), ".hidden");
    documents.createDirectory("a", &error);
    documents.saveData(QByteArray(), "a/not-listed");
    EXPECT_EQ(documents.listFiles(&error), (QStringList{".hidden", "a", "b.txt"}));

    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-5);
    const QVariantMap file = documents.attributesOfFile("b.txt", &error);
    EXPECT_EQ(file.value("type"), "regular");
    EXPECT_EQ(file.value("size").toLongLong(), 5);
    EXPECT_GT(file.value("modificationDate").toDateTime(), before);
    EXPECT_GT(file.value("systemFileNumber").toULongLong(), 0u);
    EXPECT_EQ(documents.attributesOfFile("a", &error).value("type"), "directory");

    ASSERT_TRUE(QFile::link(base + "/gone", base + "/link"));
    EXPECT_EQ(documents.attributesOfFile("link", &error).value("type"), "symbolicLink");

    error = {};
    EXPECT_TRUE(documents.attributesOfFile("absent", &error).isEmpty());
    EXPECT_TRUE(error.localizedDescription.contains("No such file"));
}
