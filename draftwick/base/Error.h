#pragma once

#include <draftwick/base/Variant.h>
#include <draftwick/platform/Export.h>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace draftwick {

/// The numbers of the library's own refusals.
enum dwErrCode : std::int32_t {
    dwErrPropertyOutOfRange = -2147220890,         ///< a value outside a property's range
    dwErrZeroLengthName = -2147220889,             ///< an empty name for an item of a collection
    dwErrCantDeleteBuiltInProperty = -2147220888,  ///< built-in document properties stay
    dwErrShapesCantContainShapes = -2147220887,    ///< a shape in the text box of a shape
    dwErrUnsupportedFileType = -2147220886,        ///< a picture file with an unknown extension
    dwErrNoViewer = -2147220885,                   ///< no program to show the document with
    dwErrPictureFileNotFound = -2147220884,        ///< no such picture file
    dwErrDuplicateName = -2147220883,              ///< a document property of that name exists
    dwErrTargetEmitted = -2147220882,              ///< the object is written and can no longer change
    dwErrInvalidHeaderKind = -2147220881,          ///< a header kind that the page settings rule out
    dwErrHeaderExists = -2147220880,               ///< the section has a header of that kind
    dwErrItemNotFound = -2147220879,               ///< a collection has no such item
};

/// The numbers of run-time refusals, as scripts know them.
enum dwRuntimeError : std::int32_t {
    dwRunInvalidCall = 5,          ///< an argument that makes no sense
    dwRunOverflow = 6,             ///< a number that does not fit the type it is stored in
    dwRunSubscriptOutOfRange = 9,  ///< a position that does not exist
    dwRunDivisionByZero = 11,
    dwRunTypeMismatch = 13,  ///< a value of the wrong kind
    dwRunOutOfStackSpace = 28,
    dwRunObjectGone = 91,  ///< the document that the object belonged to was released
    dwRunCannotCreateObject = 429,
    dwRunDuplicateKey = 457,  ///< a collection has an item of that name
    dwRunInvalidPicture = 481,
};

/// Every refusal of the library. What was refused changed nothing. Failures of the file system are not among
/// them: these are FileError.
class DRAFTWICK_API Error : public std::runtime_error {
public:
    /// The last two are texts that live as long as the program: copying an exception must not fail.
    Error(std::int32_t number, const std::string& description, std::string_view source,
          std::string_view helpFile, std::string advice = {});

    /// A dwErrCode or a dwRuntimeError.
    std::int32_t Number() const noexcept { return number_; }
    /// "Draftwick" for a dwErrCode, empty for a dwRuntimeError.
    std::string Source() const { return std::string{source_}; }
    /// "Draftwick.chm" for a dwErrCode, empty for a dwRuntimeError.
    std::string HelpFile() const { return std::string{helpFile_}; }
    /// What was refused, by the names of the object model, with the limits in the document's unit, and what to do about
    /// it: "Cell.Width 200 inches: give -22.75 to 22.75 (ScaleMode is dwInches)". Never empty.
    const std::string& Advice() const noexcept { return *advice_; }

    // The rest is for the library.

    /// What Advice gives from now on.
    void SetAdvice(std::string advice);

private:
    std::int32_t number_;
    std::string_view source_;
    std::string_view helpFile_;
    std::shared_ptr<const std::string> advice_;  // shared: copying must not fail
};

/// A file that cannot be created, written, read or deleted: what() has the name and what the system says.
class DRAFTWICK_API FileError : public std::system_error {
public:
    FileError(std::error_code error, const std::string& what, const std::string& filename)
        : std::system_error(error, what), filename_(std::make_shared<const std::string>(filename)) {}

    /// The name, in the system's bytes. Empty for a stream.
    const std::string& Filename() const noexcept { return *filename_; }

private:
    std::shared_ptr<const std::string> filename_;  // shared: copying must not fail
};

/// "X" and the message number for the library's own range of numbers (X109), any other number in decimal.
DRAFTWICK_API std::string ErrorNumberText(std::int32_t number);

/// Whether every refusal is also recorded in the system's event log. Off at first; one setting per process.
DRAFTWICK_API void SetErrorLogging(bool on) noexcept;

/// @cond LIBRARY
namespace detail {

/// Raises Error with the message of `number`, in which %1, %2, ... stand for the parameters that are texts.
[[noreturn]] DRAFTWICK_API void RaiseError(std::int32_t number,
                                           std::initializer_list<Variant> parameters = {},
                                           std::string advice = {});

/// Raises Error for a run-time refusal: the number's own text, then what was wrong.
[[noreturn]] DRAFTWICK_API void RaiseRuntimeError(dwRuntimeError number, const std::string& detail = {},
                                                  std::string advice = {});

/// Writes a description of the error to the event log when error logging is on.
DRAFTWICK_API void LogError(const Error& error);

}  // namespace detail
/// @endcond

}  // namespace draftwick
