#pragma once

#include <cstdint>

namespace draftwick {

/// The programs that show or print a document.
enum dwViewer : std::int32_t {
    dwViewerAuto = 1,  ///< the first that works: Word 2000, Word 97, then the viewer program
    dwViewerWord97 = 2,
    dwViewerWord2000 = 3,
    dwViewerWordView97 = 4,  ///< Word Viewer 97; on POSIX the desktop's program for documents
};

}  // namespace draftwick
