// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/KeyboardShortcut.h"

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QString>
#include <optional>

// The archived forms of the three object kinds kept in the defaults store.
// Each reader accepts only its own class and reports anything else in *error.
//
// A colour keeps its colour model and its components as doubles, so a colour
// reads back equal to the one stored (same model, same components). A font keeps
// its family and point size. A shortcut keeps "keyCode" and "modifierFlags".
namespace ArchivedObjects {

inline constexpr const char* ColorClassTag = "QColor";
inline constexpr const char* FontClassTag = "QFont";

std::optional<QByteArray> archiveColor(const QColor& color, QString* error);
std::optional<QColor> unarchiveColor(const QByteArray& data, QString* error);

std::optional<QByteArray> archiveFont(const QFont& font, QString* error);
std::optional<QFont> unarchiveFont(const QByteArray& data, QString* error);

std::optional<QByteArray> archiveKeyboardShortcut(const KeyboardShortcut& shortcut, QString* error);
std::optional<KeyboardShortcut> unarchiveKeyboardShortcut(const QByteArray& data, QString* error);

} // namespace ArchivedObjects
