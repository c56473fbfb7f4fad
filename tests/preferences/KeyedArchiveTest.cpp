// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/KeyedArchive.h"

#include "preferences/ArchivedObjects.h"

#include <QDataStream>
#include <QIODevice>
#include <gtest/gtest.h>
#include <limits>

namespace {

QByteArray sampleArchive()
{
    KeyedArchiver a("Sample", 2);
    a.encodeInt64("i", std::numeric_limits<qint64>::min());
    a.encodeUInt64("u", std::numeric_limits<quint64>::max());
    a.encodeDouble("d", -0.1);
    a.encodeString("s", QStringLiteral("Menlo — 日本語"));
    a.encodeString("empty", QString());
    QString error;
    const std::optional<QByteArray> data = a.archivedData(&error);
    EXPECT_TRUE(data) << error.toStdString();
    return data.value_or(QByteArray());
}

// An archive written by hand, to reach the cases the writer refuses to make.
QByteArray handMade(const char* tag, quint16 version, quint16 count,
                    const std::function<void(QDataStream&)>& entries)
{
    QByteArray data("KLAR");
    QDataStream out(&data, QIODevice::WriteOnly | QIODevice::Append);
    out.setByteOrder(QDataStream::BigEndian);
    out << quint8(strlen(tag));
    out.writeRawData(tag, int(strlen(tag)));
    out << version << count;
    entries(out);
    return data;
}

void writeKey(QDataStream& out, const char* key)
{
    out << quint8(strlen(key));
    out.writeRawData(key, int(strlen(key)));
}

} // namespace

TEST(KeyedArchive, EveryValueTypeRoundTripsExactly)
{
    KeyedUnarchiver r(sampleArchive(), "Sample", 2);
    ASSERT_TRUE(r.isValid()) << r.errorString().toStdString();
    EXPECT_EQ(r.version(), 2);
    EXPECT_EQ(r.decodeInt64("i"), std::numeric_limits<qint64>::min());
    EXPECT_EQ(r.decodeUInt64("u"), std::numeric_limits<quint64>::max());
    EXPECT_EQ(r.decodeDouble("d"), -0.1);
    EXPECT_EQ(r.decodeString("s"), QStringLiteral("Menlo — 日本語"));
    EXPECT_EQ(r.decodeString("empty"), QString(""));
    EXPECT_TRUE(r.isValid());
}

TEST(KeyedArchive, ReaderRefusesOtherClassesNewerVersionsAndWrongTypes)
{
    const QByteArray data = sampleArchive();
    {
        KeyedUnarchiver r(data, "KeyboardShortcut", 1);
        EXPECT_FALSE(r.isValid());
        EXPECT_EQ(r.errorString(), "the archive holds a Sample, not a KeyboardShortcut");
    }
    {
        KeyedUnarchiver r(data, "Sample", 1);
        EXPECT_FALSE(r.isValid());
        EXPECT_TRUE(r.errorString().contains("version 2"));
    }
    {
        KeyedUnarchiver r(data, "Sample", 2);
        EXPECT_FALSE(r.decodeInt64("u"));
        EXPECT_FALSE(r.isValid());
        EXPECT_EQ(r.errorString(), "the value under \"u\" is not a signed integer");
    }
    {
        KeyedUnarchiver r(data, "Sample", 2);
        EXPECT_FALSE(r.decodeDouble("missing"));
        EXPECT_FALSE(r.isValid());
    }
}

TEST(KeyedArchive, EveryTruncationAndAnyTrailingByteIsRefused)
{
    const QByteArray data = sampleArchive();
    for (qsizetype n = 0; n < data.size(); ++n) {
        KeyedUnarchiver r(data.left(n), "Sample", 2);
        EXPECT_FALSE(r.isValid()) << "prefix of " << n << " bytes";
    }
    EXPECT_FALSE(KeyedUnarchiver(data + 'x', "Sample", 2).isValid());
    EXPECT_FALSE(KeyedUnarchiver(QByteArray("KLAX") + data.mid(4), "Sample", 2).isValid());
}

TEST(KeyedArchive, MalformedEntriesAreRefused)
{
    const auto expectRefused = [](const QByteArray& data, const char* why) {
        KeyedUnarchiver r(data, "T", 1);
        EXPECT_FALSE(r.isValid()) << why;
    };
    expectRefused(handMade("T", 1, 2,
                           [](QDataStream& o) {
                               writeKey(o, "a");
                               o << quint8('i') << qint64(1);
                               writeKey(o, "a");
                               o << quint8('i') << qint64(2);
                           }),
                  "repeated key");
    expectRefused(handMade("T", 1, 1,
                           [](QDataStream& o) {
                               writeKey(o, "a");
                               o << quint8('z') << qint64(1);
                           }),
                  "unknown type");
    expectRefused(handMade("T", 1, 1,
                           [](QDataStream& o) {
                               writeKey(o, "a");
                               o << quint8('s') << quint32(2);
                               o.writeRawData("\xc3\x28", 2);
                           }),
                  "invalid UTF-8");
    expectRefused(handMade("T", 1, 1,
                           [](QDataStream& o) {
                               writeKey(o, "a");
                               o << quint8('s') << quint32(0xfffffff0);
                           }),
                  "string longer than the data");
    expectRefused(handMade("T", 1, 1,
                           [](QDataStream& o) {
                               o << quint8(0);
                               o << quint8('i') << qint64(1);
                           }),
                  "empty key");
    expectRefused(handMade("T", 1, 1,
                           [](QDataStream& o) {
                               writeKey(o, "a b");
                               o << quint8('i') << qint64(1);
                           }),
                  "key with a space");
    expectRefused(handMade("T", 0, 0, [](QDataStream&) {}), "version 0");
    expectRefused(handMade("T", 1, 60000, [](QDataStream&) {}), "absurd entry count");
    EXPECT_TRUE(KeyedUnarchiver(handMade("T", 1, 0, [](QDataStream&) {}), "T", 1).isValid());
}

TEST(KeyedArchive, WriterRefusesNamesOutsideTheFormat)
{
    QString error;
    EXPECT_FALSE(KeyedArchiver("", 1).archivedData(&error));
    EXPECT_FALSE(KeyedArchiver("T", 0).archivedData(&error));
    KeyedArchiver twice("T", 1);
    twice.encodeInt64("k", 1);
    twice.encodeUInt64("k", 2);
    EXPECT_FALSE(twice.archivedData(&error));
    EXPECT_EQ(error, "the key \"k\" is encoded twice");
    KeyedArchiver longString("T", 1);
    longString.encodeString("s", QString(70000, QLatin1Char('x')));
    EXPECT_FALSE(longString.archivedData(&error));
}

TEST(ArchivedObjects, ColourComponentsOutsideTheirModelAreRefused)
{
    const auto colourArchive = [](const char* space, double c0, double alpha) {
        KeyedArchiver a(ArchivedObjects::ColorClassTag, 1);
        a.encodeString("colorSpace", space);
        a.encodeDouble("red", c0);
        a.encodeDouble("green", 0.5);
        a.encodeDouble("blue", 0.5);
        a.encodeDouble("alpha", alpha);
        return *a.archivedData(nullptr);
    };
    QString error;
    EXPECT_TRUE(ArchivedObjects::unarchiveColor(colourArchive("rgb", 0.2, 1.0), &error));
    EXPECT_FALSE(ArchivedObjects::unarchiveColor(colourArchive("rgb", 1.5, 1.0), &error));
    EXPECT_EQ(error, "the red component 1.5 is out of range");
    EXPECT_FALSE(ArchivedObjects::unarchiveColor(colourArchive("rgb", 0.2, 2.0), &error));
    EXPECT_FALSE(ArchivedObjects::unarchiveColor(
        colourArchive("rgb", std::numeric_limits<double>::quiet_NaN(), 1.0), &error));
    EXPECT_FALSE(ArchivedObjects::unarchiveColor(colourArchive("lab", 0.2, 1.0), &error));
    EXPECT_EQ(error, "unknown colour space \"lab\"");
    EXPECT_TRUE(ArchivedObjects::unarchiveColor(colourArchive("extendedRgb", 1.5, 1.0), &error));
    EXPECT_FALSE(ArchivedObjects::unarchiveColor(colourArchive("extendedRgb", 1e9, 1.0), &error));
}

TEST(ArchivedObjects, FontsWithoutFamilyOrWithAnAbsurdSizeAreRefused)
{
    const auto fontArchive = [](const QString& family, double size) {
        KeyedArchiver a(ArchivedObjects::FontClassTag, 1);
        a.encodeString("family", family);
        a.encodeDouble("pointSize", size);
        return *a.archivedData(nullptr);
    };
    QString error;
    EXPECT_TRUE(ArchivedObjects::unarchiveFont(fontArchive("Menlo", 0.5), &error));
    EXPECT_FALSE(ArchivedObjects::unarchiveFont(fontArchive("  ", 12), &error));
    EXPECT_FALSE(ArchivedObjects::unarchiveFont(fontArchive("Menlo", 0), &error));
    EXPECT_FALSE(ArchivedObjects::unarchiveFont(fontArchive("Menlo", -3), &error));
    EXPECT_FALSE(ArchivedObjects::unarchiveFont(fontArchive("Menlo", 1e300), &error));
    EXPECT_FALSE(ArchivedObjects::unarchiveFont(
        fontArchive("Menlo", std::numeric_limits<double>::infinity()), &error));
}

TEST(ArchivedObjects, AShortcutWithItsValuesTypesSwappedIsRefused)
{
    // The flags must be unsigned and the key code signed, as written.
    KeyedArchiver swapped("KeyboardShortcut", 1);
    swapped.encodeUInt64("keyCode", 44);
    swapped.encodeInt64("modifierFlags", 0);
    QString error;
    EXPECT_FALSE(
        ArchivedObjects::unarchiveKeyboardShortcut(*swapped.archivedData(nullptr), &error));
    EXPECT_EQ(error, "the value under \"keyCode\" is not a signed integer");
}

TEST(ArchivedObjects, TheStoredShortcutFormatStaysAsUsersHaveIt)
{
    // Users' settings files hold these bytes; a change of format would make
    // every stored shortcut unreadable.
    const QByteArray expected = QByteArray::fromHex(
        "4b4c4152104b6579626f61726453686f727463757400010002076b6579436f646569000000000000000f0d6d6f"
        "646966696572466c616773750000000000040000");
    EXPECT_EQ(ArchivedObjects::archiveKeyboardShortcut({15, 0x40000}, nullptr), expected);
    EXPECT_EQ(ArchivedObjects::unarchiveKeyboardShortcut(expected, nullptr),
              KeyboardShortcut(15, 0x40000));
}

TEST(ArchivedObjects, AFontFamilyWithACommaReadsBackWhole)
{
    // Found by the archive fuzzer: "Men,o" came back as the family "Men".
    const QByteArray found = QByteArray::fromBase64(
        "S0xBUgVRRm9udAABAAIGZmFtaWx5cwAAAAVNZW4sbwlwb2ludFNpemVkQDQAAAAAAAA=");
    QString error;
    const std::optional<QFont> font = ArchivedObjects::unarchiveFont(found, &error);
    ASSERT_TRUE(font) << error.toStdString();
    EXPECT_EQ(font->family(), "Men,o");
    EXPECT_EQ(font->pointSizeF(), 20.0);
    const std::optional<QByteArray> again = ArchivedObjects::archiveFont(*font, &error);
    ASSERT_TRUE(again);
    EXPECT_EQ(ArchivedObjects::unarchiveFont(*again, &error), font);

    QFont listed;
    listed.setFamily(QStringLiteral("Source Code Pro, Light"));
    listed.setPointSizeF(11);
    EXPECT_EQ(
        ArchivedObjects::unarchiveFont(*ArchivedObjects::archiveFont(listed, nullptr), nullptr)
            ->family(),
        "Source Code Pro, Light");
}
