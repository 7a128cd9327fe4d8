#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/model/Content.h>
#include <draftwick/model/DocumentSettings.h>
#include <draftwick/platform/Platform.h>
#include <draftwick/rtf/RtfWriter.h>

#include <cstdint>
#include <memory>

namespace draftwick {

class Document;
class Fonts;
class Lists;
class ParagraphStyles;
class Properties;
class TextStyles;

namespace detail {

/// What a document owns beside its content: its parts refer to it by name, and the header of the file lists it.
struct Collections {
    std::shared_ptr<draftwick::Fonts> fonts;
    std::shared_ptr<draftwick::Lists> lists;
    std::shared_ptr<draftwick::ParagraphStyles> paragraphStyles;
    std::shared_ptr<draftwick::TextStyles> textStyles;
    std::shared_ptr<draftwick::Properties> properties;  // null until they are asked for
};

/// What all objects of one document share. It lives as long as any of them; `document` ends with the document, and
/// with it the collections.
class Session {
public:
    explicit Session(platform::Platform services) : platform(std::move(services)) {}

    platform::Platform platform;
    DocumentSettings settings;
    RtfWriter writer;
    std::int32_t lastShapeIndex = 0;  // counted up before use
    bool usable = false;              // from the creation of the document until it is gone or given up

    // Null once the document is gone.
    draftwick::Document* document = nullptr;
    draftwick::Collections* collections = nullptr;
    std::weak_ptr<Object> documentLink;
};

}  // namespace detail

inline detail::Session& Object::Session() const {
    if (session_ == nullptr || !session_->usable) RefuseWithoutSession();
    return *session_;
}

inline RtfWriter& detail::Content::Writer() const { return Session().writer; }

}  // namespace draftwick
