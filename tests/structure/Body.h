#pragma once

#include "tests/support/FakePlatform.h"
#include "tests/support/Rtf.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace draftwick::test {

inline void ReplaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

/// A document whose file is looked at.
struct Built {
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();
    std::shared_ptr<Document> document = Document::Create(MakeFakePlatform(files));

    std::string File() {
        document->SetScaleMode(dwInches);
        document->Finish();
        const std::string bytes = files->Bytes(document->ActualFileName());
        EXPECT_EQ(CheckFile(bytes), std::vector<std::string>{});
        return bytes;
    }

    /// The words of the finished file from behind those of the first section to the end of the last. "~" is the look
    /// of a paragraph on which nothing was set, "\sectd#" the words of a further section.
    std::string Body() {
        std::string words = Words(File());
        words = words.substr(words.find("\\endnhere") + 9);
        words.pop_back();
        ReplaceAll(words, "\\plain\\fs24\\cf0\\sb0\\sa0\\sl240\\slmult1", "~");
        for (std::size_t at = 0; (at = words.find("\\sectd", at)) != words.npos; ++at) {
            words.replace(at + 6, words.find("\\endnhere", at) + 3 - at, "#");
        }
        return words;
    }
};

/// The body of a document with one section.
inline std::string BodyOf(const std::function<void(Section&)>& build) {
    Built built;
    build(*built.document->AddSection());
    return built.Body();
}

/// Properties by name, in the order in which they are set.
using Settings = std::vector<std::pair<std::string_view, Variant>>;

inline void Apply(const Settings& settings, Object& object) {
    for (const auto& [name, value] : settings) Set(object, name, value);
}

/// Adds a paragraph with one run of text.
inline void AddText(Container& container, std::string_view text) {
    container.AddParagraph()->AddTextItem(text);
}

}  // namespace draftwick::test
