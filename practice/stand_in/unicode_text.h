#pragma once

#include <string>
#include <string_view>

namespace practice {

/// `text` (UTF-8) in a form that is the same for names that differ in letter case alone. Bytes that are no
/// UTF-8 stay themselves.
std::u32string foldedCase(std::string_view text);

/// `text` fit for one line on a terminal: control characters and broken bytes become "?", a long text is cut.
std::string printable(std::string_view text);

} // namespace practice
