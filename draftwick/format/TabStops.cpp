#include <draftwick/format/TabStops.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/Advice.h>
#include <draftwick/model/internal/ClassTable.h>

#include <cmath>
#include <limits>

namespace draftwick {

std::shared_ptr<TabStop> TabStops::Add(Measure position, dwTabAlign align, dwTabLeader leader) {
    const dwScaleMode scale = OpenForChange();
    CheckRange(align, dwTabLeft, dwTabBar, "TabStops.Add.Align");
    if (leader == 0) {
        RaiseError(
            dwErrPropertyOutOfRange, {"TabStops.Add.Leader"},
            "TabStops.Add: the leader has no default; give dwTabLeaderNone for a tab stop without one");
    }
    CheckRange(leader, dwTabLeaderNone, dwTabLeaderUnderline, "TabStops.Add.Leader");
    TabStop::Values values{.align = align, .leader = leader};
    // What is too large for single precision has no defined value there; it fits no length either.
    const double number = position.Value();
    const bool fits = std::abs(number) <= std::numeric_limits<float>::max();
    values.position.Set({fits ? static_cast<float>(number) : number, position.TwipsPerUnit()}, scale);
    stops_.push_back(MakeStop(values));
    return stops_.back();
}

void TabStops::Clear() {
    OpenForChange();
    stops_.clear();
}

std::shared_ptr<TabStop> TabStops::Items(std::int32_t index) const {
    CheckByte(index);
    if (index < 1 || index > Count()) {
        RaiseRuntimeError(dwRunSubscriptOutOfRange, std::to_string(index),
                          AdviceOnPosition(*this, index, Count()));
    }
    return ItemAt(index);
}

void TabStops::CopyFrom(const TabStops& other) {
    std::vector<std::shared_ptr<TabStop>> copies;
    copies.reserve(other.stops_.size());
    for (const auto& stop : other.stops_) copies.push_back(MakeStop(Stored(*stop)));
    stops_ = std::move(copies);
}

std::shared_ptr<TabStop> TabStops::MakeStop(const TabStop::Values& values) {
    return std::make_shared<TabStop>(OriginOfChild(), values);
}

const Class& TabStop::Describe() {
    static const Class description{"TabStop",
                                   "{8D729EBA-6B36-4A58-8387-45D57E0D6EE3}",
                                   "{F461101D-1F11-471B-AC5E-0D00A20C7372}",
                                   {
                                       PropertyOf<&TabStop::Position>("Position").As(Kind::Length),
                                       PropertyOf<&TabStop::Align>("Align"),
                                       PropertyOf<&TabStop::Leader>("Leader"),
                                   },
                                   {}};
    return description;
}

const Class& TabStops::Describe() {
    using T = TabStops;
    static const Class description = CollectionOf(
        {"TabStops",
         "{9C7E2664-098A-4DC3-A92E-F786A3185E6A}",
         "{FF30523A-BFF2-478E-8081-B58B4C007168}",
         {PropertyOf<&T::Count>("Count")},
         {
             MethodOf<&T::Items>("Items", {{"Index"}}),
             MethodOf<&T::Add>("Add", {{"Position"}, {"Align", Variant{dwTabLeft}}, {"Leader", Variant{0}}}),
             MethodOf<&T::Clear>("Clear"),
         }});
    return description;
}

}  // namespace draftwick
