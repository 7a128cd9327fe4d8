#include <draftwick/base/internal/Names.h>
#include <draftwick/model/Recycled.h>

#include <array>
#include <new>

namespace draftwick {

namespace {

// Nothing is kept where memory that is used after it was given back must be found.
#if defined(__SANITIZE_ADDRESS__)
constexpr int MostBlocks = 0;
#elif defined(__has_feature)
constexpr int MostBlocks = __has_feature(address_sanitizer) ? 0 : 8;
#else
constexpr int MostBlocks = 8;  // of each size: as deep as documents are nested, and not much memory
#endif
constexpr std::size_t Step = 64;
constexpr std::size_t Largest = 1024;

struct Block {
    Block* next;
};

/// The blocks of one size that wait for their next object.
struct Stack {
    Block* top = nullptr;
    int room = 0;  // for so many more; none before the first and after the thread's end
};

// Plain data: it can be used as long as the thread runs, also by what ends after Cleaner.
constinit thread_local std::array<Stack, Largest / Step + 1> stacks{};

/// Makes room for blocks to wait, and frees them when the thread ends.
struct Cleaner {
    Cleaner() {
        for (Stack& stack : stacks) stack.room = MostBlocks;
    }
    ~Cleaner() {
        for (Stack& stack : stacks) {
            while (stack.top != nullptr) ::operator delete(std::exchange(stack.top, stack.top->next));
            stack.room = 0;
        }
    }
};

constexpr std::size_t IndexOf(std::size_t size) { return (size + Step - 1) / Step; }

void* NewBlock(std::size_t size) {
    [[maybe_unused]] static thread_local const Cleaner cleaner;
    return ::operator new(size);
}

}  // namespace

void* detail::TakeBlock(std::size_t size) {
    const std::size_t index = IndexOf(size);
    if (index >= stacks.size()) return ::operator new(size);
    Stack& stack = stacks[index];
    if (stack.top == nullptr) return NewBlock(index * Step);
    ++stack.room;
    return std::exchange(stack.top, stack.top->next);
}

void detail::GiveBlock(void* block, std::size_t size) noexcept {
    const std::size_t index = IndexOf(size);
    if (index >= stacks.size() || stacks[index].room == 0) {
        ::operator delete(block);
        return;
    }
    Stack& stack = stacks[index];
    --stack.room;
    stack.top = ::new (block) Block{stack.top};
}

}  // namespace draftwick
