#pragma once

#include "desktop/report/DocumentView.h"

#include <QMdiSubWindow>
#include <functional>

class QLabel;

namespace caudalera {

/// The window of a document inside the report window. Closing it is the model's affair. Above a
/// text that is not shown whole stands a notice.
class DocumentFrame : public QMdiSubWindow {
public:
    DocumentFrame(frmDocumento& document, DocumentView* view, std::function<void()> onClose);

    const frmDocumento* document() const { return &document_; }
    DocumentView& view() const { return *view_; }
    void sync(DocumentView::Following following);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    frmDocumento& document_;
    DocumentView* view_;
    QLabel* notice_;
    std::function<void()> onClose_;
};

} // namespace caudalera
