#include "desktop/windows/StaleDress.h"

#include "desktop/style/Style.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPainter>
#include <QWidget>
#include <algorithm>

namespace caudalera {

namespace {

/// Lies over a widget, as large as it is, and lets everything through but some light.
class Veil : public QWidget {
public:
    explicit Veil(QWidget& below) : QWidget(&below) {
        setObjectName(QStringLiteral("velo"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        below.installEventFilter(this);
        resize(below.size());
        raise();
        show();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == parent() && event->type() == QEvent::Resize)
            resize(parentWidget()->size());
        return QWidget::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(rect(), style::staleVeil());
    }
};

QWidget* veilOf(const QWidget& widget) {
    return widget.findChild<QWidget*>(QStringLiteral("velo"), Qt::FindDirectChildrenOnly);
}

void setPalettes(QWidget& widget, const QPalette& palette) {
    widget.setPalette(palette);
    // The style sheet of the one keeps its palette from the other.
    if (auto* area = qobject_cast<QAbstractScrollArea*>(&widget))
        area->viewport()->setPalette(palette);
}

} // namespace

void StaleDress::sync(const std::vector<const Control*>& stale) {
    if (stale.empty() && dressed_.empty())
        return;
    for (const auto& view : views_.all()) {
        const bool wanted = std::find(stale.begin(), stale.end(), &view->control()) != stale.end();
        const bool worn = dressed_.contains(view.get());
        if (wanted && !worn) {
            putOn(*view);
        } else if (worn && !wanted) {
            takeOff(*view);
        }
    }
}

void StaleDress::putOn(ControlView& view) {
    QWidget& widget = view.widget();
    dressed_.emplace(&view, widget.palette());
    if (view.control().kind() == ControlKind::chart) {
        new Veil(widget);
        return;
    }
    QPalette muted = widget.palette();
    for (const auto role : {QPalette::Base, QPalette::AlternateBase, QPalette::Window})
        muted.setColor(role, style::staleGround());
    for (const auto role : {QPalette::Text, QPalette::WindowText})
        muted.setColor(role, style::staleText());
    setPalettes(widget, muted);
    widget.setAutoFillBackground(true);
}

void StaleDress::takeOff(ControlView& view) {
    QWidget& widget = view.widget();
    if (view.control().kind() == ControlKind::chart) {
        delete veilOf(widget);
    } else {
        setPalettes(widget, dressed_.at(&view));
        widget.setAutoFillBackground(false);
    }
    dressed_.erase(&view);
}

} // namespace caudalera
