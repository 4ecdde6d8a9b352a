#pragma once

#include "desktop/session/Session.h"

#include <QMainWindow>
#include <QRect>
#include <utility>
#include <vector>

class QAction;
class QLabel;
class QMdiArea;
class QMenu;

namespace caudalera {

class DocumentFrame;
class DocumentStrip;
class DocumentView;
class frmDocumento;
class frmPadre;
class MenuEntry;

/// The report window: the model's menu bar, its documents as windows of their own inside it, the
/// status bar. Its place on the screen is the model's, in twips.
class ReportWindow : public QMainWindow, public View {
    Q_OBJECT

public:
    ReportWindow(Session& session, frmPadre& padre);
    ~ReportWindow() override;

    QWidget& widget() override { return *this; }
    void sync() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildMenu();
    QMenu* menuOf(const MenuEntry& title);
    void click(MenuEntry& entry);
    /// Whether the active document is too long, or would be, for what the entry does with it, which
    /// the user is told.
    bool refused(const MenuEntry& entry, DocumentView& view);
    void confirmSaving(const MenuEntry& entry);
    void activate(const frmDocumento& document);
    void place();
    void recordPlace();
    /// Saving, printing and editing have nothing to work on without one.
    bool needsDocument(const MenuEntry& entry) const;
    void syncDocuments();
    DocumentFrame* frameOf(const frmDocumento* document) const;

    Session& session_;
    frmPadre& padre_;
    QMdiArea* area_;
    DocumentStrip* strip_;
    QMenu* editMenu_ = nullptr;
    std::vector<DocumentFrame*> frames_;
    std::vector<std::pair<const MenuEntry*, QAction*>> actions_;
    std::vector<QLabel*> panels_;
    /// One of the window's own commands runs; other changes of the documents are reports.
    bool commanding_ = false;
    /// Where the view itself put the window; anything else is the user's doing.
    QRect placed_;
};

} // namespace caudalera
