#pragma once

#include "shell/text/FixedFont.h"

#include <filesystem>
#include <optional>
#include <string>

namespace caudalera {

class frmDocumento;
class Window;

enum class Icon { none, information, error };

/// A message box with one OK button. The empty title stands for the program's own.
struct Message {
    std::string text;
    std::string title{};
    Icon icon = Icon::none;

    bool operator==(const Message&) const = default;
};

struct FileDialog {
    enum class Kind { open, save };
    Kind kind = Kind::open;
    std::string title;
    /// Description and pattern joined by '|'.
    std::string filter;
    /// Where it starts: the name chosen last, if any, otherwise the program's own directory.
    std::string fileName;
};

struct PrintDialog {
    std::string title;
    bool selection = false;
};

/// How the program ended.
struct Ending {
    /// A person's command, a run-time failure that nothing caught, a fault of the program itself.
    enum class Reason { exit, fatal, fault };
    Reason reason = Reason::exit;
    /// Number of the run-time failure that ended it.
    int number = 0;
    /// The fault's own words; may be empty.
    std::string what;
};

/// The only door outward. Its calls are synchronous: they return when the user has answered.
class Platform {
public:
    Platform() = default;
    virtual ~Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;

    virtual void showMessage(const Message& message) = 0;
    /// The chosen path, UTF-8; none if it was cancelled.
    virtual std::optional<std::string> showFileDialog(const FileDialog& dialog) = 0;
    /// Whether it was confirmed; the printer chosen serves the next printDocument.
    virtual bool showPrintDialog(const PrintDialog& dialog) = 0;
    /// Prints the window's current image on the default printer.
    virtual void printWindow(const Window& window) = 0;
    virtual void printDocument(const frmDocumento& document, bool selectionOnly) = 0;

    virtual std::string clipboardText() = 0;
    virtual void setClipboardText(const std::string& text) = 0;
    /// The clipboard of rich text, as RTF source or plain text. A platform whose clipboard has
    /// forms of its own for rich text puts it there as well; otherwise the source is the text.
    virtual std::string clipboardRichText() { return clipboardText(); }
    virtual void setClipboardRichText(const std::string& rtf) { setClipboardText(rtf); }

    /// Per-user store, section "Settings" under the program's name.
    virtual std::optional<std::string> setting(const std::string& key) = 0;
    virtual void setSetting(const std::string& key, const std::string& value) = 0;

    /// Starts a process and does not wait for it; false if it cannot be started.
    virtual bool startProcess(const std::string& commandLine) = 0;
    /// Where the help and the table files are.
    virtual std::filesystem::path fixedDirectory() = 0;
    /// What the boxes of reports show in where a text sets no font.
    virtual FixedFont reportFont() = 0;
    /// What masks write for their point.
    virtual std::string decimalSeparator() = 0;
    /// Called once, when the program has ended; tells a fatal failure and a fault to the user.
    virtual void endProgram(const Ending& ending) = 0;
};

} // namespace caudalera
