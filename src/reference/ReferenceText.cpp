// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ReferenceText.h"

#include "common/VersionedJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QJsonValue>
#include <algorithm>
#include <cmath>

namespace {

const QString VersionKey = QStringLiteral("version");
const QString SourceKey = QStringLiteral("source");
const QString UnitsKey = QStringLiteral("units");
const QString TextKey = QStringLiteral("text");
const QString StartKey = QStringLiteral("start");
const QString EndKey = QStringLiteral("end");
const QString UncertainKey = QStringLiteral("uncertain");
const QString LanguageKey = QStringLiteral("language");

std::optional<ReferenceText> fail(QString* error, const QString& reason)
{
    if (error)
        *error = reason;
    return std::nullopt;
}

// A time that is there must be a finite number; a missing one is fine.
bool readTime(const QJsonObject& unit, const QString& key, std::optional<double>* time)
{
    const QJsonValue value = unit.value(key);
    if (value.isUndefined())
        return true;
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        return false;
    *time = value.toDouble();
    return true;
}

} // namespace

ReferenceText::ReferenceText(QString sourceName, QList<ReferenceUnit> units)
    : m_sourceName(std::move(sourceName)), m_units(std::move(units))
{
}

ReferenceText ReferenceText::aligned(QString sourceName, const AlignedSentences& sentences,
                                     QString language)
{
    QList<ReferenceUnit> units;
    units.reserve(sentences.size());
    for (const AlignedSentence& sentence : sentences)
        units.append(
            ReferenceUnit{sentence.text, sentence.start, sentence.end, sentence.uncertain});
    ReferenceText reference(std::move(sourceName), std::move(units));
    reference.setLanguage(std::move(language));
    return reference;
}

bool ReferenceText::isTimed() const
{
    return !m_units.isEmpty() && std::all_of(m_units.cbegin(), m_units.cend(),
                                             [](const ReferenceUnit& u) { return u.isTimed(); });
}

QByteArray ReferenceText::toJson() const
{
    QJsonArray units;
    for (const ReferenceUnit& unit : m_units) {
        QJsonObject object{{TextKey, unit.text}};
        if (unit.start)
            object.insert(StartKey, *unit.start);
        if (unit.end)
            object.insert(EndKey, *unit.end);
        if (unit.uncertain)
            object.insert(UncertainKey, true);
        units.append(object);
    }
    QJsonObject root{{VersionKey, FormatVersion}, {SourceKey, m_sourceName}, {UnitsKey, units}};
    if (!m_language.isEmpty())
        root.insert(LanguageKey, m_language);
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

std::optional<ReferenceText> ReferenceText::fromJson(const QByteArray& json, QString* error)
{
    QString unreadable;
    const std::optional<QJsonObject> top = readVersionedJson(
        json, VersionKey, FormatVersion, QStringLiteral("a reference text"), &unreadable);
    if (!top)
        return fail(error, unreadable);
    const QJsonObject& root = *top;
    if (!root.value(SourceKey).isString())
        return fail(error, QStringLiteral("no source file name"));
    if (!root.value(UnitsKey).isArray())
        return fail(error, QStringLiteral("no list of units"));
    const QJsonValue language = root.value(LanguageKey);
    if (!language.isUndefined() && !language.isString())
        return fail(error, QStringLiteral("a language that is not text"));

    const QJsonArray array = root.value(UnitsKey).toArray();
    QList<ReferenceUnit> units;
    units.reserve(array.size());
    for (qsizetype i = 0; i < array.size(); ++i) {
        const QString where = QStringLiteral("unit %1: ").arg(i + 1);
        const QJsonObject object = array.at(i).toObject();
        if (!array.at(i).isObject() || !object.value(TextKey).isString())
            return fail(error, where + QStringLiteral("no text"));
        ReferenceUnit unit{object.value(TextKey).toString(), {}, {}};
        if (!readTime(object, StartKey, &unit.start) || !readTime(object, EndKey, &unit.end))
            return fail(error, where + QStringLiteral("a time that is not a number"));
        const QJsonValue uncertain = object.value(UncertainKey);
        if (!uncertain.isUndefined() && !uncertain.isBool())
            return fail(error,
                        where + QStringLiteral("an uncertain mark that is not true or false"));
        unit.uncertain = uncertain.toBool(false);
        if (unit.start.has_value() != unit.end.has_value())
            return fail(error, where + QStringLiteral("a start without an end or the reverse"));
        if (unit.uncertain && !unit.isTimed())
            return fail(error, where + QStringLiteral("an uncertain start that is not there"));
        if (unit.isTimed() && *unit.start < 0.0)
            return fail(error, where + QStringLiteral("a negative time"));
        if (unit.isTimed() && *unit.end < *unit.start)
            return fail(error, where + QStringLiteral("ends before it starts"));
        if (!units.isEmpty() && unit.isTimed() != units.front().isTimed())
            return fail(error, where + QStringLiteral("timed and untimed units mixed"));
        units.append(std::move(unit));
    }
    ReferenceText reference(root.value(SourceKey).toString(), std::move(units));
    reference.setLanguage(language.toString());
    return reference;
}
