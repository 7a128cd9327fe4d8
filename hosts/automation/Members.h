#pragma once

#include <draftwick/core/Classes.h>

#include <span>
#include <string_view>
#include <vector>

namespace draftwick::automation {

/// A member of a class as automation sees it.
struct Member {
    std::int32_t number = 0;
    std::string_view name{};
    std::span<const Argument> arguments{};
    const Type* type = nullptr;               ///< what it gives; empty: nothing
    bool optional = false;                    ///< it can give nothing where an object is expected
    const ClassProperty* property = nullptr;  ///< empty: it is a method
    bool isFinishTo = false;                  ///< what only automation has, because no Variant holds a stream
};

/// The members of a class, found by their numbers or names. std::logic_error when two have one number.
class Members {
public:
    explicit Members(const Class& of);

    /// Those of one class of Classes().
    static const Members& Of(const Class& one);

    const Class& Description() const { return description_; }
    std::span<const Member> All() const { return all_; }
    /// nullptr when there is none. Capitals of names do not count.
    const Member* Find(std::int32_t number) const;
    const Member* Find(std::wstring_view name) const;

private:
    const Class& description_;
    std::vector<Member> all_;  // in the order of their numbers
};

}  // namespace draftwick::automation
