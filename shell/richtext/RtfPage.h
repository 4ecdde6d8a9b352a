#pragma once

#include "shell/richtext/RichText.h"

namespace caudalera {

/// Paper and tab stops of a saved text, in twips. The paper lies on its side.
struct RtfPage {
    int width = 0;
    int height = 0;
    /// At the left and right; 6.35 mm, which every printer leaves white.
    int sideMargin = 360;
    /// At the top and the bottom; 10 mm.
    int endMargin = 567;
    /// Distance of tab stops: eight characters, as in the box.
    double tabDistance = 0;

    int textWidth() const { return width - 2 * sideMargin; }
};

/// The smallest paper, A4 or A3, on which a line of 130 characters between indents of 200 stands
/// unbroken, and with it the widest table of the text; A3 if none is wide enough.
RtfPage pageFor(const RichText& text, const FixedFont& font);

} // namespace caudalera
