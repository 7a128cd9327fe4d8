#pragma once

namespace draftwick {

/// The version record of the library. It stands here alone: the build, the packages and
/// Document::VerMajor and its siblings read it from this file.
inline constexpr int VersionMajor = 1;      ///< grows when a program must be changed
inline constexpr int VersionMinor = 0;      ///< grows with what is new
inline constexpr int VersionRevision = 29;  ///< grows with what is mended

}  // namespace draftwick
