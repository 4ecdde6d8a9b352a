#include "desktop/controls/FieldViews.h"

#include "desktop/controls/KeyEvents.h"
#include "desktop/session/Session.h"
#include "desktop/style/Style.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

namespace caudalera {

namespace {

/// What is left of a text without case, accents and blanks around it.
QString plainLetters(const QString& text) {
    QString letters = text.trimmed().normalized(QString::NormalizationForm_D).toCaseFolded();
    letters.removeIf([](QChar letter) { return letter.category() == QChar::Mark_NonSpacing; });
    return letters;
}

} // namespace

void TextView::sync() {
    ControlView::sync();
    edit_.sync();
}

ListBox::ListBox(Session& session, List& list, QWidget* parent)
    : QComboBox(parent), session_(session), list_(list) {
    setObjectName(toQString(list.name()));
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    // Completing would put words into the field that nobody typed.
    setCompleter(nullptr);
    setFocusPolicy(Qt::StrongFocus);
    for (const std::string& item : list.items())
        addItem(toQString(item));
    setMaxVisibleItems(20);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    if (list.width > 0) {
        setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        setMinimumContentsLength(list.width);
    }
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        session_.act([&] { session_.program().choose(list_, text.toStdString()); });
    });
    connect(this, &QComboBox::activated, this, [this](int index) {
        const QString text = itemText(index);
        session_.act([&] { session_.program().choose(list_, text.toStdString()); });
    });
}

void ListBox::sync() {
    const QString wanted = toQString(list_.text());
    if (currentText() == wanted)
        return;
    setCurrentIndex(findText(wanted, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(wanted);
}

void ListBox::settle() {
    const QString typed = currentText();
    if (findText(typed, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0)
        return;
    for (const std::string& item : list_.items()) {
        if (plainLetters(toQString(item)) == plainLetters(typed)) {
            // The keyboard is elsewhere by now, and stays there.
            session_.act([&] { session_.program().act([&] { list_.choose(item); }); });
            return;
        }
    }
}

void ListBox::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason)
        settle();
    QComboBox::focusOutEvent(event);
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event)) {
        settle();
        session_.act([&] { session_.program().key(list_, {Key::Kind::enter}); });
        return;
    }
    QComboBox::keyPressEvent(event);
}

void ListBox::wheelEvent(QWheelEvent* event) {
    // A wheel that only passes over must not change a choice.
    event->ignore();
}

void ListView::sync() {
    ControlView::sync();
    box_.sync();
}

WrappingLabel::WrappingLabel(int reservedLines, QWidget* parent)
    : QLabel(parent), reservedLines_(reservedLines) {
    setWordWrap(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void WrappingLabel::setMark(Label::Mark mark) {
    if (mark == mark_)
        return;
    mark_ = mark;
    setContentsMargins(mark == Label::Mark::none ? 0 : fontMetrics().height() + style::unit(), 0, 0,
                       0);
    setAccessibleDescription(mark == Label::Mark::none  ? QString()
                             : mark == Label::Mark::yes ? QStringLiteral("Se ajusta")
                                                        : QStringLiteral("No se ajusta"));
    update();
}

void WrappingLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (mark_ == Label::Mark::none)
        return;
    const bool yes = mark_ == Label::Mark::yes;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = fontMetrics().height();
    painter.translate(1, 0);
    painter.scale(side / 16, side / 16);
    // A full disc with a tick, or an empty one with a cross.
    painter.setPen(QPen(yes ? style::accent() : palette().color(QPalette::WindowText), 1.5));
    painter.setBrush(yes ? QBrush(style::accent()) : Qt::NoBrush);
    painter.drawEllipse(QRectF(1, 1, 14, 14));
    painter.setPen(QPen(yes ? style::accentText() : palette().color(QPalette::WindowText), 2,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (yes) {
        painter.drawPolyline(QPolygonF({{4.5, 8.5}, {7, 11}, {11.5, 5.5}}));
    } else {
        painter.drawLine(QPointF(5.5, 5.5), QPointF(10.5, 10.5));
        painter.drawLine(QPointF(10.5, 5.5), QPointF(5.5, 10.5));
    }
}

int WrappingLabel::heightForWidth(int width) const {
    return std::max(QLabel::heightForWidth(width), reservedLines_ * fontMetrics().lineSpacing());
}

QSize WrappingLabel::sizeHint() const {
    const QFontMetrics metrics(font());
    const int width = std::min(metrics.horizontalAdvance(text()) + style::unit(),
                               28 * metrics.averageCharWidth());
    return {width, heightForWidth(width)};
}

QSize WrappingLabel::minimumSizeHint() const {
    const QFontMetrics metrics(font());
    return {12 * metrics.averageCharWidth(), std::max(reservedLines_, 1) * metrics.lineSpacing()};
}

LabelView::LabelView(Label& label, QWidget* parent)
    // A sentence that is yet to come moves nothing when it comes.
    : ControlView(label, label.wraps ? *new WrappingLabel(label.caption.empty() ? 2 : 0, parent)
                                     : *new QLabel(parent)) {
    widget().setObjectName(toQString(label.name()));
    this->label().setTextFormat(Qt::PlainText);
    this->label().setTextInteractionFlags(Qt::NoTextInteraction);
    if (label.wraps)
        this->label().setAlignment(Qt::AlignLeft | Qt::AlignTop);
    if (label.heading) {
        QFont heavy = widget().font();
        heavy.setWeight(QFont::DemiBold);
        widget().setFont(heavy);
        QPalette accented = widget().palette();
        accented.setColor(QPalette::WindowText, style::accent());
        widget().setPalette(accented);
    }
}

void LabelView::sync() {
    ControlView::sync();
    const QString text = toQString(control().caption);
    if (label().text() != text)
        label().setText(text);
    if (auto* wrapping = qobject_cast<WrappingLabel*>(&label()))
        wrapping->setMark(static_cast<const Label&>(control()).mark);
}

} // namespace caudalera
