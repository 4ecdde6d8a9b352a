#pragma once

#include "shell/window/Platform.h"

#include <deque>
#include <map>
#include <string>
#include <vector>

namespace caudalera {

/// The platform without a screen: it answers from queues and records what it was asked.
class RecordingPlatform : public Platform {
public:
    struct DialogSeen {
        std::string kind; ///< "open", "save" or "print"
        std::string title;
        std::string filter;
        std::string fileName;
    };
    struct Printed {
        std::string what; ///< "window" or "document"
        std::string name;
        bool selection = false;
    };

    /// Message boxes since the last time somebody cleared them.
    std::vector<Message> messages;
    /// Answers of the next file and print dialogs; none is Cancel, and so is an empty queue.
    std::deque<std::optional<std::string>> answers;
    std::vector<DialogSeen> dialogsSeen;
    std::vector<Printed> printed;
    std::string clipboard;
    std::map<std::string, std::string> settings;
    std::vector<std::string> processes;
    bool processesFail = false;
    std::filesystem::path directory;
    std::string separator = ".";
    FixedFont font;
    std::optional<Ending> ending;

    void showMessage(const Message& message) override;
    std::optional<std::string> showFileDialog(const FileDialog& dialog) override;
    bool showPrintDialog(const PrintDialog& dialog) override;
    void printWindow(const Window& window) override;
    void printDocument(const frmDocumento& document, bool selectionOnly) override;
    std::string clipboardText() override { return clipboard; }
    void setClipboardText(const std::string& text) override { clipboard = text; }
    std::optional<std::string> setting(const std::string& key) override;
    void setSetting(const std::string& key, const std::string& value) override;
    bool startProcess(const std::string& commandLine) override;
    std::filesystem::path fixedDirectory() override { return directory; }
    FixedFont reportFont() override { return font; }
    std::string decimalSeparator() override { return separator; }
    void endProgram(const Ending& how) override { ending = how; }

private:
    std::optional<std::string> nextAnswer();
};

} // namespace caudalera
