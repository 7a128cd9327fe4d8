#include <draftwick/model/Collection.h>
#include <draftwick/model/internal/Advice.h>
#include <draftwick/text/CaseFolding.h>
#include <draftwick/text/Utf8.h>

#include <unordered_map>

namespace draftwick::detail {

struct NamedItems::Positions {
    std::unordered_map<std::string, std::int32_t> byKey;
};

NamedItems::NamedItems(const Origin& origin) : Node(origin), positions_(std::make_unique<Positions>()) {}

NamedItems::~NamedItems() = default;

std::int32_t NamedItems::IndexOf(std::string_view name) const {
    const auto found = positions_->byKey.find(FoldCase(name));
    if (found == positions_->byKey.end()) {
        RaiseError(dwErrItemNotFound, {ToValidUtf8(name)}, AdviceOnMissing(*this, ToValidUtf8(name)));
    }
    return found->second;
}

const std::shared_ptr<Object>& NamedItems::ItemAtPosition(std::int32_t position) const {
    if (position < 1 || position > Count()) {
        RaiseError(dwErrItemNotFound, {std::to_string(position)}, AdviceOnPosition(*this, position, Count()));
    }
    return ItemAtIndex(position - 1);
}

bool NamedItems::Contains(std::string_view name) const { return positions_->byKey.contains(FoldCase(name)); }

const std::shared_ptr<Object>& NamedItems::AddItem(std::string_view name, std::string_view collection,
                                                   Maker make) {
    if (name.empty()) {
        RaiseError(dwErrZeroLengthName, {std::string{collection}},
                   std::string{Description().name} + ".Add: give a name of at least one letter");
    }
    std::string spelling = ToValidUtf8(name);
    std::string key = FoldCase(spelling);
    if (positions_->byKey.contains(key)) {
        RaiseRuntimeError(dwRunDuplicateKey, spelling,
                          std::string{Description().name} + " has '" + spelling
                              + "' already, capitals or not; use Items to get it, or another name");
    }
    items_.push_back(make(OriginOfSibling(), std::move(spelling), Count()));
    try {
        positions_->byKey.emplace(std::move(key), Count() - 1);
    } catch (...) {
        items_.pop_back();
        throw;
    }
    return items_.back();
}

void NamedItems::RemoveItem(std::int32_t position) {
    const std::int32_t removed = position - 1;
    std::erase_if(positions_->byKey, [&](const auto& entry) { return entry.second == removed; });
    for (auto& [key, index] : positions_->byKey) {
        if (index > removed) --index;
    }
    items_.erase(items_.begin() + removed);
}

}  // namespace draftwick::detail
