#pragma once

#include <draftwick/model/Collection.h>

namespace draftwick {

/// How text stands at a tab stop (RTF \tqr and its siblings).
enum dwTabAlign : std::int32_t {
    dwTabLeft = 1,
    dwTabRight = 2,
    dwTabCenter = 3,
    dwTabDecimal = 4,
    dwTabBar = 5,  ///< no stop: a vertical line
};

/// What fills the space before a tab stop (RTF \tldot and its siblings).
enum dwTabLeader : std::int32_t {
    dwTabLeaderNone = 1,
    dwTabLeaderDots = 2,
    dwTabLeaderHyphens = 3,
    dwTabLeaderUnderline = 4,
};

/// One tab stop (RTF \tx, or \tb for a bar). It cannot be changed.
class DRAFTWICK_API TabStop final : public detail::Node {
public:
    struct Values {
        rule::Length position{0};
        dwTabAlign align = dwTabLeft;
        dwTabLeader leader = dwTabLeaderNone;
    };

    TabStop(const detail::Origin& origin, const Values& values) : Node(origin), values_(values) {}

    /// From the left margin, in the document's unit and in single precision.
    double Position() const { return static_cast<float>(Read(values_.position)); }
    dwTabAlign Align() const { return values_.align; }
    dwTabLeader Leader() const { return values_.leader; }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    Values values_;
};

/// The tab stops of a paragraph or paragraph style, in the order in which they were added: they are neither sorted
/// nor compared.
class DRAFTWICK_API TabStops final : public detail::Part {
public:
    using Part::Part;

    /// Adds a tab stop. The position is a length of 16 bits in twips, taken in single precision. Refuses when the
    /// owner refuses; dwErrPropertyOutOfRange with "TabStops.Add.Align" or "TabStops.Add.Leader". The leader has
    /// no default: it must be given, as dwTabLeaderNone for none.
    std::shared_ptr<TabStop> Add(Measure position, dwTabAlign align = dwTabLeft,
                                 dwTabLeader leader = static_cast<dwTabLeader>(0));
    /// Removes all tab stops. Refuses as Add does.
    void Clear();

    /// How many tab stops there are.
    std::int32_t Count() const noexcept { return static_cast<std::int32_t>(stops_.size()); }
    /// The tab stop at a position from 1. Error 6 outside of a byte, error 9 when there is none.
    std::shared_ptr<TabStop> Items(std::int32_t index) const;

    detail::CollectionIterator<const TabStops> begin() const { return {this, 1}; }
    detail::CollectionIterator<const TabStops> end() const { return {this, Count() + 1}; }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend class detail::CollectionIterator<const TabStops>;
    friend class Paragraph;
    friend class ParagraphStyle;

    std::shared_ptr<TabStop> ItemAt(std::int32_t index) const {
        return stops_[static_cast<std::size_t>(index - 1)];
    }
    /// Replaces all tab stops.
    void CopyFrom(const TabStops& other);
    std::shared_ptr<TabStop> MakeStop(const TabStop::Values& values);

    std::vector<std::shared_ptr<TabStop>> stops_;
};

}  // namespace draftwick
