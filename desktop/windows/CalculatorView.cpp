#include "desktop/windows/CalculatorView.h"

#include "desktop/controls/FieldViews.h"
#include "desktop/controls/KeyEvents.h"
#include "desktop/style/Style.h"
#include "desktop/windows/Placement.h"
#include "shell/main/frmCalculadora.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace caudalera {

namespace {

/// Sizes of type against that of the program.
constexpr double figuresSize = 2.4;
constexpr double figuresLeast = 1.1;
constexpr double numbersSize = 1.3;

/// Characters that the display shows in the largest figures: fifteen digits, sign and point.
const QString widestNumber = QStringLiteral("-0.888888888888888");

QFont scaled(QFont font, double factor) {
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * factor));
    return font;
}

std::optional<Key> keyOf(const QKeyEvent& event) {
    if (const auto command = commandKey(event))
        return Key{*command};
    if (event.key() == Qt::Key_Delete)
        return Key{Key::Kind::forwardDelete};
    if (event.key() == Qt::Key_Backspace)
        return Key{Key::Kind::character, U'\b'};
    if (isShortcut(event) || event.text().size() != 1)
        return std::nullopt;
    return Key{Key::Kind::character, event.text().front().unicode()};
}

KeyButton::Face faceOf(std::string_view name) {
    using Face = KeyButton::Face;
    static constexpr std::array basic = {"cmdOp(1)", "cmdOp(2)", "cmdOp(3)", "cmdOp(4)",
                                         "cmdEquals"};
    if (std::find(basic.begin(), basic.end(), name) != basic.end())
        return Face::basic;
    const bool number = name.starts_with("cmdNum") || name == "cmdDecimal" || name == "cmdValue";
    return number ? Face::number : Face::quiet;
}

} // namespace

KeyButton::KeyButton(Session& session, Button& button, Face face, QWidget* parent)
    : CommandButton(session, button, parent) {
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    if (face != Face::quiet)
        setFont(scaled(font(), numbersSize));
    if (face != Face::number && button.window().mainAction != &button) {
        QPalette tinted = palette();
        tinted.setColor(QPalette::Button,
                        face == Face::basic ? style::selection() : style::paleAccent());
        setPalette(tinted);
    }
}

QSize KeyButton::sizeHint() const {
    const QSize word = fontMetrics().size(Qt::TextShowMnemonic, text());
    return (word + QSize(style::unit(), style::unit()))
        .expandedTo(QSize(13, 9) * style::halfUnit());
}

FiguresLabel::FiguresLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize FiguresLabel::sizeHint() const {
    const QFontMetrics large(scaled(font(), figuresSize));
    return {large.horizontalAdvance(widestNumber), large.height()};
}

QSize FiguresLabel::minimumSizeHint() const {
    return sizeHint();
}

void FiguresLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    double size = figuresSize;
    const auto fits = [&] {
        painter.setFont(scaled(font(), size));
        return painter.fontMetrics().horizontalAdvance(text()) <= width();
    };
    while (!fits() && size > figuresLeast)
        size -= 0.1;
    // What goes on past the left edge is older than what is typed at the right one.
    const QString shown = painter.fontMetrics().elidedText(text(), Qt::ElideLeft, width());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, shown);
}

CalculatorView::CalculatorView(Session& session, frmCalculadora& window)
    : session_(session), window_(window) {
    setObjectName(toQString(window.name()));
    setWindowIcon(style::icon(QStringLiteral("Calculadora")));
    setFocusPolicy(Qt::StrongFocus);
    auto* column = new QVBoxLayout(this);
    const int margin = style::unit() + style::halfUnit();
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(style::unit());
    column->addWidget(buildDisplay());
    column->addLayout(buildOptions());
    column->addLayout(buildKeys({
                          {"cmdSci(sin)", "cmdSci(cos)", "cmdSci(tan)", "cmdSci(pi)", "",
                           "cmdMem(MC)", "cmdMem(MR)"},
                          {"cmdSci(sin-1)", "cmdSci(cos-1)", "cmdSci(tan-1)", "cmdSci(ran)", "",
                           "cmdMem(MS)", "cmdMem(M+)"},
                      }),
                      2);
    column->addLayout(
        buildKeys({
            {"cmdClear(C)", "cmdClear(CE)", "cmdBackSpace", "", "cmdOp(1)", "cmdOp(5)",
             "cmdOp(10)"},
            {"cmdNum(7)", "cmdNum(8)", "cmdNum(9)", "", "cmdOp(2)", "cmdOp(14)", "cmdOp(9)"},
            {"cmdNum(4)", "cmdNum(5)", "cmdNum(6)", "", "cmdOp(3)", "cmdOp(13)", "cmdOp(8)"},
            {"cmdNum(1)", "cmdNum(2)", "cmdNum(3)", "", "cmdOp(4)", "cmdOp(7)", "cmdOp(11)"},
            {"cmdNum(0)", "cmdDecimal", "cmdValue", "", "cmdEquals", "cmdOp(6)", "cmdOp(12)"},
        }),
        5);
    resize(layout()->totalSizeHint());
    sync();
}

QWidget* CalculatorView::buildDisplay() {
    auto* panel = new QFrame(this);
    panel->setObjectName(QStringLiteral("pantalla"));
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setAutoFillBackground(true);
    QPalette paper = panel->palette();
    paper.setColor(QPalette::Window, paper.color(QPalette::Base));
    panel->setPalette(paper);

    const auto label = [&](Label& shown) -> QLabel& {
        return static_cast<QLabel&>(keep(std::make_unique<LabelView>(shown, panel)));
    };
    QLabel& memory = label(window_.lblMemoria);
    QLabel& pending = label(window_.lblPendiente);
    QPalette accented = memory.palette();
    accented.setColor(QPalette::WindowText, style::accent());
    for (QLabel* each : {&memory, &pending}) {
        each->setPalette(accented);
        each->setMinimumHeight(each->fontMetrics().height());
        // However long the number is, the keys stay where they are.
        each->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
    QFont heavy = memory.font();
    heavy.setBold(true);
    memory.setFont(heavy);
    pending.setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto* above = new QHBoxLayout;
    above->addWidget(&memory, 1);
    above->addWidget(&pending, 6);
    figures_ = new FiguresLabel(panel);
    figures_->setObjectName(toQString(window_.lblDisplay.name()));
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(style::unit(), style::halfUnit(), style::unit(), style::halfUnit());
    column->setSpacing(0);
    column->addLayout(above);
    column->addWidget(figures_);
    display_ = panel;
    return panel;
}

QLayout* CalculatorView::buildOptions() {
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * style::unit());
    for (Option* option : {&window_.OptDegree, &window_.OptRadian}) {
        QWidget& widget = keep(std::make_unique<OptionView>(session_, *option, this));
        widget.setFocusPolicy(Qt::TabFocus);
        row->addWidget(&widget);
    }
    row->addStretch(1);
    return row;
}

QLayout* CalculatorView::buildKeys(const std::vector<std::vector<const char*>>& rows) {
    auto* grid = new QGridLayout;
    grid->setSpacing(style::halfUnit());
    int row = 0;
    for (const auto& names : rows) {
        int col = 0;
        for (const char* name : names) {
            if (*name == '\0') {
                grid->setColumnMinimumWidth(col, style::halfUnit());
            } else {
                grid->addWidget(&key(name), row, col);
                grid->setColumnStretch(col, 1);
            }
            ++col;
        }
        grid->setRowStretch(row++, 1);
    }
    return grid;
}

QWidget& CalculatorView::key(const char* name) {
    auto& button = static_cast<Button&>(*window_.find(name));
    auto* widget = new KeyButton(session_, button, faceOf(button.name()), this);
    return keep(std::make_unique<ButtonView>(button, *widget));
}

QWidget& CalculatorView::keep(std::unique_ptr<ControlView> view) {
    views_.push_back(std::move(view));
    return views_.back()->widget();
}

void CalculatorView::sync() {
    if (const QString title = toQString(window_.caption); windowTitle() != title)
        setWindowTitle(title);
    for (const auto& view : views_)
        view->sync();
    if (const QString text = toQString(window_.lblDisplay.caption); figures_->text() != text)
        figures_->setText(text);
    if (shown_ == window_.shown)
        return;
    shown_ = window_.shown;
    if (QWidget* opener = QApplication::activeWindow(); opener && opener != this)
        comeTo(*opener);
}

void CalculatorView::comeTo(QWidget& opener) {
    below_ = &opener;
    if (isVisible()) {
        stayAbove();
    } else {
        // Its words are there by now.
        placement::remeasure(*this);
        resize(layout()->totalSizeHint().expandedTo(layout()->totalMinimumSize()));
        placement::standBeside(*this, opener);
    }
}

void CalculatorView::stayAbove() {
    if (below_ && windowHandle())
        windowHandle()->setTransientParent(below_->windowHandle());
}

void CalculatorView::showEvent(QShowEvent* event) {
    // The platform's window stands by now.
    stayAbove();
    QWidget::showEvent(event);
}

void CalculatorView::closeEvent(QCloseEvent* event) {
    event->ignore();
    session_.act([this] { session_.program().close(window_); });
}

void CalculatorView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        session_.act([this] { session_.program().click(window_.mnuCopy); });
    } else if (event->matches(QKeySequence::Paste)) {
        session_.act([this] { session_.program().click(window_.mnuPaste); });
    } else if (const auto pressed = keyOf(*event)) {
        session_.act([&] { session_.program().key(window_, *pressed); });
    } else {
        QWidget::keyPressEvent(event);
    }
}

void CalculatorView::contextMenuEvent(QContextMenuEvent* event) {
    const QRect display = display_->geometry();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        openMenu(mapToGlobal(display.center()));
    } else if (display.contains(event->pos())) {
        openMenu(event->globalPos());
    }
}

void CalculatorView::openMenu(const QPoint& globalPosition) {
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("menúDePantalla"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (MenuEntry* entry : {&window_.mnuCopy, &window_.mnuPaste}) {
        QAction* action = menu->addAction(toQString(entry->caption), this, [this, entry] {
            session_.act([&] { session_.program().click(*entry); });
        });
        action->setObjectName(toQString(entry->name()));
    }
    menu->popup(globalPosition);
}

} // namespace caudalera
