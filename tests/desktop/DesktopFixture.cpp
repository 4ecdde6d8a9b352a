#include "tests/desktop/DesktopFixture.h"

#include "desktop/grid/GridView.h"
#include "desktop/style/Style.h"
#include "desktop/words/Words.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QSettings>

namespace caudalera {

namespace {

constexpr int watchEvery = 10;

QString described(const DesktopFixture::Box& box) {
    return QStringLiteral("[%1] %2 (icon %3)").arg(box.title, box.text).arg(box.icon);
}

} // namespace

DesktopFixture::DesktopFixture(const std::vector<WindowEntry>& windows)
    : session(windows, makeView) {
    style::apply(*qApp);
    words::install(*qApp);
    QApplication::setQuitOnLastWindowClosed(false);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
    session.platform().putCopiesIn(copiesFolder());
    QObject::connect(&watchdog_, &QTimer::timeout, &watchdog_, [this] { watch(); });
    watchdog_.start(watchEvery);
    session.start();
    window_ = program().find("frmCaudalera");
}

DesktopFixture::~DesktopFixture() = default;

void DesktopFixture::watch() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog)
        return;
    if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
        answer(*box);
    } else if (dialogs_.empty()) {
        unexpected_.append(QStringLiteral("unexpected dialog: ") + dialog->windowTitle());
        dialog->reject();
    } else {
        const auto handle = std::move(dialogs_.front());
        dialogs_.pop_front();
        handle(*dialog);
    }
}

void DesktopFixture::answer(QMessageBox& box) {
    const Box seen{box.text(), box.windowTitle(), box.icon()};
    if (expected_.empty()) {
        unexpected_.append(QStringLiteral("unexpected box: ") + described(seen));
    } else {
        const Expected next = std::move(expected_.front());
        expected_.pop_front();
        if (!(seen == next.box))
            unexpected_.append(
                QStringLiteral("box %1 instead of %2").arg(described(seen), described(next.box)));
        if (next.whileOpen)
            next.whileOpen();
    }
    if (box.buttons().size() == 1)
        box.buttons().constFirst()->click();
    else
        box.reject();
}

void DesktopFixture::expectBox(const Box& box, std::function<void()> whileOpen) {
    expected_.push_back({box, std::move(whileOpen)});
}

void DesktopFixture::expectDialog(std::function<void(QDialog&)> answer) {
    dialogs_.push_back(std::move(answer));
}

QString DesktopFixture::unexpectedBoxes() const {
    QStringList all = unexpected_;
    for (const Expected& missing : expected_)
        all.append(QStringLiteral("missing box: ") + described(missing.box));
    if (!dialogs_.empty())
        all.append(QStringLiteral("missing dialog"));
    return all.join(u'\n');
}

Window& DesktopFixture::open(const std::string& name) {
    session.act([&] { program().act([&] { program().show(name); }); });
    window_ = program().find(name);
    if (!QTest::qWaitForWindowActive(&view()))
        throw std::logic_error("window does not become active: " + name);
    return *window_;
}

GridView& DesktopFixture::gridView() {
    return widget<GridView>("grdt");
}

void DesktopFixture::type(const QString& text) {
    for (const QChar character : text)
        QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
}

void DesktopFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void DesktopFixture::clickButton(const char* name) {
    QTest::mouseClick(&widget<QAbstractButton>(name), Qt::LeftButton);
}

QPoint DesktopFixture::centerOf(long row, long col) {
    const QAbstractItemModel& model = *gridView().model();
    return gridView()
        .visualRect(model.index(static_cast<int>(row - grid().FixedRows()), static_cast<int>(col)))
        .center();
}

void DesktopFixture::clickCell(long row, long col, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(gridView().viewport(), Qt::LeftButton, modifiers, centerOf(row, col));
}

void DesktopFixture::typeValues(const QStringList& values) {
    gridView().setFocus();
    for (const QString& value : values) {
        type(value);
        press(Qt::Key_Return);
    }
}

QString DesktopFixture::row(long row) {
    QStringList cells;
    for (long col = 0; col < grid().Cols(); ++col)
        cells.append(QString::fromStdString(grid().TextMatrix(row, col)));
    return cells.join(u'|');
}

} // namespace caudalera
