#include "desktop/style/LongWork.h"

#include "desktop/style/Style.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <memory>

namespace caudalera {

namespace {

/// In milliseconds.
constexpr qint64 untilBusy = 500;
constexpr qint64 untilBar = 2000;
constexpr qint64 betweenRepaints = 100;

/// The bar with its words, above the window that the user works in. It never takes the keyboard.
class ProgressPanel : public QFrame {
public:
    ProgressPanel() : QFrame(nullptr, Qt::ToolTip) {
        setObjectName(QStringLiteral("longWork"));
        setAttribute(Qt::WA_ShowWithoutActivating);
        setFrameShape(QFrame::StyledPanel);
        auto* column = new QVBoxLayout(this);
        const int margin = 2 * style::unit();
        column->setContentsMargins(margin, margin, margin, margin);
        column->setSpacing(style::unit());
        column->addWidget(new QLabel(QStringLiteral("Trabajando…")));
        column->addWidget(&bar_);
        bar_.setMinimumWidth(30 * style::unit());
        bar_.setTextVisible(false);
        adjustSize();
        if (const QWidget* over = QApplication::activeWindow())
            move(over->geometry().center() - rect().center());
    }

    void show(qsizetype done, qsizetype total) {
        constexpr int parts = 1000;
        // Without an end in sight it runs to and fro.
        bar_.setRange(0, total > 0 ? parts : 0);
        if (total > 0)
            bar_.setValue(static_cast<int>(static_cast<double>(done) / total * parts));
        setVisible(true);
    }

private:
    QProgressBar bar_;
};

struct Work {
    int depth = 0;
    int pauses = 0;
    bool pointerBusy = false;
    bool repainting = false;
    QElapsedTimer since;
    qint64 repainted = 0;
    std::unique_ptr<ProgressPanel> panel;

    void begin() {
        since.start();
        repainted = 0;
    }
    void makePointerBusy() {
        if (!pointerBusy)
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        pointerBusy = true;
    }
    void clear() {
        panel.reset();
        if (pointerBusy)
            QGuiApplication::restoreOverrideCursor();
        pointerBusy = false;
    }
    bool runs() const { return depth > 0 && pauses == 0 && !repainting; }
};

Work& work() {
    static Work instance;
    return instance;
}

} // namespace

LongWork::LongWork() {
    if (work().depth++ == 0)
        work().begin();
}

LongWork::~LongWork() {
    if (--work().depth == 0)
        work().clear();
}

void LongWork::step() {
    step(0, 0);
}

void LongWork::step(qsizetype done, qsizetype total) {
    Work& now = work();
    if (!now.runs())
        return;
    const qint64 elapsed = now.since.elapsed();
    if (elapsed < untilBusy || elapsed - now.repainted < betweenRepaints)
        return;
    now.repainted = elapsed;
    now.makePointerBusy();
    if (elapsed >= untilBar) {
        if (!now.panel)
            now.panel = std::make_unique<ProgressPanel>();
        now.panel->show(done, total);
    }
    const QScopedValueRollback<bool> repainting(now.repainting, true);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void LongWork::announce() {
    if (work().runs())
        work().makePointerBusy();
}

LongWork::Pause::Pause() {
    if (work().pauses++ == 0)
        work().clear();
}

LongWork::Pause::~Pause() {
    if (--work().pauses == 0)
        work().begin();
}

} // namespace caudalera
