#include "Members.h"

#include "Numbers.h"

#include <draftwick/core/Document.h>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>

namespace draftwick::automation {

namespace {

constexpr std::string_view FinishTo = "FinishTo";
const Type anything{.name = "Any", .kind = Kind::Any};
const Argument StreamArgument[]{{.name = "Stream", .type = &anything}};

}  // namespace

Members::Members(const Class& of) : description_(of) {
    const auto numberOf = [&](std::string_view name) {
        return name == of.defaultMember ? DefaultNumber : NumberOf(name);
    };
    const auto add = [&](std::span<const ClassProperty> properties) {
        for (const ClassProperty& row : properties)
            all_.push_back({numberOf(row.name), row.name, row.arguments, row.type, row.optional, &row});
    };
    add(of.properties);
    add(CommonProperties());
    for (const ClassMethod& row : of.methods)
        all_.push_back({numberOf(row.name), row.name, row.arguments, row.result, row.optional});
    if (&of == &Document::Describe())
        all_.push_back({NumberOf(FinishTo), FinishTo, StreamArgument, nullptr, false, nullptr, true});
    std::ranges::sort(all_, {}, &Member::number);
    const auto twice = std::ranges::adjacent_find(all_, {}, &Member::number);
    if (twice != all_.end()) throw std::logic_error("one number for two: " + std::string{twice->name});
}

const Members& Members::Of(const Class& one) {
    static const auto known = [] {
        std::map<const Class*, Members> all;
        for (const Class* each : Classes()) all.emplace(each, *each);
        return all;
    }();
    return known.at(&one);
}

const Member* Members::Find(std::int32_t number) const {
    const auto found = std::ranges::lower_bound(all_, number, {}, &Member::number);
    return found == all_.end() || found->number != number ? nullptr : &*found;
}

const Member* Members::Find(std::wstring_view name) const {
    for (const Member* found : {Find(NumberOf(name)), Find(DefaultNumber)}) {
        if (found != nullptr && IsNamed(found->name, name)) return found;
    }
    return nullptr;
}

}  // namespace draftwick::automation
