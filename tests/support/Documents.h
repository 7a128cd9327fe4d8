#pragma once

#include "tests/support/FakePlatform.h"
#include "tests/support/Rtf.h"

#include <draftwick/base/WritingContext.h>
#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::test {

/// The words of the characters and of the layout of a paragraph in which nothing is set.
inline const std::string Plain = "\\plain\\fs24\\cf0";
inline const std::string Spacing = "\\sb0\\sa0\\sl240\\slmult1";

/// A document whose files stay in memory.
class TestDocument {
public:
    Document* operator->() const { return document_.get(); }
    Document& operator*() const { return *document_; }

    /// A paragraph in the section that is open, or in a first one.
    std::shared_ptr<Paragraph> AddParagraph() {
        if (document_->CurrentSection() == nullptr) document_->AddSection();
        return document_->CurrentSection()->AddParagraph();
    }

    /// Finishes the document and gives the bytes of its file, which must be one whole RTF document.
    std::string Finish() {
        document_->Finish();
        std::string bytes = files_->Bytes(document_->ActualFileName());
        EXPECT_EQ(CheckFile(bytes), std::vector<std::string>{});
        return bytes;
    }
    /// Finishes the document: the words from the tables of the header up to the settings of the document.
    std::string FinishHeader() {
        const std::string words = Words(Finish());
        return words.substr(0, words.find("\\deftab"));
    }
    /// Finishes the document: the words from the first paragraph on, without the last brace.
    std::string FinishBody() {
        const std::string words = Words(Finish());
        const std::size_t start = words.find("\\pard");
        return words.substr(start, words.size() - start - 1);
    }

private:
    std::shared_ptr<MemoryFiles> files_ = std::make_shared<MemoryFiles>();
    std::shared_ptr<Document> document_ = Document::Create(MakeFakePlatform(files_));
};

/// The words of the file of a document that `build` fills. Its lengths are in twips.
inline std::string Written(const std::function<void(Document&)>& build) {
    TestDocument document;
    document->SetScaleMode(dwTwips);
    build(*document);
    return Words(document.Finish());
}

/// What stands between the first `after` and the first `before` that follows it.
inline std::string Between(const std::string& text, std::string_view after, std::string_view before) {
    const std::size_t start = text.find(after);
    if (start == std::string::npos) return "no " + std::string{after};
    const std::size_t from = start + after.size();
    const std::size_t end = text.find(before, from);
    if (end == std::string::npos) return "no " + std::string{before};
    return text.substr(from, end - from);
}

/// The words that one writer writes, without a document.
inline std::string WordsOf(const std::function<void(WritingContext&)>& write) {
    const auto files = std::make_shared<MemoryFiles>();
    WritingContext context(MakeFakePlatform(files));
    std::error_code error;
    BlockWriter stream(files->Create("words", platform::Creation::Overwrite, error), "words");
    context.output.SetStream(&stream);
    write(context);
    context.output.FlushLine();
    stream.Close();
    return Words(files->Bytes("words"));
}

/// Checks the words of an enumeration: one for each value from 1 on, divided by blanks, "-" where there is none.
template <class Enumeration>
void ExpectWords(const std::string& words, const std::function<std::string(Enumeration)>& write) {
    std::istringstream list(words);
    std::string word;
    for (std::int32_t value = 1; list >> word; ++value) {
        EXPECT_EQ(write(static_cast<Enumeration>(value)), word == "-" ? "" : "\\" + word)
            << "value " << value;
    }
}

}  // namespace draftwick::test
