#pragma once

#include <string>
#include <string_view>

namespace practice {

/// UTF-8 as Windows spells text.
std::wstring wideText(std::string_view text);

/// What Windows spelled, as UTF-8. Halves of characters become replacement characters.
std::string narrowText(std::wstring_view text);

} // namespace practice
