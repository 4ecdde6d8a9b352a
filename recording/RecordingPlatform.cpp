#include "recording/RecordingPlatform.h"

#include "shell/report/frmDocumento.h"
#include "shell/window/Window.h"

#include <utility>

namespace caudalera {

void RecordingPlatform::showMessage(const Message& message) {
    messages.push_back(message);
}

std::optional<std::string> RecordingPlatform::nextAnswer() {
    if (answers.empty())
        return std::nullopt;
    auto answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

std::optional<std::string> RecordingPlatform::showFileDialog(const FileDialog& dialog) {
    dialogsSeen.push_back({dialog.kind == FileDialog::Kind::open ? "open" : "save", dialog.title,
                           dialog.filter, dialog.fileName});
    return nextAnswer();
}

bool RecordingPlatform::showPrintDialog(const PrintDialog& dialog) {
    dialogsSeen.push_back({"print", dialog.title, "", ""});
    return nextAnswer().has_value();
}

void RecordingPlatform::printWindow(const Window& window) {
    printed.push_back({"window", window.name(), false});
}

void RecordingPlatform::printDocument(const frmDocumento& document, bool selectionOnly) {
    printed.push_back({"document", document.caption, selectionOnly});
}

std::optional<std::string> RecordingPlatform::setting(const std::string& key) {
    const auto found = settings.find(key);
    return found == settings.end() ? std::nullopt : std::optional(found->second);
}

void RecordingPlatform::setSetting(const std::string& key, const std::string& value) {
    settings[key] = value;
}

bool RecordingPlatform::startProcess(const std::string& commandLine) {
    processes.push_back(commandLine);
    return !processesFail;
}

} // namespace caudalera
