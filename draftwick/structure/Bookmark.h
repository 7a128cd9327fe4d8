#pragma once

#include <draftwick/model/Content.h>

#include <string>
#include <string_view>

namespace draftwick {

class Paragraph;

/// One end of a named part of the text (RTF \bkmkstart, \bkmkend). Two bookmarks of the same name, a start and an
/// end, make one; nothing checks that they do. Refuses changes once it is written, which is when its paragraph gets
/// its next child or is closed ("Bookmark").
class DRAFTWICK_API Bookmark final : public detail::HeldBy<Paragraph> {
public:
    struct Values {
        std::string name;
        bool isStart = true;
    };

    Bookmark(const detail::Origin& origin, std::string_view name, bool isStart);

    /// In the classic spelling it is written as it is: braces and backslashes break the file. Default: as added.
    const std::string& Name() const { return values_.name; }
    void SetName(std::string_view name) { Change(values_.name, name); }

    /// Whether it is the start, not the end. Default: as added.
    bool IsStart() const { return values_.isStart; }
    void SetIsStart(bool on) { Change(values_.isStart, on); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void WriteStart() override;

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
