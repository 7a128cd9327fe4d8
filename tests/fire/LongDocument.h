#pragma once

#include "tests/support/TempFolder.h"

#include <draftwick/draftwick.h>

#include <memory>
#include <string>

namespace draftwick::test {

/// A document of numbered paragraphs of about 200 bytes, with a row after every tenth and a picture after every
/// hundredth: a bitmap, which becomes a metafile on the way. `mark` stands in every paragraph.
inline std::shared_ptr<Document> LongDocument(const std::string& name, const std::string& temp,
                                              dwSpelling spelling, const std::string& mark, long paragraphs,
                                              bool pictures = true) {
    const auto document = Document::Create();
    document->SetFilename(name);
    document->SetTempPath(temp);
    document->SetSpelling(spelling);
    const std::string picture = DRAFTWICK_PICTURES_FOLDER "/sample/24.bmp";
    const auto section = document->AddSection();
    for (long number = 0; number < paragraphs; ++number) {
        const std::string text = mark + " " + std::to_string(number) + std::string(100, 'x');
        const auto paragraph = section->AddParagraph();
        paragraph->AddTextItem(text);
        if (pictures && number % 100 == 99) {
            const auto shape = paragraph->AddShape(dwSKPictureFrame);
            shape->SetInLine(true);
            shape->Fill()->SetPicture(picture);
        }
        if (number % 10 == 9) section->AddTable()->AddCell()->AddParagraph()->AddTextItem(text);
    }
    return document;
}

}  // namespace draftwick::test
