#include "manual/player/PictureRecord.h"

namespace caudalera::manual {

namespace {

std::string joined(const std::vector<std::string>& texts) {
    std::string line;
    for (const std::string& text : texts) {
        line += " | ";
        line += text;
    }
    return line;
}

std::string wordsOf(const Control& control) {
    std::string line = control.name() + ": " + control.caption;
    if (!control.toolTip.empty())
        line += " (" + control.toolTip + ")";
    if (const auto* list = dynamic_cast<const List*>(&control))
        line += joined(list->items());
    if (const auto* tabs = dynamic_cast<const Tabs*>(&control))
        line += joined(tabs->titles());
    if (const auto* status = dynamic_cast<const StatusBar*>(&control))
        line += joined(status->panels);
    if (const auto* grid = dynamic_cast<const MSFlexGrid*>(&control)) {
        for (long column = 0; column < grid->Cols() && grid->Rows() > 0; ++column)
            line += " | " + grid->TextMatrix(0, column);
    }
    return line + "\n";
}

} // namespace

std::string pictureRecord(const Window& window, const std::vector<Step>& example) {
    std::string record = window.caption + "\n";
    for (const Control* control : window.controls())
        record += wordsOf(*control);
    for (const Step& step : example)
        record += "> " + step.key() + " " + step.caption + joined(step.values) + "\n";
    return record;
}

} // namespace caudalera::manual
