// The demonstration form with the component's own controls, live, for tests.
#include "gallery/Demo.h"

#include "gallery/app/EventText.h"
#include "gallery/form/FileBytes.h"
#include "gallery/form/Utf8.h"
#include "gallery/host/Extender.h"

#include <algorithm>

namespace quillet::gallery::test {

namespace {

constexpr DWORD kPatience = 5000; // milliseconds

} // namespace

std::wstring programFolder()
{
    std::wstring path(1024, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\'));
}

std::string narrow(std::wstring_view text) { return utf8(text); }

Demo::Demo(UserMode mode) : Demo(std::wstring(GALLERY_FORMS L"/buttons.frm"), mode) {}

Demo::Demo(std::wstring const& file, UserMode mode) : m_document(file)
{
    m_libraries.add(m_document.tree().objects, {programFolder()});
    FormOptions options;
    options.mode = mode;
    options.file = fileNameOf(file);
    options.record = [this](ResourceReference const& reference) { return m_document.record(reference); };
    options.factory = [this](auto library, auto className) { return m_libraries.create(library, className); };
    options.onEvent = [this](FormEvent const& event) {
        events.push_back(narrow(event.control.state().name + L"." + std::wstring(event.name)));
        lines.push_back(narrow(eventText(event)));
    };
    options.onWarning = [this](FormError const& warning) { warnings.push_back(narrow(warning.text())); };
    m_form = std::make_unique<Form>(m_document.tree(), std::move(options));
}

IDispatch& Demo::extender(wchar_t const* name) { return control(name).extender(); }

void Demo::focusOn(wchar_t const* name)
{
    control(name).focus();
    m_form->focus().update();
}

void typeKey(BYTE key, BYTE held)
{
    if (held)
        ::keybd_event(held, 0, 0, 0);
    ::keybd_event(key, 0, 0, 0);
    ::keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
    if (held)
        ::keybd_event(held, 0, KEYEVENTF_KEYUP, 0);
}

void Demo::key(UINT message, WPARAM key)
{
    MSG sent{::GetFocus(), message, key, message == WM_SYSCHAR ? 1 << 29 | 1 : 1, 0, {}};
    if (!m_form->translate(sent))
        ::SendMessageW(sent.hwnd, message, key, sent.lParam);
}

bool Demo::waitFor(std::string const& event)
{
    DWORD const start = ::GetTickCount();
    while (std::find(events.begin(), events.end(), event) == events.end()) {
        if (::GetTickCount() - start > kPatience)
            return false;
        pump();
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return true;
}

void Demo::pump()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        if (!m_form->translate(message)) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
}

} // namespace quillet::gallery::test
