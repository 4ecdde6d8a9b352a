#pragma once

#include "app/registry.h"
#include "desktop/Views.h"
#include "desktop/session/Session.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <stdexcept>

namespace caudalera {

class GridEditor;
class GridView;

/// A running session on the screen, with settings in a folder of its own. No box stays open: a
/// watchdog presses the button of each and keeps those that no test has announced, which
/// `unexpectedBoxes` then tells.
class DesktopFixture {
public:
    struct Box {
        QString text;
        QString title;
        QMessageBox::Icon icon = QMessageBox::NoIcon;

        bool operator==(const Box&) const = default;
    };

    /// `windows`: those that the program can open; all that there are, if not given.
    explicit DesktopFixture(const std::vector<WindowEntry>& windows = ventanas());
    ~DesktopFixture();
    DesktopFixture(const DesktopFixture&) = delete;
    DesktopFixture& operator=(const DesktopFixture&) = delete;

    /// Where the copies go that a failing program leaves.
    QString copiesFolder() const { return folder_.filePath(QStringLiteral("copias")); }

    Session session;
    Program& program() { return session.program(); }

    /// Opens a window as its menu entry does and waits until it has the keyboard.
    Window& open(const std::string& name);
    QWidget& view() { return *session.viewOf(*window_); }
    Window& window() { return *window_; }

    template <typename Kind>
    Kind& control(const std::string& name) {
        auto* found = dynamic_cast<Kind*>(window_->find(name));
        if (!found)
            throw std::logic_error("no such control: " + name);
        return *found;
    }
    template <typename Kind>
    Kind& widget(const char* name) {
        auto* found = view().findChild<Kind*>(QString::fromUtf8(name));
        if (!found)
            throw std::logic_error(std::string("no such widget: ") + name);
        return *found;
    }
    MSFlexGrid& grid() { return control<MSFlexGrid>("grdt"); }
    GridView& gridView();

    /// Keys to the widget that has the keyboard, as a person's are.
    static void type(const QString& text);
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void clickButton(const char* name);
    void clickCell(long row, long col, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QPoint centerOf(long row, long col);
    /// Types values into the first free cells, each with ENTER.
    void typeValues(const QStringList& values);
    /// Cells of a row of `grdt`, the fixed one too, joined by '|'.
    QString row(long row);

    /// Announces the next box. `whileOpen` runs before its button is pressed.
    void expectBox(const Box& box, std::function<void()> whileOpen = {});
    /// Runs on the next other dialog, which it has to close.
    void expectDialog(std::function<void(QDialog&)> answer);
    /// Boxes that were not announced, and announced ones that did not come; empty if all is well.
    QString unexpectedBoxes() const;

private:
    struct Expected {
        Box box;
        std::function<void()> whileOpen;
    };

    void watch();
    void answer(QMessageBox& box);

    QTemporaryDir folder_;
    Window* window_ = nullptr;
    QTimer watchdog_;
    std::deque<Expected> expected_;
    std::deque<std::function<void(QDialog&)>> dialogs_;
    QStringList unexpected_;
};

} // namespace caudalera
