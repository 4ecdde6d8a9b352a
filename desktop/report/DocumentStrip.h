#pragma once

#include <QTabBar>
#include <functional>
#include <vector>

namespace caudalera {

class frmDocumento;
class frmPadre;

/// The documents of the report window side by side, the active one marked. A file goes by its name
/// without the folders; what is cut off stands in the tool tip. Where there are more than have
/// room, the strip scrolls.
class DocumentStrip : public QTabBar {
    Q_OBJECT

public:
    using Choose = std::function<void(const frmDocumento&)>;

    /// `choose` is told of the document that the user picks.
    DocumentStrip(const frmPadre& padre, Choose choose, QWidget* parent = nullptr);

    void sync();

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }

private:
    void choose(int index);

    const frmPadre& padre_;
    Choose choose_;
    std::vector<const frmDocumento*> shown_;
};

} // namespace caudalera
