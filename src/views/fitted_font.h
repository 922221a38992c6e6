#pragma once

#include <functional>

class QFont;

namespace views {

/// Gives a window of a fixed size its font: the desktop's, made smaller only where a text would not fit.
/// `use` puts a font to use, at first one that asks for nothing of its own; `fits` says whether all texts fit
/// then.
void useFittedFont(const std::function<void(const QFont &font)> &use, const std::function<bool()> &fits);

} // namespace views
