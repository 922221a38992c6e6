#pragma once

#include <QtGlobal>

namespace platform {

/// A colour as 0xRRGGBB.
using Colour = quint32;

constexpr Colour Black = 0x000000;
constexpr Colour White = 0xFFFFFF;

} // namespace platform
