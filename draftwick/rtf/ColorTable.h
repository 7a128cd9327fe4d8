#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace draftwick {

/// The colours of a document: a colour's index is its place in the order of first use. Index 0 is the
/// first colour used, or, when one is reserved for the reader's own colour, index 1. All 32 bits tell colours apart; red,
/// green and blue, from the lowest byte up, are written.
class ColorTable {
public:
    /// Leaves index 0 to the reader's own colour. Before the first colour is used.
    void ReserveFirst() noexcept { first_ = 1; }
    /// The index of the colour, which is registered if it is new.
    std::int32_t GetColorIndex(std::int32_t color);

    /// All colours, each once, in the order of first use.
    const std::vector<std::int32_t>& InOrder() const noexcept { return colors_; }

private:
    std::int32_t first_ = 0;
    std::vector<std::int32_t> colors_;
    std::unordered_map<std::int32_t, std::int32_t> indices_;
};

}  // namespace draftwick
