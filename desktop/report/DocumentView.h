#pragma once

#include <QTextEdit>
#include <cstdint>
#include <optional>

class QMenu;

namespace caudalera {

class frmDocumento;
class frmPadre;
class Session;

/// The rich-text box of a document, kept in line with the model's text both ways: what the user
/// types and selects goes to the model at once, what the model composes or loads shows at the next
/// sync. Cut, copy and paste are the model's own, so that they carry RTF.
class DocumentView : public QTextEdit {
    Q_OBJECT

public:
    DocumentView(Session& session, frmPadre& padre, frmDocumento& document, QMenu& editMenu,
                 QWidget* parent = nullptr);

    void sync();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

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
    void fitMargins();

    Session& session_;
    frmPadre& padre_;
    frmDocumento& document_;
    QMenu& editMenu_;
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

} // namespace caudalera
