#include "shell/worksheet/DataState.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace caudalera {

namespace {

// FNV-1a in 64 bits (Fowler, Noll, Vo).
constexpr std::uint64_t offsetBasis = 14695981039346656037U;
constexpr std::uint64_t prime = 1099511628211U;
/// In no cell: parts the texts of one from those of the next.
constexpr unsigned char between = 0xFF;

std::uint64_t hashed(std::uint64_t hash, std::string_view text) {
    for (const char byte : text)
        hash = (hash ^ static_cast<unsigned char>(byte)) * prime;
    return (hash ^ between) * prime;
}

} // namespace

long DataState::count() const {
    return std::max(data_.Rows() - data_.FixedRows() - 1, 0L);
}

void DataState::done(std::string what) {
    lastDone_ = std::move(what);
    handled_ = now();
}

void DataState::calculated() {
    calculated_ = now();
}

const std::string& DataState::lastDone() const {
    static const std::string nothing;
    return handled_ && isNow(*handled_) ? lastDone_ : nothing;
}

bool DataState::isNow(const Print& print) const {
    return print.rows == count() && print.hash == hash();
}

std::uint64_t DataState::hash() const {
    if (hashed_ == data_.revision())
        return hash_;
    hash_ = offsetBasis;
    const long end = data_.FixedRows() + count();
    for (long row = data_.FixedRows(); row < end; ++row) {
        for (long col = data_.FixedCols(); col < data_.Cols(); ++col)
            hash_ = hashed(hash_, data_.TextMatrix(row, col));
    }
    hashed_ = data_.revision();
    return hash_;
}

} // namespace caudalera
