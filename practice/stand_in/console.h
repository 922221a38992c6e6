#pragma once

namespace practice {

/// Asks for Enter and waits for it, where somebody is there to press it.
void pause();

} // namespace practice
