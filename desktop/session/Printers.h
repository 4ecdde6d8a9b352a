#pragma once

#include <QObject>

namespace caudalera {

/// Whether there is a printer. To ask the system takes time, a print server more: it is asked once
/// behind the first window, and again when the program comes forward while there was none.
class Printers : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Why printing on the default printer is out of reach; empty if it is not.
    QString standardMissing() const;
    /// Why printing on a printer of choice is out of reach; empty if it is not.
    QString anyMissing() const;

    /// Asks the system now, and again whenever that may have changed.
    void watch();
    /// What the system has answered: whether there is any, and whether one is the default printer.
    void found(bool any, bool standard);

signals:
    void changed();

private:
    void look();

    // There is one until the system says otherwise.
    bool any_ = true;
    bool standard_ = true;
};

} // namespace caudalera
