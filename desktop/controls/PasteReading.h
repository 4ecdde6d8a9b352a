#pragma once

#include "shell/worksheet/PastedBlock.h"

#include <QString>
#include <optional>

class QWidget;

namespace caudalera {

/// Asks what the commas of a block are, where nothing in it tells, and reads it so; false if the
/// user takes the paste back.
bool settleCommas(PastedBlock& block, QWidget& asking);

/// What a text that is pasted into a field comes in as: a single number with a decimal point, any
/// other text as it stands; nothing if the user takes the paste back.
std::optional<QString> pastedIntoField(const QString& text, QWidget& asking);

} // namespace caudalera
