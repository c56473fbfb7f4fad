// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

// Four-character audio format codes, as the codec of a stream is named in
// format descriptions ('.mp3', 'aac ', ...).
namespace FourCC {

constexpr uint32_t make(char a, char b, char c, char d)
{
    return (uint32_t(uint8_t(a)) << 24) | (uint32_t(uint8_t(b)) << 16) |
           (uint32_t(uint8_t(c)) << 8) | uint32_t(uint8_t(d));
}

inline constexpr uint32_t MP3 = make('.', 'm', 'p', '3');
inline constexpr uint32_t AAC = make('a', 'a', 'c', ' ');
inline constexpr uint32_t ALAC = make('a', 'l', 'a', 'c');
inline constexpr uint32_t FLAC = make('f', 'l', 'a', 'c');
inline constexpr uint32_t LinearPCM = make('l', 'p', 'c', 'm');

} // namespace FourCC
