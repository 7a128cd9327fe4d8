#pragma once

#include "tests/support/FakePlatform.h"
#include "tests/support/Rtf.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace draftwick::test {

/// The file of a document that `build` fills, in one spelling (see Words). Its lengths are in twips.
inline std::string Written(const std::function<void(Document&)>& build) {
    auto files = std::make_shared<MemoryFiles>();
    auto document = Document::Create(MakeFakePlatform(files));
    document->SetScaleMode(dwTwips);
    document->SetFilename("test.rtf");
    build(*document);
    document->Finish();
    const std::string bytes = files->Bytes("test.rtf");
    EXPECT_EQ(CheckFile(bytes), std::vector<std::string>{});
    return Words(bytes);
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

}  // namespace draftwick::test
