#pragma once

namespace views {

/// Twips to a logical pixel.
constexpr int TwipsPerPixel = 15;

/// `twips` in logical pixels, rounded.
constexpr int toPixels(int twips)
{
    return (twips + TwipsPerPixel / 2) / TwipsPerPixel;
}

/// `pixels` in twips.
constexpr int toTwips(int pixels)
{
    return pixels * TwipsPerPixel;
}

} // namespace views
