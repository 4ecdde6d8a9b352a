#include "tests/desktop/session/RandomWalk.h"

#include "desktop/style/Style.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <QSettings>
#include <QTabBar>
#include <QTest>
#include <algorithm>
#include <cstdio>

namespace caudalera {

namespace {

constexpr int stepsKept = 40;
/// Turns of the event loop that a step may take before somebody looks what it waits for.
constexpr int patience = 20;

/// What a person can do something with.
bool isOfUse(const QWidget& widget) {
    const auto* area = qobject_cast<const QAbstractScrollArea*>(widget.parentWidget());
    return qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QTabBar*>(&widget) || qobject_cast<const QScrollBar*>(&widget) ||
           (area && area->viewport() == &widget);
}

bool prints(const QObject& object) {
    return object.objectName() == QStringLiteral("bImprimir") ||
           object.objectName() == QStringLiteral("mnuFilePrint");
}
bool ends(const QObject& object) {
    return object.objectName() == QStringLiteral("bsalir") ||
           object.objectName() == QStringLiteral("mparasalir");
}

} // namespace

RandomWalk::RandomWalk(unsigned seed) : random_(seed) {
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // Nothing lies there: neither a help file nor a viewer that could be started.
    qputenv("CAUDALERA_DIR", folder_.path().toUtf8());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
    style::apply(*qApp);
    QObject::connect(&watchdog_, &QTimer::timeout, &watchdog_, [this] { watch(); });
    watchdog_.start(0);
    start();
    qApp->installEventFilter(this);
}

RandomWalk::~RandomWalk() = default;

bool RandomWalk::eventFilter(QObject* watched, QEvent* event) {
    const QWidget* dialog = QApplication::activeModalWidget();
    const auto* widget = qobject_cast<const QWidget*>(watched);
    return dialog && widget && event->isInputEvent() && widget->window() != dialog;
}

void RandomWalk::start() {
    session_.reset();
    views_.clear();
    session_ = std::make_unique<Session>(ventanas(), [this](Session& session, Window& window) {
        if (Control* printer = window.find("bImprimir"))
            printer->enabled = false;
        View* view = makeView(session, window);
        views_.emplace_back(&view->widget());
        ++opened_;
        return view;
    });
    session_->platform().putCopiesIn(folder_.filePath(QStringLiteral("copias")));
    session_->start();
}

int RandomWalk::below(int bound) {
    // The standard's own distributions differ from one library to the next.
    return bound > 1 ? static_cast<int>(random_() % static_cast<unsigned>(bound)) : 0;
}

void RandomWalk::note(const QString& what) {
    if (qEnvironmentVariableIsSet("CAUDALERA_WALK_TRACE"))
        std::fprintf(stderr, "%s\n", qPrintable(what));
    steps_.append(what);
    if (steps_.size() > stepsKept)
        steps_.removeFirst();
}

void RandomWalk::answerBox(QMessageBox& box) {
    ++boxes_;
    note(QStringLiteral("  box: ") + box.text());
    if (box.text().contains(QStringLiteral("fallo interno")) || box.text().isEmpty())
        fault_ = QStringLiteral("box: ") + box.text();
    if (box.buttons().isEmpty())
        box.reject();
    else
        box.buttons().constFirst()->click();
}

void RandomWalk::watch() {
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        answer(*dialog);
    } else if (++ticks_ > patience && QApplication::activePopupWidget()) {
        // A menu with an event loop of its own.
        chooseFromMenu();
    }
}

void RandomWalk::answer(QDialog& dialog) {
    if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
        answerBox(*box);
        return;
    }
    auto* files = qobject_cast<QFileDialog*>(&dialog);
    auto* name = files ? files->findChild<QLineEdit*>() : nullptr;
    note(QStringLiteral("  dialog: ") + dialog.windowTitle());
    if (name && chance(60)) {
        name->setText(folder_.filePath(QStringLiteral("archivo%1").arg(below(3))));
        QTest::keyClick(name, Qt::Key_Return);
    }
    if (dialog.isVisible())
        dialog.reject();
}

void RandomWalk::step() {
    struct Act {
        int weight;
        void (RandomWalk::*run)();
    };
    static constexpr Act acts[] = {
        {6, &RandomWalk::open},         {16, &RandomWalk::click},     {4, &RandomWalk::queueTwice},
        {6, &RandomWalk::queueSeveral}, {14, &RandomWalk::press},     {18, &RandomWalk::typeValue},
        {4, &RandomWalk::turnWheel},    {5, &RandomWalk::askForMenu}, {6, &RandomWalk::moveFocus},
        {6, &RandomWalk::paste},        {3, &RandomWalk::resize},     {2, &RandomWalk::close},
        {5, &RandomWalk::trigger},      {6, &RandomWalk::takeBack},
    };
    if (QApplication::activePopupWidget() && chance(60)) {
        chooseFromMenu();
    } else {
        int left = below(101);
        for (const Act& act : acts) {
            left -= act.weight;
            if (left < 0) {
                (this->*act.run)();
                break;
            }
        }
    }
    settle();
    if (session_->program().ended()) {
        note(QStringLiteral("the program has ended"));
        ++ended_;
        start();
    }
}

void RandomWalk::settle() {
    ticks_ = 0;
    QCoreApplication::processEvents();
    // Else retired views stay for some steps.
    if (chance(60))
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    std::erase(views_, nullptr);
}

bool RandomWalk::mayUse(const QObject& object) {
    // The program ends with them, and a walk that never gets far sees little.
    return !prints(object) && (!ends(object) || chance(5));
}

QWidget* RandomWalk::anyView() {
    std::erase(views_, nullptr);
    return views_.empty()
               ? nullptr
               : views_[static_cast<std::size_t>(below(static_cast<int>(views_.size())))];
}

QWidget* RandomWalk::anyWidget() {
    QWidget* view = chance(40) ? QApplication::activeWindow() : anyView();
    if (!view || qobject_cast<QDialog*>(view))
        return nullptr;
    QList<QWidget*> found;
    for (QWidget* each : view->findChildren<QWidget*>()) {
        if (isOfUse(*each) && mayUse(*each))
            found.append(each);
    }
    return any(found);
}

} // namespace caudalera
