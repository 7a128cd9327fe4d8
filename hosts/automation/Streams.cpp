#include "Streams.h"

#include "Errors.h"

#include <draftwick/core/Document.h>

#include <algorithm>
#include <string_view>
#include <system_error>

namespace draftwick::automation {

namespace {

void Write(IStream& stream, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto size = static_cast<ULONG>(std::min<std::size_t>(bytes.size(), 1 << 20));
        ULONG written = 0;
        const HRESULT outcome = stream.Write(bytes.data(), size, &written);
        if (FAILED(outcome) || written == 0) {
            const HRESULT code = FAILED(outcome) ? outcome : STG_E_MEDIUMFULL;
            throw std::system_error(static_cast<int>(code), std::system_category(),
                                    "cannot write the stream");
        }
        bytes.remove_prefix(std::min<std::size_t>(written, bytes.size()));
    }
}

}  // namespace

void FinishTo(Object& document, const VARIANT& value) {
    const VARIANT& given = value.vt == (VT_BYREF | VT_VARIANT) ? *value.pvarVal : value;
    const bool isObject = given.vt == VT_UNKNOWN || given.vt == VT_DISPATCH;
    void* found = nullptr;
    if (!isObject || given.punkVal == nullptr || FAILED(given.punkVal->QueryInterface(IID_IStream, &found)))
        Refuse(dwRunTypeMismatch, "a stream is wanted");
    const Pointer<IStream> stream(static_cast<IStream*>(found));
    dynamic_cast<Document&>(document).FinishTo([&](std::string_view bytes) { Write(*stream, bytes); });
}

}  // namespace draftwick::automation
