#pragma once

#include <draftwick/model/DocumentSettings.h>
#include <draftwick/platform/Platform.h>
#include <draftwick/rtf/ColorTable.h>
#include <draftwick/rtf/LayoutState.h>
#include <draftwick/rtf/Output.h>

#include <cstdint>
#include <memory>

namespace draftwick {

class Document;
class Fonts;
class Lists;
class Object;
class ParagraphStyles;
class Properties;
class TextStyles;

/// What all objects of one document share. It lives as long as any of them; `document` ends with the document, and
/// with it the pointers to what the document owns.
class WritingContext {
public:
    explicit WritingContext(platform::Platform services) : platform(std::move(services)) {}

    platform::Platform platform;
    DocumentSettings settings;
    Output output;
    LayoutState layout;
    bool firstSection = true;

    ColorTable colors;
    std::int32_t lastOverrideNumber = 10000;  // counted up before use
    std::int32_t lastShapeIndex = 0;          // counted up before use

    // Null once the document is gone.
    draftwick::Document* document = nullptr;
    draftwick::Fonts* fonts = nullptr;
    draftwick::Lists* lists = nullptr;
    draftwick::ParagraphStyles* paragraphStyles = nullptr;
    draftwick::TextStyles* textStyles = nullptr;
    draftwick::Properties* properties = nullptr;
    /// The position of the default font in `fonts`, or NoFont.
    std::int32_t defaultFont = NoFont;
    static constexpr std::int32_t NoFont = -1;
    std::weak_ptr<Object> documentLink;
};

}  // namespace draftwick
