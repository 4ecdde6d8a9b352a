#pragma once

#include <QString>
#include <QTextEdit>
#include <cstdint>
#include <functional>
#include <optional>

class QMenu;

namespace caudalera {

class frmDocumento;
class frmPadre;
class MenuEntry;
class RichText;
class Session;
struct Message;

/// The rich-text box of a document, kept in line with the model's text both ways: what the user
/// types and selects goes to the model at once, what the model composes or loads shows at the next
/// sync. Cut, copy and paste are the model's own, so that they carry RTF.
///
/// Of a text that the toolkit's layout can't carry the beginning is shown, to be read alone; the
/// model's stays whole.
class DocumentView : public QTextEdit {
    Q_OBJECT

public:
    /// What stays in sight when the model's text has changed: the beginning of the report that a
    /// worksheet wrote, or the caret, where a command of the report window did it.
    enum class Following { report, caret };
    using Command = std::function<void(MenuEntry&)>;

    /// `command` carries out an entry of the report window's menu.
    DocumentView(Session& session, frmPadre& padre, frmDocumento& document, QMenu& editMenu,
                 Command command, QWidget* parent = nullptr);

    void sync(Following following);

    bool shownWhole() const { return excess_.isEmpty(); }
    /// What makes the text too long to be shown; empty if it is shown whole.
    const QString& excess() const { return excess_; }
    /// What would make it too long if this stood at the selection; empty if it fits.
    QString excessWith(const RichText& inserted) const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    /// A stretch of the document that the user changed and the model has not seen yet.
    struct Change {
        int position = 0;
        int removed = 0;
        int added = 0;
    };

    void noteChange(int position, int removed, int added);
    void tellModel();
    void applyChange(const Change& change);
    /// Whether the model's paragraphs stand in the blocks from one position to another.
    bool showsParagraphs(int from, int to) const;
    void selectInModel();
    void showSelection();
    /// Brings the paragraph at a position to the top.
    void showFrom(int position);
    void fitMargins();

    Session& session_;
    frmPadre& padre_;
    frmDocumento& document_;
    QMenu& editMenu_;
    Command command_;
    QString excess_;
    std::optional<Change> change_;
    /// More than one stretch changed at once: the whole text is told.
    bool changedWidely_ = false;
    /// Sync writes; what the document reports then comes from the model.
    bool applying_ = false;
    /// Holds characters past U+FFFF, which Qt counts twice.
    bool astral_ = false;
    /// Of the model's text when it was last in line with the document.
    std::optional<std::uint64_t> revision_;
};

/// What the user is told of a paste that would make the text too long to be shown.
Message refusedPaste(const QString& excess);

} // namespace caudalera
