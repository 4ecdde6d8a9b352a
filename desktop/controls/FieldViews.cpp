#include "desktop/controls/FieldViews.h"

#include "desktop/controls/KeyEvents.h"
#include "desktop/session/Session.h"
#include "desktop/style/Style.h"

#include <QKeyEvent>
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
}

} // namespace caudalera
