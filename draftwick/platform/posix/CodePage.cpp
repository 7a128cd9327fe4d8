#include <draftwick/platform/internal/CodePage.h>

namespace draftwick::platform {

std::size_t EncodeAnsi(char32_t character, char* bytes) noexcept {
    const char byte = character < 0x80 ? static_cast<char>(character) : Windows1252(character);
    *bytes = byte == 0 && character != 0 ? '?' : byte;
    return 1;
}

}  // namespace draftwick::platform
