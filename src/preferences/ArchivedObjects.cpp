// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/ArchivedObjects.h"

#include "preferences/KeyedArchive.h"

#include <QFloat16>
#include <array>
#include <cmath>
#include <cstring>

namespace {

constexpr quint16 kColorVersion = 1;
constexpr quint16 kFontVersion = 1;
// Largest finite half-precision value: extended-range components are kept in it.
constexpr double kHalfMax = 65504.0;
constexpr double kMaxPointSize = 10000.0;

struct ColorModel
{
    QColor::Spec spec;
    const char* name;
    std::array<const char*, 4> components; // nullptr past the model's last
};

const std::array<ColorModel, 5> kModels = {{
    {QColor::Rgb, "rgb", {"red", "green", "blue", nullptr}},
    {QColor::ExtendedRgb, "extendedRgb", {"red", "green", "blue", nullptr}},
    {QColor::Hsv, "hsv", {"hue", "saturation", "value", nullptr}},
    {QColor::Hsl, "hsl", {"hue", "saturation", "lightness", nullptr}},
    {QColor::Cmyk, "cmyk", {"cyan", "magenta", "yellow", "black"}},
}};

std::array<float, 4> componentsOf(const QColor& c)
{
    switch (c.spec()) {
    case QColor::Hsv:
        return {c.hsvHueF(), c.hsvSaturationF(), c.valueF(), 0};
    case QColor::Hsl:
        return {c.hslHueF(), c.hslSaturationF(), c.lightnessF(), 0};
    case QColor::Cmyk:
        return {c.cyanF(), c.magentaF(), c.yellowF(), c.blackF()};
    default:
        return {c.redF(), c.greenF(), c.blueF(), 0};
    }
}

ushort halfBits(double v)
{
    const qfloat16 h(static_cast<float>(v));
    ushort bits = 0;
    std::memcpy(&bits, &h, sizeof bits);
    return bits;
}

// Whether a stored component may be given to the model. Hue may be -1: Qt's
// mark for a colour without hue (a grey).
bool componentInRange(QColor::Spec spec, int index, double v)
{
    if (!std::isfinite(v))
        return false;
    if (spec == QColor::ExtendedRgb)
        return std::fabs(v) <= kHalfMax;
    if (index == 0 && (spec == QColor::Hsv || spec == QColor::Hsl) && v == -1.0)
        return true;
    return v >= 0.0 && v <= 1.0;
}

QColor makeColor(QColor::Spec spec, const std::array<double, 4>& v, double alpha)
{
    const auto f = [&v](int i) { return static_cast<float>(v[size_t(i)]); };
    const float a = static_cast<float>(alpha);
    switch (spec) {
    case QColor::Rgb:
        return QColor::fromRgbF(f(0), f(1), f(2), a);
    case QColor::ExtendedRgb:
        // Built from half-precision bits so that every stored component comes
        // back unchanged, in range or not.
        return QColor(QColor::ExtendedRgb, halfBits(alpha), halfBits(v[0]), halfBits(v[1]),
                      halfBits(v[2]));
    case QColor::Hsv:
        return QColor::fromHsvF(f(0), f(1), f(2), a);
    case QColor::Hsl:
        return QColor::fromHslF(f(0), f(1), f(2), a);
    case QColor::Cmyk:
        return QColor::fromCmykF(f(0), f(1), f(2), f(3), a);
    default:
        return QColor();
    }
}

template <typename T> std::optional<T> failed(QString* error, const QString& why)
{
    if (error)
        *error = why;
    return std::nullopt;
}

std::optional<QByteArray> finish(const KeyedArchiver& coder, QString* error)
{
    return coder.archivedData(error);
}

} // namespace

namespace ArchivedObjects {

std::optional<QByteArray> archiveColor(const QColor& color, QString* error)
{
    if (!color.isValid())
        return failed<QByteArray>(error, QStringLiteral("the colour is invalid"));
    const ColorModel* model = nullptr;
    for (const ColorModel& m : kModels) {
        if (m.spec == color.spec())
            model = &m;
    }
    if (!model)
        return failed<QByteArray>(error, QStringLiteral("the colour model is not supported"));
    KeyedArchiver coder(QString::fromLatin1(ColorClassTag), kColorVersion);
    coder.encodeString(QStringLiteral("colorSpace"), QString::fromLatin1(model->name));
    const std::array<float, 4> values = componentsOf(color);
    for (size_t i = 0; i < model->components.size() && model->components[i]; ++i)
        coder.encodeDouble(QString::fromLatin1(model->components[i]), values[i]);
    coder.encodeDouble(QStringLiteral("alpha"), color.alphaF());
    return finish(coder, error);
}

std::optional<QColor> unarchiveColor(const QByteArray& data, QString* error)
{
    KeyedUnarchiver coder(data, QString::fromLatin1(ColorClassTag), kColorVersion);
    const std::optional<QString> space = coder.decodeString(QStringLiteral("colorSpace"));
    const ColorModel* model = nullptr;
    if (space) {
        for (const ColorModel& m : kModels) {
            if (*space == QLatin1String(m.name))
                model = &m;
        }
        if (!model)
            coder.failWithError(QStringLiteral("unknown colour space \"%1\"").arg(*space));
    }
    std::array<double, 4> values{};
    for (size_t i = 0; model && i < model->components.size() && model->components[i]; ++i) {
        const QString key = QString::fromLatin1(model->components[i]);
        const std::optional<double> v = coder.decodeDouble(key);
        if (v && !componentInRange(model->spec, int(i), *v))
            coder.failWithError(
                QStringLiteral("the %1 component %2 is out of range").arg(key).arg(*v));
        values[i] = v.value_or(0.0);
    }
    const std::optional<double> alpha = coder.decodeDouble(QStringLiteral("alpha"));
    if (alpha && !(*alpha >= 0.0 && *alpha <= 1.0))
        coder.failWithError(QStringLiteral("the alpha component %1 is out of range").arg(*alpha));
    if (!coder.isValid())
        return failed<QColor>(error, coder.errorString());
    const QColor color = makeColor(model->spec, values, *alpha);
    if (!color.isValid())
        return failed<QColor>(error, QStringLiteral("the components do not make a colour"));
    return color;
}

std::optional<QByteArray> archiveFont(const QFont& font, QString* error)
{
    if (font.family().isEmpty())
        return failed<QByteArray>(error, QStringLiteral("the font has no family"));
    if (!(font.pointSizeF() > 0.0))
        return failed<QByteArray>(error, QStringLiteral("the font has no point size"));
    KeyedArchiver coder(QString::fromLatin1(FontClassTag), kFontVersion);
    coder.encodeString(QStringLiteral("family"), font.family());
    coder.encodeDouble(QStringLiteral("pointSize"), font.pointSizeF());
    return finish(coder, error);
}

std::optional<QFont> unarchiveFont(const QByteArray& data, QString* error)
{
    KeyedUnarchiver coder(data, QString::fromLatin1(FontClassTag), kFontVersion);
    const std::optional<QString> family = coder.decodeString(QStringLiteral("family"));
    const std::optional<double> size = coder.decodeDouble(QStringLiteral("pointSize"));
    if (family && family->trimmed().isEmpty())
        coder.failWithError(QStringLiteral("the font family is empty"));
    if (size && !(*size > 0.0 && *size <= kMaxPointSize))
        coder.failWithError(QStringLiteral("the point size %1 is out of range").arg(*size));
    if (!coder.isValid())
        return failed<QFont>(error, coder.errorString());
    // Not QFont(family): that splits a family name at commas into a list.
    QFont font;
    font.setFamily(*family);
    font.setPointSizeF(*size);
    return font;
}

std::optional<QByteArray> archiveKeyboardShortcut(const KeyboardShortcut& shortcut, QString* error)
{
    KeyedArchiver coder(QString::fromLatin1(KeyboardShortcut::ClassTag),
                        KeyboardShortcut::CodingVersion);
    shortcut.encodeWithCoder(coder);
    return finish(coder, error);
}

std::optional<KeyboardShortcut> unarchiveKeyboardShortcut(const QByteArray& data, QString* error)
{
    KeyedUnarchiver coder(data, QString::fromLatin1(KeyboardShortcut::ClassTag),
                          KeyboardShortcut::CodingVersion);
    std::optional<KeyboardShortcut> shortcut = KeyboardShortcut::initWithCoder(coder);
    if (!coder.isValid() || !shortcut)
        return failed<KeyboardShortcut>(error, coder.errorString());
    return shortcut;
}

} // namespace ArchivedObjects
