#pragma once

#include <QMdiSubWindow>
#include <functional>

namespace caudalera {

class DocumentView;
class frmDocumento;

/// The window of a document inside the report window. Closing it is the model's affair.
class DocumentFrame : public QMdiSubWindow {
public:
    DocumentFrame(frmDocumento& document, DocumentView* view, std::function<void()> onClose);

    const frmDocumento* document() const { return &document_; }
    DocumentView& view() const { return *view_; }
    void sync();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    frmDocumento& document_;
    DocumentView* view_;
    std::function<void()> onClose_;
};

} // namespace caudalera
