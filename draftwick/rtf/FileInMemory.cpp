#include <draftwick/rtf/FileInMemory.h>

#include <new>

namespace draftwick {

class FileInMemory::Open final : public platform::File {
public:
    explicit Open(std::string& bytes) : bytes_(bytes) {}

    std::size_t Write(const char* bytes, std::size_t size, std::error_code& error) override {
        error.clear();
        try {
            bytes_.append(bytes, size);
            return size;
        } catch (const std::bad_alloc&) {
            error = std::make_error_code(std::errc::not_enough_memory);
            return 0;
        }
    }
    std::size_t Read(char* bytes, std::size_t size, std::error_code& error) override {
        error.clear();
        const std::size_t taken = bytes_.copy(bytes, size, position_);
        position_ += taken;
        return taken;
    }
    void Close(std::error_code& error) override { error.clear(); }

private:
    std::string& bytes_;
    std::size_t position_ = 0;
};

std::unique_ptr<platform::File> FileInMemory::Create(const std::string&, platform::Creation,
                                                     std::error_code& error) {
    error.clear();
    bytes_.clear();
    return std::make_unique<Open>(bytes_);
}

std::unique_ptr<platform::File> FileInMemory::OpenForReading(const std::string&, std::error_code& error) {
    error.clear();
    return std::make_unique<Open>(bytes_);
}

std::uint64_t FileInMemory::Length(const std::string&, std::error_code& error) {
    error.clear();
    return bytes_.size();
}

void FileInMemory::Delete(const std::string&, std::error_code& error) {
    error.clear();
    std::string{}.swap(bytes_);
}

}  // namespace draftwick
