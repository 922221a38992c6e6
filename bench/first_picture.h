#pragma once

namespace bench {

/// What a process cost until its first picture.
struct FirstPicture
{
    double seconds = 0;
    double kibibytes = 0; ///< resident memory
};

/// Starts this program again as the panel or as an empty main window, and waits for its first picture.
FirstPicture measureFirstPicture(const char *program, const char *mode);

/// Starts the panel in a process of its own and gives the number of times that it woke up in `seconds` of
/// idleness.
long measureWakeUps(const char *program, int seconds);

/// What such a process does. `mode` is "panel", "empty" or "idle".
int runFirstPicture(int argc, char *argv[], const char *mode);

} // namespace bench
