#pragma once

namespace practice {

/// Whether somebody sits at the standard input.
bool inputIsTerminal();

/// Asks for Enter and waits for it, where somebody is there to press it.
void pause();

} // namespace practice
