#pragma once

#include "shell/window/Program.h"

#include <QString>
#include <QStringList>

namespace caudalera {

/// Where copies of what was open were put when the program failed, and what could not be copied.
struct Copies {
    /// Empty if nothing was written.
    QString folder;
    /// Names of files, each with the reason.
    QStringList failures;

    /// What the user is told of it; empty if there was nothing to copy.
    QString words() const;
};

/// Copies all that is open into a new folder of `parent`, named after the time: each data grid as
/// its series file, each grid as a text of columns parted by tabs, an edit box that is open as a
/// text of its own, each report as rich text. Empty grids and reports are left out. Throws nothing:
/// what can't be copied does not keep the rest from it.
Copies copyAllOpen(const Program& program, const QString& parent) noexcept;

} // namespace caudalera
