// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ReferenceStore.h"

#include "ReferenceTestSupport.h"
#include "transcript/DocumentManager.h"

#include <QFileInfo>
#include <gtest/gtest.h>

using ReferenceTest::timed;
using ReferenceTest::untimed;

TEST(ReferenceText, JsonRoundTripKeepsEveryTimeAndCharacter)
{
    const QList<ReferenceText> references = {
        ReferenceText("lesson \u201cone\u201d.srt",
                      {timed("Tabs\tquotes \" and \\ back\u2019slashes", 0.1 + 0.2, 3723.004),
                       timed("\u65e5\u672c\u8a9e \U0001F600", 3723.004, 1e6 / 3.0)}),
        ReferenceText("plain.txt", {untimed("First line."), untimed("")}),
        ReferenceText("empty.srt", {}),
        ReferenceText::aligned("story.txt",
                               {{"First one.", 0.0, 2.48, false},
                                {"Second été.", 2.48, 5.0, true},
                                {"Third.", 5.02, 7.5, false}},
                               "fr"),
    };
    for (const ReferenceText& reference : references) {
        SCOPED_TRACE(reference.sourceName().toStdString());
        QString error;
        const std::optional<ReferenceText> back =
            ReferenceText::fromJson(reference.toJson(), &error);
        ASSERT_TRUE(back) << error.toStdString();
        EXPECT_EQ(*back, reference);
    }
    EXPECT_TRUE(references[0].toJson().contains("\"version\": 1"));
    EXPECT_FALSE(references[1].toJson().contains("\"start\""));

    const ReferenceText& aligned = references[3];
    EXPECT_TRUE(aligned.isAligned());
    EXPECT_TRUE(aligned.isTimed());
    EXPECT_EQ(aligned.language(), "fr");
    EXPECT_EQ(aligned.units()[1], timed("Second \u00e9t\u00e9.", 2.48, 5.0, true));
    EXPECT_EQ(aligned.toJson().count("\"uncertain\""), 1);

    // A file written before alignment existed reads as not aligned and is
    // written again byte for byte.
    const QByteArray older = "{\n    \"source\": \"a.srt\",\n    \"units\": [\n        {\n"
                             "            \"end\": 2,\n            \"start\": 1,\n"
                             "            \"text\": \"one\"\n        }\n    ],\n"
                             "    \"version\": 1\n}\n";
    const std::optional<ReferenceText> read = ReferenceText::fromJson(older);
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->isAligned());
    EXPECT_FALSE(read->units()[0].uncertain);
    EXPECT_EQ(read->toJson(), older);
}

TEST(ReferenceText, MalformedJsonIsAnErrorNotACrash)
{
    const struct
    {
        QByteArray json;
        QString says;
    } cases[] = {
        {"", "not JSON"},
        {"{\"version\": 1, \"source\": \"a\", \"units\": [", "not JSON"},
        {"\xff\xfe{}", "not JSON"},
        {"[1, 2]", "no JSON object"},
        {"{\"source\": \"a\", \"units\": []}", "no format version"},
        {"{\"version\": 1.5, \"source\": \"a\", \"units\": []}", "no format version"},
        {"{\"version\": 2, \"source\": \"a\", \"units\": []}", "format version 2"},
        {"{\"version\": 1, \"units\": []}", "no source"},
        {"{\"version\": 1, \"source\": \"a\", \"units\": {}}", "no list of units"},
        {"{\"version\": 1, \"source\": \"a\", \"units\": [7]}", "unit 1: no text"},
        {"{\"version\": 1, \"source\": \"a\", \"units\": [{\"text\": \"x\", \"start\": \"1\", "
         "\"end\": 2}]}",
         "unit 1: a time that is not a number"},
        {"{\"version\": 1, \"source\": \"a\", \"units\": [{\"text\": \"x\", \"start\": 1}]}",
         "unit 1: a start without an end"},
        {"{\"version\": 1, \"source\": \"a\", \"units\": [{\"text\": \"x\", \"start\": -1, "
         "\"end\": 2}]}",
         "unit 1: a negative time"},
        {"{\"version\": 1, \"source\": \"a\", \"units\": [{\"text\": \"x\", \"start\": 3, "
         "\"end\": 2}]}",
         "unit 1: ends before it starts"},
        {"{\"version\": 1, \"source\": \"a\", \"units\": [{\"text\": \"x\"}, {\"text\": \"y\", "
         "\"start\": 1, \"end\": 2}]}",
         "unit 2: timed and untimed units mixed"},
        {"{\"version\": 1, \"source\": \"a\", \"language\": 3, \"units\": []}",
         "a language that is not text"},
        {"{\"version\": 1, \"source\": \"a\", \"units\": [{\"text\": \"x\", \"start\": 1, "
         "\"end\": 2, \"uncertain\": \"yes\"}]}",
         "unit 1: an uncertain mark that is not true or false"},
        {"{\"version\": 1, \"source\": \"a\", \"units\": [{\"text\": \"x\", \"uncertain\": true}]}",
         "unit 1: an uncertain start that is not there"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.json.toStdString());
        QString error;
        EXPECT_FALSE(ReferenceText::fromJson(c.json, &error));
        EXPECT_TRUE(error.contains(c.says)) << error.toStdString();
    }
}

TEST(ReferenceStore, KeepsTheReferenceBesideTheTranscript)
{
    QTemporaryDir home;
    const DocumentManager documents(home.filePath("Documents"));
    const ReferenceStore store(documents);
    const QString identity(64, u'a');
    const QString path = home.filePath("Documents/Transcriptions/" + identity + ".reference");
    EXPECT_EQ(store.pathForIdentity(identity), path);

    QString error = "stale";
    EXPECT_FALSE(store.contains(identity));
    EXPECT_FALSE(store.load(identity, &error));
    EXPECT_TRUE(error.isEmpty()); // none stored is no error

    const ReferenceText first("a.srt", {timed("one", 1, 2)});
    const ReferenceText second("b.txt", {untimed("two")});
    ASSERT_TRUE(store.save(identity, first, &error)) << error.toStdString();
    ASSERT_TRUE(store.save(identity, second, &error)) << error.toStdString();
    EXPECT_TRUE(store.contains(identity));
    EXPECT_EQ(store.load(identity), second);
    EXPECT_FALSE(QFileInfo::exists(home.filePath("Documents/Transcriptions/" + identity)));

    // A damaged file is reported with its path and left for a look.
    TestSupport::writeFile(path, "{\"version\": 1, \"source\": ");
    EXPECT_FALSE(store.load(identity, &error));
    EXPECT_TRUE(error.contains(path)) << error.toStdString();
    EXPECT_TRUE(error.contains("not JSON")) << error.toStdString();
    EXPECT_TRUE(QFileInfo::exists(path));

    EXPECT_TRUE(store.remove(identity, &error));
    EXPECT_FALSE(store.contains(identity));
    EXPECT_TRUE(store.remove(identity, &error)); // already gone

    for (const QString& bad :
         {QString(), QString("../escape"), QString(".hidden"), QString("a\\b")}) {
        SCOPED_TRACE(bad.toStdString());
        EXPECT_TRUE(store.pathForIdentity(bad).isNull());
        EXPECT_FALSE(store.save(bad, first, &error));
        EXPECT_FALSE(store.load(bad, &error));
        EXPECT_FALSE(error.isEmpty());
        EXPECT_FALSE(store.remove(bad, &error));
    }
}
