#pragma once

#include "tests/support/Errors.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Rtf.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace draftwick::test {

inline void AddText(Container& container, std::string_view text) {
    container.AddParagraph()->AddTextItem(text);
}

inline void ReplaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

/// What stands between the first `after` and the first `before` that follows it.
inline std::string Between(const std::string& text, std::string_view after, std::string_view before) {
    const std::size_t start = text.find(after);
    if (start == text.npos) return "no " + std::string{after};
    const std::size_t from = start + after.size();
    const std::size_t end = text.find(before, from);
    return end == text.npos ? "no " + std::string{before} : text.substr(from, end - from);
}

/// A document whose file stays in memory.
struct TestDocument {
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();
    std::shared_ptr<Document> document = Document::Create(MakeFakePlatform(files));

    explicit TestDocument(dwScaleMode scale = dwInches) { document->SetScaleMode(scale); }
    Document* operator->() const { return document.get(); }

    /// A paragraph in the section that is open, or in a first one.
    std::shared_ptr<Paragraph> AddParagraph() const {
        if (document->CurrentSection() == nullptr) document->AddSection();
        return document->CurrentSection()->AddParagraph();
    }

    /// Finishes the document and gives the bytes of its file, which must be one whole RTF document.
    std::string Finish(LineBreaks lineBreaks = LineBreaks::OnlyCrLf) const {
        document->Finish();
        std::string bytes = files->Bytes(document->ActualFileName());
        EXPECT_EQ(CheckFile(bytes, lineBreaks), "");
        return bytes;
    }
    /// The words of the finished file from behind those of the first section to the end of the last. "~" is the
    /// look of a paragraph on which nothing was set, "\sectd#" the words of a further section.
    std::string Body() const {
        std::string words = Words(Finish());
        words = words.substr(words.find("\\endnhere") + 9);
        words.pop_back();
        ReplaceAll(words, R"(\plain\fs24\cf0\sb0\sa0\sl240\slmult1)", "~");
        ReplaceAll(words, R"(\plain\fs24\cf1\widctlpar\sb0\sa0\sl240\slmult1)", "~");  // standard spelling
        for (std::size_t at = 0; (at = words.find("\\sectd", at)) != words.npos; ++at) {
            words.replace(at + 6, words.find("\\endnhere", at) + 3 - at, "#");
        }
        return words;
    }
};

}  // namespace draftwick::test
