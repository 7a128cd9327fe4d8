#pragma once

#include "tests/support/Errors.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Rtf.h"

#include <draftwick/draftwick.h>
#include <draftwick/rtf/RtfWriter.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace draftwick::test {

/// Properties by name, in the order in which they are set.
using Settings = std::vector<std::pair<std::string_view, Variant>>;

/// The same of a literal: "Wrap=5 LockAnchor=true Left=-10.0". Numbers with a point are lengths or reals.
inline Settings SettingsOf(std::string_view text) {
    Settings settings;
    while (!text.empty()) {
        const std::size_t middle = text.find('='), end = std::min(text.find(' '), text.size());
        const std::string value{text.substr(middle + 1, end - middle - 1)};
        const std::string_view name = text.substr(0, middle);
        if (value == "true" || value == "false") {
            settings.emplace_back(name, value == "true");
        } else if (value.find('.') != value.npos) {
            settings.emplace_back(name, std::stod(value));
        } else {
            settings.emplace_back(name, std::stoi(value));
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return settings;
}

inline void Apply(const Settings& settings, Object& object) {
    for (const auto& [name, value] : settings) Set(object, name, value);
}

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

/// The words of the layout of a paragraph in which nothing is set.
inline const std::string Spacing = "\\sb0\\sa0\\sl240\\slmult1";

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
    /// The words of the finished file from its beginning to the settings of the document.
    std::string Header() const {
        const std::string words = Words(Finish());
        return words.substr(0, words.find("\\deftab"));
    }
    /// The words of the finished file from behind those of the first section to the end of the last. "~" is the
    /// look of a paragraph on which nothing was set, "\sectd#" the words of a further section.
    std::string Body() const {
        std::string words = Words(Finish());
        words = words.substr(words.find("\\endnhere") + 9);
        words.pop_back();
        ReplaceAll(words, "\\plain\\fs24\\cf0" + Spacing, "~");
        for (std::size_t at = 0; (at = words.find("\\sectd", at)) != words.npos; ++at) {
            words.replace(at + 6, words.find("\\endnhere", at) + 3 - at, "#");
        }
        return words;
    }
};

/// The words of the file of a document that `build` fills. Its lengths are in twips.
inline std::string Written(const std::function<void(Document&)>& build) {
    const TestDocument document(dwTwips);
    build(*document.document);
    return Words(document.Finish());
}

/// The body of a document with one section. Its lengths are in inches.
inline std::string BodyOf(const std::function<void(Section&)>& build) {
    const TestDocument document;
    build(*document->AddSection());
    return document.Body();
}

/// The words that one writer writes, without a document.
inline std::string WordsOf(const std::function<void(RtfWriter&)>& write) {
    const auto files = std::make_shared<MemoryFiles>();
    RtfWriter writer;
    std::error_code error;
    BlockWriter stream(files->Create("words", platform::Creation::Overwrite, error), "words");
    writer.output.SetStream(&stream);
    write(writer);
    writer.output.FlushLine();
    stream.Close();
    return Words(files->Bytes("words"));
}

/// Checks the words of an enumeration: one for each value from 1 on, divided by blanks, "-" where there is none.
template <class Enumeration = std::int32_t, class Write>
void ExpectWords(const std::string& words, const Write& write) {
    std::istringstream list(words);
    std::string word;
    for (std::int32_t value = 1; list >> word; ++value) {
        EXPECT_EQ(write(static_cast<Enumeration>(value)), word == "-" ? "" : "\\" + word)
            << "value " << value;
    }
}

}  // namespace draftwick::test
