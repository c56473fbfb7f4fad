// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/VersionedJson.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <QJsonValue>
#include <cmath>

std::optional<QJsonObject> readVersionedJson(const QByteArray& json, const QString& versionKey,
                                             int version, const QString& kind, QString* error)
{
    auto fail = [error](const QString& reason) -> std::optional<QJsonObject> {
        if (error)
            *error = reason;
        return std::nullopt;
    };
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return fail(QStringLiteral("not JSON (%1 at byte %2)")
                        .arg(parseError.errorString())
                        .arg(parseError.offset));
    if (!document.isObject())
        return fail(QStringLiteral("not %1 (no JSON object)").arg(kind));
    const QJsonObject root = document.object();
    const QJsonValue found = root.value(versionKey);
    if (!found.isDouble() || found.toDouble() != std::floor(found.toDouble()))
        return fail(QStringLiteral("no format version"));
    if (found.toDouble() != version)
        return fail(QStringLiteral("format version %1, where this program reads %2")
                        .arg(found.toDouble())
                        .arg(version));
    return root;
}
