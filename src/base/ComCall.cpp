// The one boundary: the mapping of what was thrown stands here once.
#include "base/ComCall.h"

#include "base/Bstr.h"
#include "base/ComPtr.h"
#include "base/HelpFile.h"
#include "base/RunTimeError.h"

#include <new>
#include <string>

namespace quillet {

namespace {

std::wstring systemText(HRESULT result)
{
    wchar_t text[256];
    DWORD const length =
        ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                         static_cast<DWORD>(result), 0, text, static_cast<DWORD>(std::size(text)), nullptr);
    std::wstring_view trimmed(text, length);
    while (!trimmed.empty() && (trimmed.back() == L'\r' || trimmed.back() == L'\n'))
        trimmed.remove_suffix(1);
    return trimmed.empty() ? L"Automation error" : std::wstring(trimmed);
}

void publish(ErrorSource const& source, IID const& interfaceId, std::wstring const& description)
{
    ComPtr<ICreateErrorInfo> info;
    if (FAILED(::CreateErrorInfo(info.put())))
        return;
    info->SetGUID(interfaceId);
    info->SetSource(const_cast<wchar_t*>(source.name));
    info->SetDescription(const_cast<wchar_t*>(description.c_str()));
    info->SetHelpFile(helpFilePath().data());
    info->SetHelpContext(source.helpContext);
    if (auto const error = info.as<IErrorInfo>())
        ::SetErrorInfo(0, error.get());
}

/// Call in a catch block: what was thrown, as the one type that it is mapped to.
RunTimeError caught() noexcept
{
    try {
        throw;
    } catch (RunTimeError const& error) {
        return error;
    } catch (std::bad_alloc const&) {
        return RunTimeError(E_OUTOFMEMORY);
    } catch (...) {
        return RunTimeError(E_UNEXPECTED);
    }
}

} // namespace

HRESULT resultOfCaught() noexcept { return caught().result(); }

HRESULT reportCaught(ErrorSource const& source) noexcept
{
    RunTimeError const error = caught();
    ignoringErrors([&] {
        wchar_t const* const own = error.description();
        publish(source, error.interfaceId() ? *error.interfaceId() : source.interfaceId,
                own ? std::wstring(own) : systemText(error.result()));
    });
    return error.result();
}

} // namespace quillet
