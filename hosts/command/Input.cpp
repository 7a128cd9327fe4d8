#include "hosts/command/Input.h"

#include <cerrno>
#include <filesystem>
#include <iostream>
#include <system_error>

namespace draftwick::command {

Input::Input(const std::string& file) : name_(file == "-" ? "<stdin>" : file), source_(&std::cin) {
    if (file != "-") {
        std::error_code unknown;
        if (std::filesystem::is_directory(file, unknown)) throw Failure({name_}, "is a folder");
        file_.open(file, std::ios::binary);
        if (!file_) throw Failure({name_}, "cannot be read: " + std::generic_category().message(errno));
        const auto size = std::filesystem::file_size(file, unknown);
        size_ = unknown ? 0 : static_cast<double>(size);
        source_ = &file_;
    }
    Fill();
    SkipMark();
}

Input::Input(std::string text, std::string name) : name_(std::move(name)), buffer_(std::move(text)) {
    SkipMark();
}

void Input::SkipMark() {
    if (buffer_.starts_with("\xEF\xBB\xBF")) lineStart_ = next_ = 3;
}

void Input::SkipBlanks() {
    while (Peek() == ' ' || Peek() == '\t' || Peek() == '\r' || Peek() == '\n') Take();
}

std::string Input::Rest() {
    std::string rest;
    while (!AtEnd()) {
        rest += Ahead();
        next_ = buffer_.size();
        Fill();
    }
    return rest;
}

double Input::Share() const { return size_ > 0 ? static_cast<double>(Tell()) / size_ : 0; }

void Input::Fill() {
    constexpr std::size_t Most = 1 << 16;
    if (source_ == nullptr) return;
    before_ += buffer_.size();
    next_ = 0;
    buffer_.resize(Most);
    source_->read(buffer_.data(), Most);
    buffer_.resize(static_cast<std::size_t>(source_->gcount()));
    if (source_->bad()) throw Failure({name_}, "cannot be read");
}

}  // namespace draftwick::command
