#include "Errors.h"

#include "Values.h"

#include <draftwick/core/Classes.h>

#include <new>
#include <system_error>
#include <utility>

namespace draftwick::automation {

namespace {

/// What a script has as Err.Number: the library's own numbers as they are, run-time numbers as their own.
HRESULT ResultOf(std::int32_t number) {
    return number < 0 ? number : static_cast<HRESULT>(0x800A0000u | static_cast<std::uint32_t>(number));
}

/// The number that scripts know for a failure of files, where they know one.
HRESULT ResultOf(const std::error_code& error) {
    if (error.category() != std::system_category()) return ResultOf(57);  // device I/O error
    switch (error.value()) {
    case ERROR_FILE_NOT_FOUND: return ResultOf(53);
    case ERROR_ALREADY_EXISTS:
    case ERROR_FILE_EXISTS: return ResultOf(58);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL: return ResultOf(61);
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION: return ResultOf(70);
    case ERROR_PATH_NOT_FOUND: return ResultOf(76);
    default: return HRESULT_FROM_WIN32(static_cast<DWORD>(error.value()));  // a result stays as it is
    }
}

struct Failure {
    HRESULT code;
    std::string text;
    std::string source{ProgIdPrefix};
    std::string helpFile{};
};

HRESULT Report(EXCEPINFO* info, const Failure& failure) {
    Text text(failure.text), source(failure.source), helpFile(failure.helpFile);
    if (info != nullptr) {
        *info = {};
        info->scode = failure.code;
        info->bstrDescription = text.Detach();
        info->bstrSource = source.Detach();
        if (!failure.helpFile.empty()) info->bstrHelpFile = helpFile.Detach();
        return DISP_E_EXCEPTION;
    }
    ICreateErrorInfo* made = nullptr;
    if (FAILED(::CreateErrorInfo(&made))) return failure.code;
    const Pointer<ICreateErrorInfo> error(made);
    error->SetDescription(text.Get());
    error->SetSource(source.Get());
    if (!failure.helpFile.empty()) error->SetHelpFile(helpFile.Get());
    void* asInfo = nullptr;
    if (SUCCEEDED(error->QueryInterface(IID_IErrorInfo, &asInfo))) {
        const Pointer<IErrorInfo> owned(static_cast<IErrorInfo*>(asInfo));
        ::SetErrorInfo(0, owned.get());
    }
    return failure.code;
}

HRESULT Describe(EXCEPINFO* info) {
    try {
        throw;
    } catch (const Error& error) {
        Failure failure{ResultOf(error.Number()), error.what() + ("\r\n" + error.Advice())};
        if (!error.Source().empty()) failure.source = error.Source();
        failure.helpFile = error.HelpFile();
        return Report(info, failure);
    } catch (const std::system_error& error) {
        return Report(info, {ResultOf(error.code()), error.what()});
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::exception& error) {
        return Report(info, {E_FAIL, error.what()});
    }
}

}  // namespace

HRESULT ReportException(EXCEPINFO* info) noexcept {
    try {
        return Describe(info);
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

}  // namespace draftwick::automation
