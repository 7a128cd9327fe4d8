#include <draftwick/platform/pictures/Source.h>

#include <algorithm>
#include <cstring>

namespace draftwick::platform::pictures {

bool PictureSource::Fill() noexcept {
    next_ = end_ = 0;
    if (ended_) return false;
    try {
        end_ = file_.Read(reinterpret_cast<char*>(buffer_.data()), buffer_.size(), error_);
    } catch (...) {
        thrown_ = std::current_exception();
    }
    if (error_) end_ = 0;
    ended_ = end_ == 0;
    return !ended_;
}

std::size_t PictureSource::Read(std::uint8_t* bytes, std::size_t size) noexcept {
    std::size_t done = 0;
    while (done < size && (next_ < end_ || Fill())) {
        const std::size_t n = std::min(size - done, end_ - next_);
        std::memcpy(bytes + done, buffer_.data() + next_, n);
        next_ += n;
        done += n;
    }
    position_ += done;
    return done;
}

bool PictureSource::Skip(std::uint64_t size) noexcept {
    while (size > 0 && (next_ < end_ || Fill())) {
        const auto n = static_cast<std::size_t>(std::min<std::uint64_t>(size, end_ - next_));
        next_ += n;
        position_ += n;
        size -= n;
    }
    return size == 0;
}

}  // namespace draftwick::platform::pictures
