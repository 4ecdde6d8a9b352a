#include "desktop/controls/StatusLine.h"

#include "desktop/style/Style.h"
#include "shell/window/Window.h"

#include <QHBoxLayout>
#include <QPainter>

namespace caudalera {

namespace {

/// A strip with a line along its upper edge.
class Strip : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(0, 0, width(), 1, style::lines());
    }
};

} // namespace

void ElidedLabel::setWhole(const QString& whole) {
    if (text() == whole)
        return;
    setText(whole);
    setToolTip(isCut() ? whole : QString());
}

bool ElidedLabel::isCut() const {
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()));
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    setToolTip(isCut() ? text() : QString());
}

StatusView::StatusView(StatusBar& control, QWidget* parent)
    : ControlView(control, *new Strip(parent)) {
    widget().setObjectName(toQString(control.name()));
    auto* row = new QHBoxLayout(&widget());
    // In line with what stands above it.
    const int margin = style::unit() + style::halfUnit();
    row->setContentsMargins(margin, style::halfUnit(), margin, 0);
    row->setSpacing(2 * style::unit());
    const auto addLabel = [&](const QString& name, Qt::Alignment alignment) {
        auto* label = new ElidedLabel(&widget());
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(alignment | Qt::AlignVCenter);
        return label;
    };
    for (std::size_t i = 0; i < control.panels.size(); ++i) {
        panels_.push_back(addLabel(QStringLiteral("panel"), Qt::AlignLeft));
        panels_.back()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        row->addWidget(panels_.back(), 1);
    }
    state_ = addLabel(QStringLiteral("estado"), Qt::AlignRight);
    row->addWidget(state_);
}

void StatusView::sync() {
    ControlView::sync();
    const auto& texts = static_cast<StatusBar&>(control()).panels;
    for (std::size_t i = 0; i < panels_.size() && i < texts.size(); ++i)
        panels_[i]->setWhole(toQString(texts[i]));
    state_->setWhole(toQString(control().window().status()));
}

} // namespace caudalera
