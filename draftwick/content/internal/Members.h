#pragma once

#include <draftwick/content/Paragraph.h>
#include <draftwick/model/internal/ClassTable.h>

namespace draftwick {

/// The row of AddParagraph, in the table of a class that holds paragraphs.
template <class Holder>
MethodRow AddParagraphOf() {
    return MethodOf<&Holder::AddParagraph>(
        "AddParagraph", {{"Style", Variant{std::string{}}}, {"Text", Variant{std::string{}}}});
}

}  // namespace draftwick
