#include "Dispatch.h"
#include "Errors.h"
#include "Values.h"

#include <draftwick/model/Class.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace draftwick::automation {

namespace {

/// The items of a collection at the positions 1 to Count, which grows when one is added on the way.
class Enumerator final : public Counted<IEnumVARIANT> {
public:
    Enumerator(std::shared_ptr<Object> collection, std::int64_t next)
        : collection_(std::move(collection)), next_(next) {}

    HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* values, ULONG* fetched) override {
        if (fetched != nullptr) *fetched = 0;
        if (values == nullptr) return E_POINTER;
        if (::GetCurrentThreadId() != thread_) return RPC_E_WRONG_THREAD;
        ULONG done = 0;
        const HRESULT outcome = Guarded(nullptr, [&]() -> HRESULT {
            for (; done < count && next_ <= Count(); ++done) {
                const auto position = static_cast<std::int32_t>(next_);
                Give(Call(*collection_, collection_->Description().defaultMember, {position}), true,
                     values[done]);
                ++next_;
            }
            return done == count ? S_OK : S_FALSE;
        });
        if (FAILED(outcome)) {
            next_ -= done;
            while (done > 0) ::VariantClear(&values[--done]);
        }
        if (fetched != nullptr) *fetched = done;
        return outcome;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        return Guarded(nullptr, [&] {
            const std::int64_t left = std::max<std::int64_t>(Count() - next_ + 1, 0);
            next_ += std::min<std::int64_t>(count, left);
            return count <= left ? S_OK : S_FALSE;
        });
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        next_ = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** other) override {
        if (other == nullptr) return E_POINTER;
        *other = nullptr;
        return Guarded(nullptr, [&] {
            *other = new Enumerator(collection_, next_);
            return S_OK;
        });
    }

private:
    /// Class::items promises the property.
    std::int32_t Count() const { return std::get<std::int32_t>(Get(*collection_, "Count")); }

    const DWORD thread_ = ::GetCurrentThreadId();
    const std::shared_ptr<Object> collection_;
    std::int64_t next_;  // one more than any Count has room
};

}  // namespace

IUnknown* MakeEnumerator(std::shared_ptr<Object> collection) {
    return new Enumerator(std::move(collection), 1);
}

}  // namespace draftwick::automation
