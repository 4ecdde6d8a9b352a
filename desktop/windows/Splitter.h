#pragma once

#include <QSplitter>

namespace caudalera {

/// Parts of a window between which the user moves the border.
class Splitter : public QSplitter {
    Q_OBJECT

public:
    explicit Splitter(Qt::Orientation orientation);

    /// Takes a layout as the next part; all of them share in the room that is left over.
    void add(QLayout* content);

protected:
    QSplitterHandle* createHandle() override;
};

} // namespace caudalera
