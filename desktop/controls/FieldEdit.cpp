#include "desktop/controls/FieldEdit.h"

#include "desktop/controls/KeyEvents.h"
#include "desktop/controls/Note.h"
#include "desktop/controls/PasteReading.h"
#include "desktop/session/Session.h"
#include "desktop/style/Style.h"

#include <QClipboard>
#include <QDragLeaveEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>
#include <limits>

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
        // Read and copied, but nothing to go through by the keyboard.
        setFocusPolicy(Qt::ClickFocus);
        QPalette calm = palette();
        calm.setColor(QPalette::Base, style::calmField());
        setPalette(calm);
    }
    // The model's texts have no longest one.
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::textEdited, this, &FieldEdit::tellText);
    const auto selected = [this] {
        if (!session_.busy())
            tellSelection();
    };
    connect(this, &QLineEdit::selectionChanged, this, selected);
    connect(this, &QLineEdit::cursorPositionChanged, this, selected);
}

void FieldEdit::act(const std::function<void(Program&)>& event) {
    const QScopedValueRollback<bool> acting(acting_, true);
    session_.act([&] { event(session_.program()); });
}

void FieldEdit::tellText(const QString& text) {
    session_.act([&] {
        session_.program().editText(box_, text.toStdString());
        if (toQString(box_.text()) == text)
            tellSelection();
    });
}

void FieldEdit::tellSelection() {
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    session_.program().select(box_, charactersOf(text(), start),
                              charactersOf(selectedText(), selectedText().size()));
}

void FieldEdit::showSelection() {
    const int start = unitsOf(text(), box_.selStart());
    const int length = unitsOf(text(), box_.selStart() + box_.selLength()) - start;
    if (length > 0) {
        if (selectionStart() != start || selectionLength() != length)
            setSelection(start, length);
    } else if (hasSelectedText() || cursorPosition() != start) {
        deselect();
        setCursorPosition(start);
    }
}

void FieldEdit::showStep(const QString& wanted) {
    const QString shown = text();
    const int caret = hasSelectedText() ? selectionStart() : cursorPosition();
    // Not past the caret: among equal characters, too, it is there that the user edits.
    auto front =
        std::mismatch(shown.begin(), shown.begin() + caret, wanted.begin(), wanted.end()).first -
        shown.begin();
    if (front > 0 && shown[front - 1].isHighSurrogate())
        --front;
    auto back =
        std::mismatch(shown.rbegin(), shown.rend() - front, wanted.rbegin(), wanted.rend() - front)
            .first -
        shown.rbegin();
    if (back > 0 && shown[shown.size() - back].isLowSurrogate())
        --back;
    const auto start = static_cast<int>(front);
    const auto length = static_cast<int>(shown.size() - front - back);
    const QString inserted = wanted.mid(front, wanted.size() - front - back);
    // What comes in whole is undone whole; characters that are typed are undone together.
    const bool whole = inserted.size() > 1;
    if (whole)
        endStep();
    if (length > 0) {
        if (selectionStart() != start || selectionLength() != length)
            setSelection(start, length);
    } else if (hasSelectedText() || cursorPosition() != start) {
        setCursorPosition(start);
    }
    insert(inserted);
    if (whole)
        endStep();
}

void FieldEdit::endStep() {
    const int caret = cursorPosition();
    setCursorPosition(caret > 0 ? 0 : static_cast<int>(text().size()));
    setCursorPosition(caret);
}

void FieldEdit::sync() {
    const QString wanted = toQString(box_.text());
    if (text() != wanted) {
        if (acting_) {
            showStep(wanted);
        } else {
            setText(wanted);
        }
        if (box_.result) {
            setAlignment((readsAsNumber(wanted) ? Qt::AlignRight : Qt::AlignLeft) |
                         Qt::AlignVCenter);
            setCursorPosition(0);
        }
    }
    if (!box_.result && box_.window().focus() == &box_)
        showSelection();
}

void FieldEdit::pressEnter(bool again) {
    const bool meant = box_.onEnter || box_.onKey || box_.window().onKey;
    session_.act([&] {
        Program& program = session_.program();
        program.key(box_, {Key::Kind::enter});
        if (meant || again || !box_.command)
            return;
        program.click(*box_.command);
        // The next value comes into the same field.
        if (box_.window().focus() == box_.command)
            program.focus(box_);
    });
}

bool FieldEdit::pressInModel(const QKeyEvent& event) {
    const auto kind = commandKey(event);
    if (kind == Key::Kind::enter) {
        pressEnter(event.isAutoRepeat());
        return true;
    }
    if (kind && box_.onKey) {
        session_.act([&] { session_.program().key(box_, {*kind}); });
        return true;
    }
    if (isReadOnly())
        return false;
    if (event.matches(QKeySequence::Delete)) {
        act([this](Program& program) { program.key(box_, {Key::Kind::forwardDelete}); });
        return true;
    }
    const QString typed = event.text();
    if (isShortcut(event) || typed.isEmpty() || !(typed.front().isPrint() || typed == u"\b"))
        return false;
    const auto characters = typed.toUcs4();
    const std::string before = box_.text();
    act([&](Program& program) {
        if (characters.size() == 1) {
            program.key(box_, {Key::Kind::character, static_cast<char32_t>(characters.front())});
        } else {
            program.insertText(box_, typed.toStdString());
        }
    });
    if (typed == u"," && box_.acceptable && box_.text() == before)
        showNote(*this, rect(), QStringLiteral("El separador decimal es el punto"));
    return true;
}

void FieldEdit::keyPressEvent(QKeyEvent* event) {
    if (pressInModel(*event))
        return;
    if (!isReadOnly() && event->matches(QKeySequence::Paste)) {
        pasteText(QGuiApplication::clipboard()->text());
        return;
    }
    // An access key that nothing has is no text either.
    if (isShortcut(*event) && (event->modifiers() & Qt::AltModifier) && !event->text().isEmpty()) {
        event->ignore();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void FieldEdit::inputMethodEvent(QInputMethodEvent* event) {
    const QString committed = event->commitString();
    if (isReadOnly() || committed.isEmpty()) {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    // What was being composed makes room for what is committed.
    QInputMethodEvent composed;
    QLineEdit::inputMethodEvent(&composed);
    if (event->replacementLength() > 0) {
        setSelection(std::max(cursorPosition() + event->replacementStart(), 0),
                     event->replacementLength());
    }
    act([&](Program& program) { program.insertText(box_, committed.toStdString()); });
    QInputMethodEvent next(event->preeditString(), event->attributes());
    QLineEdit::inputMethodEvent(&next);
    event->accept();
}

void FieldEdit::pasteText(const QString& text) {
    const auto read = pastedIntoField(text, *this);
    if (!read)
        return;
    const std::string before = box_.text();
    act([&](Program& program) { program.pasteText(box_, read->toStdString()); });
    const bool refused = box_.acceptable && !text.trimmed().isEmpty() && box_.text() == before &&
                         !box_.acceptable(read->toStdString());
    if (refused) {
        constexpr int longest = 30;
        const QString shown = fontMetrics().elidedText(text.simplified(), Qt::ElideRight,
                                                       longest * fontMetrics().averageCharWidth());
        showNote(*this, rect(), QStringLiteral("No se pegó nada: «%1» no es un número").arg(shown));
    }
}

void FieldEdit::mouseReleaseEvent(QMouseEvent* event) {
    const QClipboard* clipboard = QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard->supportsSelection() && !isReadOnly()) {
        deselect();
        pasteText(clipboard->text(QClipboard::Selection));
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

void FieldEdit::dropEvent(QDropEvent* event) {
    if (isReadOnly())
        return;
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    event->acceptProposedAction();
    QDragLeaveEvent over;
    dragLeaveEvent(&over);
    pasteText(event->mimeData()->text());
}

void FieldEdit::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // The toolkit's own words are all that its entries are known by.
    for (QAction* action : menu->actions()) {
        if (!action->text().startsWith(QLineEdit::tr("&Paste")))
            continue;
        action->setObjectName(QStringLiteral("pegar"));
        action->disconnect(this);
        connect(action, &QAction::triggered, this,
                [this] { pasteText(QGuiApplication::clipboard()->text()); });
    }
    menu->popup(event->globalPos());
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

} // namespace caudalera
