#include "desktop/grid/GridColumns.h"

#include "desktop/style/Style.h"

#include <QScopedValueRollback>
#include <algorithm>

namespace caudalera {

namespace {

/// The model's widths are in twips: 1440 are an inch of 96 px, and a unit is 8 px.
constexpr double twipsPerUnit = 1440.0 / 96 * 8;
constexpr int defaultTwips = 1000;

std::size_t at(int col) {
    return static_cast<std::size_t>(col);
}

/// What a text needs with the room at its sides.
int withSides(int width) {
    return width + 2 * style::unit();
}

} // namespace

int GridColumns::titleWidth(int col) const {
    const QString title = model_.headerData(col, Qt::Horizontal).toString();
    int width = 0;
    for (const QString& line : title.split(u'\n'))
        width = std::max(width, view_.fontMetrics().horizontalAdvance(line));
    // The numbers of the rows to come have their room from the beginning, and the widest mark of
    // the row where one types.
    if (col < grid_.FixedCols() && grid_.editor) {
        for (const char* label : {"[->]", "9999"})
            width = std::max(width, view_.fontMetrics().horizontalAdvance(QLatin1String(label)));
    }
    return withSides(width);
}

int GridColumns::preferredWidth(int col) const {
    const int twips =
        at(col) < grid_.columnWidths.size() ? grid_.columnWidths[at(col)] : defaultTwips;
    return std::max(titleWidth(col), static_cast<int>(twips / twipsPerUnit * style::unit()));
}

int GridColumns::minimum(int col) const {
    const int title = titleWidth(col);
    return at(col) < seen_.size() ? std::max(title, withSides(seen_[at(col)])) : title;
}

int GridColumns::preferredTotal() const {
    int width = 0;
    for (int col = 0; col < count(); ++col)
        width += preferredWidth(col);
    return width;
}

int GridColumns::titlesTotal() const {
    int width = 0;
    for (int col = 0; col < count(); ++col)
        width += titleWidth(col);
    return width;
}

void GridColumns::setWidth(int col, int width) {
    const QScopedValueRollback<bool> fitting(fitting_, true);
    if (view_.columnWidth(col) != width)
        view_.setColumnWidth(col, width);
}

void GridColumns::fit() {
    if (dragged_.size() != at(count())) {
        dragged_.assign(at(count()), false);
        seen_.assign(at(count()), 0);
    }
    room_ = view_.viewport()->width();
    int left = room_;
    double wanted = 0;
    std::vector<int> sharing;
    for (int col = 0; col < count(); ++col) {
        if (dragged_[at(col)]) {
            setWidth(col, std::max(view_.columnWidth(col), minimum(col)));
            left -= view_.columnWidth(col);
        } else {
            sharing.push_back(col);
            wanted += preferredWidth(col);
        }
    }
    const auto share = [&](int col) {
        return static_cast<int>(preferredWidth(col) * std::max(left, 0) / std::max(wanted, 1.0));
    };
    // Those whose share is too small for their texts take from the others', one after the other.
    const auto cramped = [&](int col) { return share(col) < minimum(col); };
    for (auto found = std::find_if(sharing.begin(), sharing.end(), cramped); found != sharing.end();
         found = std::find_if(sharing.begin(), sharing.end(), cramped)) {
        setWidth(*found, minimum(*found));
        left -= minimum(*found);
        wanted -= preferredWidth(*found);
        sharing.erase(found);
    }
    // The last one takes what rounding leaves.
    int rest = left;
    for (const int col : sharing) {
        const int width = col == sharing.back() ? rest : share(col);
        setWidth(col, width);
        rest -= width;
    }
}

void GridColumns::fitToRoom() {
    if (view_.viewport()->width() != room_)
        fit();
}

void GridColumns::see() {
    std::vector<int> seen = seen_;
    seen.resize(at(count()));
    const int top = view_.rowAt(0);
    const int below = view_.rowAt(view_.viewport()->height() - 1);
    const int end = below < 0 ? model_.rowCount() : below + 1;
    bool values = false;
    for (int row = std::max(top, 0); row < end; ++row) {
        for (int col = 0; col < count(); ++col) {
            const QString text = model_.index(row, col).data().toString();
            values = values || (col >= grid_.FixedCols() && !text.isEmpty());
            seen[at(col)] = std::max(seen[at(col)], view_.fontMetrics().horizontalAdvance(text));
        }
    }
    if (!values)
        seen.assign(at(count()), 0);
    if (seen == seen_)
        return;
    seen_ = std::move(seen);
    bool fits = values;
    for (int col = 0; col < count(); ++col)
        fits = fits && view_.columnWidth(col) >= minimum(col);
    if (!fits)
        fit();
}

void GridColumns::resized(int col, int width) {
    if (fitting_ || at(col) >= dragged_.size())
        return;
    dragged_[at(col)] = true;
    setWidth(col, std::max(width, minimum(col)));
}

} // namespace caudalera
