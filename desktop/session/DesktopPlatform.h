#pragma once

#include "shell/window/Platform.h"

#include <QString>
#include <memory>
#include <utility>

class QPixmap;
class QPrinter;
class QWidget;

namespace caudalera {

class Session;

/// The model's door outward, with Qt: message boxes, dialogs, printers, clipboard, settings.
class DesktopPlatform : public Platform {
public:
    explicit DesktopPlatform(Session& session);
    ~DesktopPlatform() override;

    /// Brings the views in line first, so that the user sees what the handler has written so far.
    void showMessage(const Message& message) override;
    /// A report that is too long to be shown is refused in words, as if the dialog were cancelled.
    std::optional<std::string> showFileDialog(const FileDialog& dialog) override;
    /// The file that the last dialog gave, which is forgotten then: empty if it was cancelled, none
    /// if there was no dialog.
    std::optional<std::string> takeChosenFile() { return std::exchange(chosenFile_, {}); }
    bool showPrintDialog(const PrintDialog& dialog) override;
    /// Without a printer nothing happens.
    void printWindow(const Window& window) override;
    void printDocument(const frmDocumento& document, bool selectionOnly) override;

    std::string clipboardText() override;
    void setClipboardText(const std::string& text) override;
    /// Rich text goes out and comes in under the names that other programs know it by.
    std::string clipboardRichText() override;
    void setClipboardRichText(const std::string& rtf) override;

    std::optional<std::string> setting(const std::string& key) override;
    void setSetting(const std::string& key, const std::string& value) override;

    /// Paths below c:\Caudalera\ are taken to the fixed directory. Where the help viewer is not
    /// there, the platform's own viewer of the help file takes its place.
    bool startProcess(const std::string& commandLine) override;
    /// Opens the help at the page of a window, at the first one for none; false if there is nothing
    /// to open it with.
    bool openHelp(const Window* window);
    std::filesystem::path fixedDirectory() override;
    FixedFont reportFont() override;
    /// As it was when the program started: every number that is shown asks for it.
    std::string decimalSeparator() override;
    /// A failure is told with where copies of all that was open were put.
    void endProgram(const Ending& ending) override;
    /// Where those go, each in a folder of its own; among the user's documents unless said
    /// otherwise.
    void putCopiesIn(const QString& folder) { copiesFolder_ = folder; }
    const QString& copiesFolder() const { return copiesFolder_; }

private:
    /// The platform's own viewer of the help file.
    bool openHelpFile();
    QWidget* parentForDialogs() const;
    /// A box with one button, `more` in smaller type; returns when it is pressed.
    void showBox(const QString& text, const QString& title, Icon icon,
                 const QString& more = {}) const;
    /// The words for a failure. Where the views can still be trusted they are brought in line
    /// first.
    QString wordsOf(const Ending& ending);

    Session& session_;
    const std::string decimalSeparator_;
    QString copiesFolder_;
    std::unique_ptr<QPrinter> printer_;
    std::optional<std::string> chosenFile_;
};

/// Name filter of a dialog: "Valores de X|*.X" as "Valores de X (*.X)", several parted by ";;".
QString nameFilter(const std::string& filter);

/// Prints an image as large as the page allows, upright or across as suits it.
void printImage(QPrinter& printer, const QPixmap& image);

} // namespace caudalera
