#pragma once

#include <array>
#include <cstdint>

#include "shell/base/table.h"

namespace vantore {

/// The sixteen colours by number.
namespace colour {
constexpr int black = 0;
constexpr int white = 7; // the light grey of the palette
constexpr int grey = 8;
constexpr int lightBlue = 9;
constexpr int lightRed = 12;
constexpr int brightWhite = 15;
} // namespace colour

/// 0xRRGGBB of a colour number from 0 to 15; SubscriptOutOfRange for others.
inline std::uint32_t rgb(int number) {
    constexpr std::array<std::uint32_t, 16> colours = {
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    checkIndex(number, 0, 15);
    return colours[static_cast<std::size_t>(number)];
}

} // namespace vantore
