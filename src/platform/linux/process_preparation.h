#pragma once

namespace platform::host {

/// Makes writing to a pipe that nobody reads an error, not the end of the process.
void ignoreBrokenPipes();

/// Opens nothing in the place of each standard stream that is closed, so that no other file takes its number
/// and gets what is written there.
void openStandardStreams();

} // namespace platform::host
