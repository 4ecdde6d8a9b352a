#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace caudalera {

enum class RtfTokenKind { end, open, close, word, symbol, byte, text };

/// A piece of RTF source.
struct RtfToken {
    RtfTokenKind kind = RtfTokenKind::end;
    /// Control word without its backslash, or a stretch of plain bytes.
    std::string_view text;
    bool hasParameter = false;
    /// Cut to the range of its type.
    std::int32_t parameter = 0;
    /// Control symbol, or the byte that \'hh gives.
    unsigned char character = 0;
};

/// Cuts RTF source into its pieces. Line ends and NULs of the source are no pieces, \binN is passed
/// over together with its N bytes, and whatever the end of the source cuts off is dropped, since
/// nobody knows how it would have gone on.
class RtfTokens {
public:
    explicit RtfTokens(std::string_view source) : source_(source) {}

    RtfToken next();

private:
    RtfToken control();
    RtfToken word();
    RtfToken byte();
    RtfToken endOfSource();

    std::string_view source_;
    std::size_t at_ = 0;
};

} // namespace caudalera
