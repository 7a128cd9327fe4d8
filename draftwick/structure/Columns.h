#pragma once

#include <draftwick/model/Collection.h>

namespace draftwick {

/// One column of a section whose columns are listed. Refuses once the section is written ("Section"). Lengths are
/// 16 bits in twips.
class DRAFTWICK_API Column final : public detail::Node {
public:
    struct Values {
        std::uint8_t number = 1;
        rule::Length width{0};
        rule::Length spacing{0};
    };

    Column(const detail::Origin& origin, const Values& values) : Node(origin), values_(values) {}

    /// Default: what Add was told.
    double Width() const { return Read(values_.width); }
    void SetWidth(Measure length) { Change(values_.width, length); }

    /// Between this column and the next; not written for the last. Default: what Add was told.
    double Spacing() const { return Read(values_.spacing); }
    void SetSpacing(Measure length) { Change(values_.spacing, length); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void CheckNotEmitted() const override { CheckParent("Section"); }

private:
    friend struct detail::Access;

    Values values_;
};

/// The columns that the text of a section runs in (RTF \cols): a number of equal columns, or a list of columns that
/// each have a width. A new section has neither and writes nothing. Refuses once the section is written ("Section").
class DRAFTWICK_API Columns final : public detail::Part {
public:
    struct Values {
        std::int32_t automatic = 0;
        bool lineBetween = false;
        rule::Length spacing{360};
    };

    using Part::Part;

    /// Adds a column to the list, which then counts and not what Auto said. Error 6 for the 256th.
    std::shared_ptr<Column> Add(Measure width, Measure spacing);
    /// Empties the list and asks for `count` equal columns with `spacing` between them.
    void Auto(std::int32_t count, Measure spacing);
    /// Back to no columns, with a Spacing of 360 twips. LineBetween stays.
    void Clear();

    /// The number of columns in the list or, when that is empty, the number that Auto asked for.
    std::int32_t Count() const noexcept;
    /// The column of the list at a position from 1; nothing when the list is empty. Error 6 outside of a byte,
    /// error 9 when there is no such column.
    std::shared_ptr<Column> Items(std::int32_t index) const;

    /// Walks the list.
    detail::CollectionIterator<const Columns> begin() const { return {this, 1}; }
    detail::CollectionIterator<const Columns> end() const { return {this, Listed() + 1}; }

    /// A line is drawn between the columns. Default false.
    bool LineBetween() const { return values_.lineBetween; }
    void SetLineBetween(bool on) { Change(values_.lineBetween, on); }

    /// Between the columns that Auto made. Default 360 twips.
    double Spacing() const { return Read(values_.spacing); }
    /// Never succeeds and changes nothing: error 6, or error 28 where the length in twips is the same number (0, or
    /// twips as the unit). Use Auto.
    void SetSpacing(double length);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;
    friend class detail::CollectionIterator<const Columns>;

    /// How many columns the list has.
    std::int32_t Listed() const noexcept { return static_cast<std::int32_t>(list_.size()); }
    std::shared_ptr<Column> ItemAt(std::int32_t index) const {
        return list_[static_cast<std::size_t>(index - 1)];
    }

    Values values_;
    std::vector<std::shared_ptr<Column>> list_;
};

}  // namespace draftwick
