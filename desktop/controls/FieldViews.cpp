#include "desktop/controls/FieldViews.h"

#include "desktop/controls/KeyEvents.h"
#include "desktop/session/Session.h"
#include "desktop/style/Style.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>

namespace caudalera {

namespace {

/// Position in UTF-16 units of a character of a text, and back.
int unitsOf(const QString& text, std::size_t characters) {
    qsizetype units = 0;
    for (; characters > 0 && units < text.size(); --characters)
        units += text[units].isHighSurrogate() ? 2 : 1;
    return static_cast<int>(std::min(units, text.size()));
}

std::size_t charactersOf(const QString& text, qsizetype units) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.begin() + std::min(units, text.size()),
                      [](QChar unit) { return !unit.isLowSurrogate(); }));
}

/// Numbers end at the right; a result that is a sentence or an equation begins at the left.
bool readsAsNumber(const QString& text) {
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() || QStringLiteral("0123456789+-.,").contains(trimmed.front());
}

} // namespace

FieldEdit::FieldEdit(Session& session, TextBox& box, QWidget* parent)
    : QLineEdit(parent), session_(session), box_(box) {
    setObjectName(toQString(box.name()));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (box.result) {
        setReadOnly(true);
        QPalette calm = palette();
        calm.setColor(QPalette::Base, style::calmField());
        setPalette(calm);
    }
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        session_.act([&] {
            session_.program().changeText(box_, text.toStdString());
            if (toQString(box_.text()) == text)
                tellSelection();
        });
    });
    const auto selected = [this] {
        if (!session_.busy())
            tellSelection();
    };
    connect(this, &QLineEdit::selectionChanged, this, selected);
    connect(this, &QLineEdit::cursorPositionChanged, this, selected);
}

void FieldEdit::tellSelection() {
    if (hasSelectedText()) {
        box_.selStart = charactersOf(text(), selectionStart());
        box_.selLength = charactersOf(selectedText(), selectedText().size());
    } else {
        box_.selStart = charactersOf(text(), cursorPosition());
        box_.selLength = 0;
    }
}

void FieldEdit::showSelection() {
    const int start = unitsOf(text(), box_.selStart);
    const int length = unitsOf(text(), box_.selStart + box_.selLength) - start;
    if (length > 0) {
        if (selectionStart() != start || selectionLength() != length)
            setSelection(start, length);
    } else if (hasSelectedText() || cursorPosition() != start) {
        deselect();
        setCursorPosition(start);
    }
}

void FieldEdit::sync() {
    const QString wanted = toQString(box_.text());
    if (text() != wanted) {
        setText(wanted);
        if (box_.result) {
            setAlignment((readsAsNumber(wanted) ? Qt::AlignRight : Qt::AlignLeft) |
                         Qt::AlignVCenter);
            setCursorPosition(0);
        }
    }
    if (!box_.result && box_.window().focus() == &box_)
        showSelection();
}

bool FieldEdit::accepts(const QString& typed) const {
    if (!box_.keyFilter)
        return true;
    const auto characters = typed.toUcs4();
    return std::all_of(characters.begin(), characters.end(), [this](auto character) {
        return box_.keyFilter(static_cast<char32_t>(character), box_.text());
    });
}

void FieldEdit::keyPressEvent(QKeyEvent* event) {
    const auto kind = commandKey(*event);
    if (kind && (*kind == Key::Kind::enter || box_.onKey)) {
        session_.act([&] { session_.program().key(box_, {*kind}); });
        return;
    }
    const QString typed = event->text();
    const bool isText = !typed.isEmpty() && (typed.front().isPrint() || typed == u"\b");
    if (isText && !isShortcut(*event) && !accepts(typed))
        return;
    // An access key that nothing has is no text either.
    if (isText && isShortcut(*event) && (event->modifiers() & Qt::AltModifier)) {
        event->ignore();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void FieldEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (accepts(event->commitString()))
        QLineEdit::inputMethodEvent(event);
}

QSize FieldEdit::sizeFor(int characters) const {
    const QFontMetrics metrics(font());
    QStyleOptionFrame option;
    initStyleOption(&option);
    // The digit is the character that fields hold most.
    const QSize content(metrics.horizontalAdvance(u'0') * characters + style::unit(),
                        metrics.height() + style::halfUnit());
    return style()->sizeFromContents(QStyle::CT_LineEdit, &option, content, this);
}

QSize FieldEdit::sizeHint() const {
    return sizeFor(box_.width);
}

QSize FieldEdit::minimumSizeHint() const {
    return sizeFor(std::min(box_.width, 6));
}

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

void ListBox::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event)) {
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
