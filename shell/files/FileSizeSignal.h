#pragma once

namespace caudalera {

/// Lets a write past the limit that the system sets on the size of files fail like any other write,
/// where it would end the program by a signal. The systems of the POSIX family have that signal;
/// elsewhere this does nothing. A program calls it once, first of all.
void ignoreFileSizeSignal();

} // namespace caudalera
