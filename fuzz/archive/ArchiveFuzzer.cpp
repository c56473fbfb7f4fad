// SPDX-License-Identifier: GPL-3.0-or-later
// libFuzzer target for the archive reader: any bytes stored under a colour,
// font or shortcut key must be refused cleanly or read as a value that
// survives its own round trip.

#include "preferences/ArchivedObjects.h"
#include "preferences/KeyedArchive.h"

#include <QCoreApplication>
#include <cstdint>
#include <cstdlib>

namespace {

template <typename T, typename Archive, typename Unarchive>
void checkRoundTrip(const QByteArray& data, Archive archive, Unarchive unarchive)
{
    QString error;
    const std::optional<T> value = unarchive(data, &error);
    if (!value) {
        if (error.isEmpty())
            std::abort(); // a refusal must say why
        return;
    }
    const std::optional<QByteArray> again = archive(*value, &error);
    if (!again)
        std::abort(); // what was read must be writable
    const std::optional<T> back = unarchive(*again, &error);
    if (!back || !(*back == *value))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QCoreApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QByteArray data =
        QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), qsizetype(size));
    checkRoundTrip<QColor>(data, ArchivedObjects::archiveColor, ArchivedObjects::unarchiveColor);
    checkRoundTrip<QFont>(data, ArchivedObjects::archiveFont, ArchivedObjects::unarchiveFont);
    checkRoundTrip<KeyboardShortcut>(data, ArchivedObjects::archiveKeyboardShortcut,
                                     ArchivedObjects::unarchiveKeyboardShortcut);

    // The generic reader with a class tag it may or may not hold.
    KeyedUnarchiver reader(data, QStringLiteral("Sample"), 3);
    (void)reader.decodeInt64(QStringLiteral("i"));
    (void)reader.decodeString(QStringLiteral("s"));
    return 0;
}
