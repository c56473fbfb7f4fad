// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/ReferenceReader.h"
#include "reference/ReferenceText.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QString>
#include <QTemporaryDir>
#include <ostream>

// Readable failures: gtest would print these as bytes.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const ReferenceUnit& unit, std::ostream* out)
{
    *out << '{' << '"' << unit.text.toStdString() << '"';
    if (unit.start)
        *out << ", " << *unit.start;
    if (unit.end)
        *out << ", " << *unit.end;
    if (unit.uncertain)
        *out << ", uncertain";
    *out << '}';
}

namespace ReferenceTest {

inline ReferenceUnit timed(const QString& text, double start, double end, bool uncertain = false)
{
    return ReferenceUnit{text, start, end, uncertain};
}

inline ReferenceUnit untimed(const QString& text)
{
    return ReferenceUnit{text, {}, {}};
}

// Writes the bytes as a file of that name in `folder` and reads it back as a
// reference the way the session will.
inline std::optional<ReferenceText> readAsFile(const QTemporaryDir& folder, const QString& name,
                                               const QByteArray& bytes, double duration,
                                               ReferenceReadError* error = nullptr)
{
    const QString path = folder.filePath(name);
    TestSupport::writeFile(path, bytes);
    return ReferenceReader::readFile(path, duration, error);
}

} // namespace ReferenceTest
