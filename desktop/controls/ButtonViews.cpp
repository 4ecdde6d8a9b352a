#include "desktop/controls/ButtonViews.h"

#include "desktop/controls/KeyEvents.h"
#include "desktop/session/Session.h"
#include "desktop/style/Style.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace caudalera {

namespace {

/// The drawing's shape in one colour, for grounds that its own colours do not stand out from.
QPixmap inOneColor(QPixmap pixmap, const QColor& color) {
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    return pixmap;
}

} // namespace

CommandButton::CommandButton(Session& session, Button& button, QWidget* parent)
    : QPushButton(parent), session_(session), button_(button),
      drawing_(style::icon(toQString(button.name()).mid(1))),
      accented_(button.window().mainAction == &button) {
    setObjectName(toQString(button.name()));
    setAutoDefault(false);
    setIconSize({2 * style::unit(), 2 * style::unit()});
    if (accented_) {
        QPalette accented = palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            accented.setColor(group, QPalette::Button, style::buttonAccent());
            accented.setColor(group, QPalette::ButtonText, style::accentText());
        }
        setPalette(accented);
    }
    showIcon(false);
    sync();
    connect(this, &QPushButton::clicked, this, [this] {
        // An access key presses without taking the keyboard: what had it is left first, as a click
        // of the mouse leaves it.
        if (!hasFocus())
            setFocus(Qt::ShortcutFocusReason);
        session_.act([this] { session_.program().click(button_); });
    });
}

void CommandButton::sync() {
    const QString caption = toQString(button_.caption);
    if (text() != caption)
        setText(caption);
}

QString CommandButton::missing() const {
    // It goes by this name in every window.
    return button_.name() == "bImprimir" ? session_.printers().standardMissing() : QString();
}

void CommandButton::showIcon(bool hover) {
    if (drawing_.isNull())
        return;
    // On the accent colour the drawing is all of one colour and stays as it is.
    const QIcon::Mode mode = hover && !accented_ ? QIcon::Active : QIcon::Normal;
    const QPixmap pixmap = drawing_.pixmap(iconSize(), devicePixelRatioF(), mode);
    setIcon(accented_ ? inOneColor(pixmap, style::accentText()) : pixmap);
}

QSize CommandButton::minimumSizeHint() const {
    const int edges = style()->pixelMetric(QStyle::PM_ButtonMargin) +
                      2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const int drawing = drawing_.isNull() ? 0 : iconSize().width() + style::halfUnit();
    const int word = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    const QSize usual = sizeHint();
    return {std::min(drawing + word + edges, usual.width()), usual.height()};
}

void CommandButton::enterEvent(QEnterEvent* event) {
    showIcon(true);
    QPushButton::enterEvent(event);
}

void CommandButton::leaveEvent(QEvent* event) {
    showIcon(false);
    QPushButton::leaveEvent(event);
}

void CommandButton::keyPressEvent(QKeyEvent* event) {
    if (!isEnter(*event)) {
        QPushButton::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat())
        session_.act([this] { session_.program().key(button_, {Key::Kind::enter}); });
}

bool ButtonView::enabled() const {
    return ControlView::enabled() && button_.missing().isEmpty();
}

QString ButtonView::toolTip() const {
    const QString missing = button_.missing();
    return missing.isEmpty() ? ControlView::toolTip() : missing;
}

void ButtonView::sync() {
    ControlView::sync();
    button_.sync();
}

OptionButton::OptionButton(Session& session, Option& option, QWidget* parent)
    : QRadioButton(parent), session_(session), option_(option) {
    setObjectName(toQString(option.name()));
    setAutoExclusive(false);
    connect(this, &QRadioButton::clicked, this,
            [this] { session_.act([this] { session_.program().click(option_); }); });
}

void OptionButton::sync() {
    const QString caption = toQString(option_.caption);
    if (text() != caption)
        setText(caption);
    if (isChecked() != option_.checked())
        setChecked(option_.checked());
    const Qt::FocusPolicy policy =
        isTabStop() ? static_cast<Qt::FocusPolicy>(focusPolicy() | Qt::TabFocus)
                    : static_cast<Qt::FocusPolicy>(focusPolicy() & ~Qt::TabFocus);
    if (focusPolicy() != policy)
        setFocusPolicy(policy);
}

bool OptionButton::isTabStop() const {
    const Option* stop = nullptr;
    for (const Option* each : option_.group().options()) {
        if (each->visible && each->enabled && (!stop || each->checked()))
            stop = each;
    }
    return stop == &option_;
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        session_.act([this] { session_.program().key(option_, {Key::Kind::enter}); });
        break;
    case Qt::Key_Up:
    case Qt::Key_Left:
        stepFrom(-1);
        break;
    case Qt::Key_Down:
    case Qt::Key_Right:
        stepFrom(1);
        break;
    default:
        QRadioButton::keyPressEvent(event);
    }
}

void OptionButton::stepFrom(int step) {
    const auto& options = option_.group().options();
    const auto here = std::find(options.begin(), options.end(), &option_) - options.begin();
    const auto next = here + step;
    if (next < 0 || next >= static_cast<std::ptrdiff_t>(options.size()))
        return;
    Option& chosen = *options[static_cast<std::size_t>(next)];
    session_.act([&] { session_.program().click(chosen); });
}

void OptionView::sync() {
    ControlView::sync();
    button_.sync();
}

} // namespace caudalera
