#pragma once

#include <QtGlobal>

namespace caudalera {

/// Work that may take long, for as long as this lives; one inside another is part of it. Beyond
/// half a second the pointer is busy, beyond two a bar shows how far the work is and the windows
/// repaint. What the user does meanwhile waits until it ends.
///
/// All of it happens on the one thread, so the work has to call `step` now and then.
class LongWork {
public:
    LongWork();
    ~LongWork();
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    /// Work goes on. Cheap, and nothing outside of long work.
    static void step();
    /// The same, where it is known how much there is.
    static void step(qsizetype done, qsizetype total);
    /// What comes now cannot call `step` and takes long: the pointer is busy from here.
    static void announce();

    /// While it lives the work waits for the user, who sees neither pointer nor bar.
    class Pause {
    public:
        Pause();
        ~Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;
    };
};

} // namespace caudalera
