#include "desktop/report/DocumentView.h"

#include "desktop/richtext/LayoutLimits.h"
#include "desktop/richtext/RichTextBridge.h"
#include "desktop/session/Session.h"
#include "shell/report/frmPadre.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFrame>
#include <algorithm>
#include <utility>

namespace caudalera {

namespace {

/// Right margin of the text before the box's edge, in twips.
constexpr double rightMargin = 400;

/// Second halves of the characters past U+FFFF among the document's first `end` units.
int secondHalves(const QTextDocument& document, int end) {
    int count = 0;
    for (QTextBlock block = document.begin(); block.isValid() && block.position() < end;
         block = block.next()) {
        const QString text = block.text().left(end - block.position());
        count += static_cast<int>(std::count_if(text.begin(), text.end(),
                                                [](QChar unit) { return unit.isLowSurrogate(); }));
    }
    return count;
}

/// Unit at which character number `character` stands.
int unitOf(const QTextDocument& document, int character) {
    int unit = character;
    for (int found = secondHalves(document, unit); character + found != unit;
         found = secondHalves(document, unit))
        unit = character + found;
    return document.characterAt(unit).isLowSurrogate() ? unit + 1 : unit;
}

} // namespace

Message refusedPaste(const QString& excess) {
    const QString text =
        QStringLiteral("Lo que se pega no cabe: el documento quedaría demasiado largo (%1).\n\n"
                       "No se ha pegado nada.")
            .arg(excess);
    return {text.toStdString(), "Pegar", Icon::information};
}

DocumentView::DocumentView(Session& session, frmPadre& padre, frmDocumento& document,
                           QMenu& editMenu, Command command, QWidget* parent)
    : QTextEdit(parent), session_(session), padre_(padre), document_(document), editMenu_(editMenu),
      command_(std::move(command)) {
    // What is dropped or pasted by the mouse comes in as plain text.
    setAcceptRichText(false);
    setFont(richtext::reportFont());
    setUndoRedoEnabled(false);
    richtext::prepare(*this->document(), font());
    // Prose wraps at the box's width; the rows of tables never break (see RichTextBridge), and
    // where they are wider than the box, it scrolls.
    setLineWrapMode(QTextEdit::WidgetWidth);
    fitMargins();
    setMinimumWidth(richtext::narrowestBox(font()));
    connect(this->document(), &QTextDocument::contentsChange, this, &DocumentView::noteChange);
    connect(this, &QTextEdit::textChanged, this, &DocumentView::tellModel);
    connect(this, &QTextEdit::cursorPositionChanged, this, &DocumentView::tellModel);
    connect(this, &QTextEdit::selectionChanged, this, &DocumentView::tellModel);
    sync(Following::report);
    // The user's steps can be undone, not the document as it was found.
    setUndoRedoEnabled(true);
}

void DocumentView::fitMargins() {
    QTextFrameFormat format = document()->rootFrame()->frameFormat();
    format.setRightMargin(format.leftMargin() + rightMargin * logicalDpiX() / 1440);
    document()->rootFrame()->setFrameFormat(format);
}

void DocumentView::sync(Following following) {
    const RichText& text = document_.rtfText;
    if (revision_ == text.revision())
        return;
    const QScopedValueRollback<bool> applying(applying_, true);
    // Where the model's caret stood, a report begins.
    const int caret = textCursor().selectionStart();
    excess_ = richtext::excess(text);
    setReadOnly(!shownWhole());
    const int first = richtext::update(*document(), shownWhole() ? text : richtext::showable(text));
    if (shownWhole()) {
        astral_ = static_cast<int>(text.length()) != document()->characterCount() - 1;
        showSelection();
    }
    revision_ = text.revision();
    if (first < 0)
        return;
    if (following == Following::report) {
        showFrom(caret);
    } else {
        ensureCursorVisible();
    }
}

void DocumentView::showFrom(int position) {
    // How far the view can scroll is known when all of it has its place.
    if (isVisible())
        richtext::layOut(*document());
    const QTextBlock block = document()->findBlock(position);
    QScrollBar& bar = *verticalScrollBar();
    // The first one with the margin above it.
    if (!block.isValid() || block == document()->begin()) {
        bar.setValue(0);
    } else {
        bar.setValue(bar.value() + cursorRect(QTextCursor(block)).top());
    }
}

QString DocumentView::excessWith(const RichText& inserted) const {
    RichText text = document_.rtfText;
    text.setSelRich(inserted);
    return richtext::excess(text);
}

void DocumentView::showSelection() {
    const auto start = static_cast<int>(document_.rtfText.selStart());
    const auto end = start + static_cast<int>(document_.rtfText.selLength());
    const int first = astral_ ? unitOf(*document(), start) : start;
    const int last = astral_ ? unitOf(*document(), end) : end;
    QTextCursor cursor = textCursor();
    if (cursor.selectionStart() == first && cursor.selectionEnd() == last)
        return;
    cursor.setPosition(first);
    cursor.setPosition(last, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void DocumentView::noteChange(int position, int removed, int added) {
    if (applying_)
        return;
    // Qt counts the end of the last block in where a change reaches it.
    const int excess = std::max(0, position + added - (document()->characterCount() - 1));
    added -= excess;
    removed = std::max(0, removed - excess);
    changedWidely_ = changedWidely_ || change_.has_value();
    change_ = Change{position, removed, added};
}

void DocumentView::tellModel() {
    if (applying_ || session_.busy() || !shownWhole())
        return;
    const RichText& text = document_.rtfText;
    const QTextCursor cursor = textCursor();
    const auto units = [&](std::size_t character) {
        const auto position = static_cast<int>(character);
        return astral_ ? unitOf(*document(), position) : position;
    };
    if (!change_ && cursor.selectionStart() == units(text.selStart()) &&
        cursor.selectionEnd() == units(text.selStart() + text.selLength()))
        return;
    session_.act([this] {
        if (change_)
            applyChange(*change_);
        change_.reset();
        changedWidely_ = false;
        selectInModel();
        revision_ = document_.rtfText.revision();
    });
}

void DocumentView::applyChange(const Change& change) {
    RichText& text = document_.rtfText;
    if (!astral_ && !changedWidely_) {
        const RichText inserted = richtext::fragment(*document(), change.position, change.added);
        text.select(static_cast<std::size_t>(change.position),
                    static_cast<std::size_t>(change.removed));
        text.setSelRich(inserted);
        if (showsParagraphs(change.position, change.position + change.added))
            return;
    }
    // Whatever the small step does not bring over, all of it does.
    text.assign(richtext::paragraphsOf(*document()));
    astral_ = static_cast<int>(text.length()) != document()->characterCount() - 1;
}

bool DocumentView::showsParagraphs(int from, int to) const {
    const RichText& text = document_.rtfText;
    const auto& paragraphs = text.paragraphs();
    if (static_cast<int>(paragraphs.size()) != document()->blockCount() ||
        static_cast<int>(text.length()) != document()->characterCount() - 1)
        return false;
    for (QTextBlock block = document()->findBlock(from); block.isValid() && block.position() <= to;
         block = block.next()) {
        if (richtext::paragraphOf(block) !=
            paragraphs[static_cast<std::size_t>(block.blockNumber())]) {
            return false;
        }
    }
    return true;
}

void DocumentView::selectInModel() {
    const QTextCursor cursor = textCursor();
    const auto character = [this](int unit) {
        return static_cast<std::size_t>(astral_ ? unit - secondHalves(*document(), unit) : unit);
    };
    const std::size_t start = character(cursor.selectionStart());
    document_.rtfText.select(start, character(cursor.selectionEnd()) - start);
}

void DocumentView::keyPressEvent(QKeyEvent* event) {
    const std::pair<QKeySequence::StandardKey, MenuEntry*> entries[] = {
        {QKeySequence::Cut, &padre_.mnuEditCut},
        {QKeySequence::Copy, &padre_.mnuEditCopy},
        {QKeySequence::Paste, &padre_.mnuEditPaste}};
    for (const auto& [keys, entry] : entries) {
        if (!event->matches(keys))
            continue;
        event->accept();
        command_(*entry);
        return;
    }
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        // The model knows paragraphs alone.
        if (!isReadOnly())
            textCursor().insertBlock();
        ensureCursorVisible();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

void DocumentView::insertFromMimeData(const QMimeData* source) {
    RichText inserted;
    inserted.setSelText(source->text().toStdString());
    if (const QString excess = excessWith(inserted); !excess.isEmpty()) {
        session_.act([&] { session_.platform().showMessage(refusedPaste(excess)); });
        return;
    }
    QTextEdit::insertFromMimeData(source);
}

void DocumentView::contextMenuEvent(QContextMenuEvent* event) {
    editMenu_.popup(event->globalPos());
}

} // namespace caudalera
