// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/Utility.h"

#include "common/Log.h"

#include <QColor>
#include <QDateTime>
#include <QDebug>
#include <cmath>

std::optional<QString> Utility::hexStringFromColor(const QColor& color)
{
    if (!color.isValid()) {
        qCInfo(lcApp, "Color is not in an RGB color space.");
        return std::nullopt;
    }
    // Truncating c × 255 from the 16-bit components in integers: done in
    // floating point, 128/255 × 255 can come out as 127.99999 and lose a step.
    const QRgba64 rgb = color.toRgb().rgba64();
    const auto component = [](quint16 c) { return static_cast<uint>(c) * 255u / 65535u; };
    return QString::asprintf("#%02X%02X%02X", component(rgb.red()), component(rgb.green()),
                             component(rgb.blue()));
}

bool Utility::isTimeInterval(double time, double otherTime)
{
    return std::fabs(time - otherTime) < 0.000001;
}

QString Utility::safeSubstringToIndex(qsizetype index, const QString& string)
{
    if (index <= 0)
        return QStringLiteral("");
    if (index >= string.size())
        return string;
    if (string[index - 1].isHighSurrogate() && string[index].isLowSurrogate())
        --index;
    return string.left(index);
}

QString Utility::getDateTime()
{
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
}
