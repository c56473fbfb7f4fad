// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <optional>

// The top of a JSON file the store keeps beside a transcript: one object
// whose "version" is the format this program reads. `kind` names the file in
// the reason ("a reference text"); the reason goes to `error` on failure.
std::optional<QJsonObject> readVersionedJson(const QByteArray& json, const QString& versionKey,
                                             int version, const QString& kind, QString* error);
