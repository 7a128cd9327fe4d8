#include <draftwick/platform/Pictures.h>

namespace draftwick::platform {

std::error_code make_error_code(PictureError error) noexcept {
    class Category final : public std::error_category {
        const char* name() const noexcept override { return "picture"; }
        std::string message(int) const override { return "Invalid picture"; }
    };
    static const Category category;
    return {static_cast<int>(error), category};
}

}  // namespace draftwick::platform
