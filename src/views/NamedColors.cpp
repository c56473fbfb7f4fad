// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/NamedColors.h"

#include <QGuiApplication>
#include <QPalette>

namespace NamedColors {

QColor windowBackground()
{
    return QGuiApplication::palette().color(QPalette::Window);
}

QColor white()
{
    return QColor::fromRgbF(1.0f, 1.0f, 1.0f);
}

QColor red()
{
    return QColor::fromRgbF(1.0f, 0.0f, 0.0f);
}

QColor darkGray()
{
    return QColor::fromRgbF(1.0f / 3.0f, 1.0f / 3.0f, 1.0f / 3.0f);
}

QColor gray()
{
    return QColor::fromRgbF(0.5f, 0.5f, 0.5f);
}

QColor systemGreen()
{
    return QColor(52, 199, 89);
}

QColor systemBlue()
{
    return QColor(0, 122, 255);
}

} // namespace NamedColors
