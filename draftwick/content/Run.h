#pragma once

#include <draftwick/format/Background.h>
#include <draftwick/format/Border.h>
#include <draftwick/format/FontFormat.h>
#include <draftwick/model/Content.h>

#include <string>
#include <string_view>

namespace draftwick {

namespace detail {
struct RunSettings;
}  // namespace detail

class Paragraph;

/// What a run of text and a field have in common: a text style and a look of their own. Everything can be changed
/// until the run is written, which is when its paragraph gets the next child or is closed.
class DRAFTWICK_API Run : public detail::HeldBy<Paragraph> {
public:
    using HeldBy::HeldBy;

    /// The name of a text style; empty (default) for none. It is looked up when the run is written: a name that does
    /// not exist then makes the call that would write it fail (dwErrItemNotFound), and the name can still be mended.
    const std::string& StyleName() const { return styleName_; }
    void SetStyleName(std::string_view name) { Change(styleName_, name); }

    /// The look of the text. It starts from the paragraph's FontFormat as that is when this one is first read, and
    /// what differs from the text style, else from the paragraph's FontFormat, else from the default is written.
    /// Before it is read nothing differs: with a text style, reading alone can change what is written.
    std::shared_ptr<draftwick::FontFormat> FontFormat();
    /// What stands behind the text.
    std::shared_ptr<draftwick::Background> Background();
    /// The line around the text.
    std::shared_ptr<TextBorder> Border();

protected:
    /// What is written of the run before its text. dwErrItemNotFound when there is no such style.
    detail::RunSettings Settings() const;

private:
    std::string styleName_;
    detail::Lazy<draftwick::FontFormat> fontFormat_;
    detail::Lazy<draftwick::Background> background_;
    detail::Lazy<TextBorder> border_;
};

}  // namespace draftwick
