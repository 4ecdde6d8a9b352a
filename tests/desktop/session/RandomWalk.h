#pragma once

#include "app/registry.h"
#include "desktop/Views.h"
#include "desktop/session/Session.h"

#include <QPointer>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <random>
#include <vector>

class QDialog;
class QMessageBox;

namespace caudalera {

/// A person of no sense at the desktop: opens windows, clicks, types, turns the wheel, pastes and
/// closes at random, several acts at once too, and does not stop where a window has just gone.
/// The same seed takes the same way. Never prints and starts nothing outside.
class RandomWalk : public QObject {
public:
    explicit RandomWalk(unsigned seed);
    ~RandomWalk() override;

    void step();
    /// What of the screen does not agree with the model; empty if all is well.
    QString contradiction();
    /// The last steps, for whoever looks for a fault.
    QString lastSteps() const { return steps_.join(u'\n'); }
    /// How many windows were opened, boxes answered and programs ended on the way.
    int opened() const { return opened_; }
    int boxes() const { return boxes_; }
    int ended() const { return ended_; }

protected:
    /// The window system lets nothing through to what stands behind a dialog; posted events
    /// would get there.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void start();
    void note(const QString& what);
    void watch();
    void answer(QDialog& dialog);
    void answerBox(QMessageBox& box);
    /// The session's events, then often what was to be deleted.
    void settle();

    int below(int bound);
    bool chance(int percent) { return below(100) < percent; }
    template <typename Item>
    Item* any(const QList<Item*>& items) {
        return items.isEmpty() ? nullptr : items[below(static_cast<int>(items.size()))];
    }
    /// Nothing that prints, and seldom what ends the program.
    bool mayUse(const QObject& object);
    QWidget* anyView();
    QWidget* anyWidget();
    QPoint anyPoint(const QWidget& widget) {
        return {below(widget.width()), below(widget.height())};
    }

    void open();
    void click();
    void queueTwice();
    void queueSeveral();
    void press();
    void typeValue();
    void turnWheel();
    void askForMenu();
    void chooseFromMenu();
    void moveFocus();
    void paste();
    void resize();
    void close();
    void trigger();
    void takeBack();

    QTemporaryDir folder_;
    std::mt19937 random_;
    QTimer watchdog_;
    std::unique_ptr<Session> session_;
    /// All that were ever made, as long as they live: retired ones are still walked upon.
    std::vector<QPointer<QWidget>> views_;
    QStringList steps_;
    QString fault_;
    int opened_ = 0;
    int boxes_ = 0;
    int ticks_ = 0;
    int ended_ = 0;
};

} // namespace caudalera
