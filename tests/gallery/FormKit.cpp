// Opens forms in tests, with fake controls or with the component's own, and writes down what they raise.
#include "gallery/FormKit.h"

#include "gallery/app/Console.h"
#include "gallery/app/EventText.h"
#include "gallery/form/FileBytes.h"
#include "gallery/host/Extender.h"

#include <stdexcept>

namespace quillet::gallery::test {

std::string node(std::string const& fullClass, std::string const& name, std::string const& lines,
                 std::string const& children)
{
    return "Begin " + fullClass + " " + name + "\r\n" + lines + "\r\n" + children + "End\r\n";
}

std::string formText(std::string const& inside)
{
    return "VERSION 5.00\r\nBegin VB.Form Main\r\nClientWidth = 6000\r\nClientHeight = 4500\r\n" + inside +
           "\r\nEnd\r\nAttribute VB_Name = \"Main\"\r\n";
}

FormKit::FormKit(std::string const& inside, std::map<std::wstring, FakeTraits> traits, UserMode mode)
    : m_traits(std::move(traits))
{
    FormOptions options;
    options.mode = mode;
    options.file = L"test.frm";
    options.factory = [this](std::wstring_view library, std::wstring_view className) {
        NewControl created;
        if (library == L"Fake")
            created.object = makeCounted<FakeControl>(m_traits[std::wstring(className)])->identity();
        else
            created.failure = L"there is no such library";
        return created;
    };
    options.onEvent = [this](FormEvent const& event) {
        events.push_back(event.control.state().name + L"." + std::wstring(event.name));
    };
    options.onWarning = [this](FormError const& warning) { warnings.push_back(warning.text()); };
    options.onClosed = [this] { isClosed = true; };
    m_form = std::make_unique<Form>(readForm(formText(inside), L"test.frm"), std::move(options));
}

FormControl& FormKit::control(wchar_t const* name)
{
    FormControl* const found = m_form->find(name);
    if (!found)
        throw std::runtime_error("the form has no such control");
    return *found;
}

IDispatch& FormKit::extender(wchar_t const* name) { return control(name).extender(); }

FakeControl& FormKit::fake(wchar_t const* name)
{
    auto const face = query<IDispatch>(control(name).object(), kFakeFace);
    if (!face)
        throw std::runtime_error("the control is no fake one");
    return *static_cast<FakeControl*>(face.get()); // the form keeps it alive
}

bool FormKit::key(UINT message, WPARAM key)
{
    HWND const focused = ::GetFocus();
    bool const isInside = ::IsChild(m_form->window(), focused) != FALSE;
    MSG sent{isInside ? focused : m_form->window(), message, key, 1, 0, {}};
    if (message == WM_SYSCHAR || message == WM_SYSKEYDOWN)
        sent.lParam |= 1 << 29; // the Alt key is down
    return m_form->translate(sent);
}

std::wstring FormKit::active()
{
    FormControl const* const active = m_form->focus().active();
    return active ? active->state().name : std::wstring();
}

std::wstring programFolder()
{
    std::wstring path(1024, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\'));
}

std::string narrow(std::wstring_view text) { return utf8(text); }

Demo::Demo(UserMode mode) : Demo(formFile(L"buttons.frm"), mode) {}

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

} // namespace quillet::gallery::test
