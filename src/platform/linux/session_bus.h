#pragma once

#include <vector>

namespace platform::host {

/// Does without the desktop's session bus where it takes a connection and says nothing for a second: whatever
/// asks it would wait for minutes. A bus that answers, refuses or is missing stays as it is.
void avoidSilentSessionBus();

/// The environment of the programs that the panel starts: its own, with the session bus that was found even
/// where it is avoided. Ends with null; valid until the environment is changed.
std::vector<char *> environmentOfPrograms();

} // namespace platform::host
