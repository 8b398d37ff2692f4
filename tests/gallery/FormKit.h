// Opens forms in tests, with fake controls or with the component's own, and writes down what they raise.
#pragma once

#include "base/LateBound.h"
#include "gallery/FakeControl.h"
#include "gallery/app/ControlLibrary.h"
#include "gallery/app/Document.h"
#include "gallery/form/FormReader.h"
#include "gallery/host/Form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet::gallery::test {

inline Variant getByName(IDispatch& object, wchar_t const* name) { return propertyByName(&object, name); }
inline void putByName(IDispatch& object, wchar_t const* name, Variant value)
{
    putPropertyByName(&object, name, std::move(value));
}

using ::testing::Contains;
using testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr DWORD kPatience = 5000; // milliseconds

/// Handles the messages that wait, as a program's loop does whose host translates them first.
template <class Host> void pumpThrough(Host& host)
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        if (!host.translate(message)) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
}

/// The same until the check holds; whether it came to that.
template <class Host, class Check> bool waitThrough(Host& host, Check const& check)
{
    for (DWORD const begin = ::GetTickCount(); !check(); pumpThrough(host)) {
        if (::GetTickCount() - begin > kPatience)
            return false;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return true;
}

/// A form that is shipped.
inline std::wstring formFile(wchar_t const* name) { return std::wstring(GALLERY_FORMS L"/") + name; }

/// Begin … End of one node.
std::string node(std::string const& fullClass, std::string const& name, std::string const& lines = "",
                 std::string const& children = "");

/// A form file's text round what stands in its form.
std::string formText(std::string const& inside);

/// A live form. Controls of the library Fake are fake ones; the traits of each are set by its class name.
class FormKit {
public:
    explicit FormKit(std::string const& inside, std::map<std::wstring, FakeTraits> traits = {},
                     UserMode mode = UserMode::Run);

    Form& form() { return *m_form; }
    /// The control of that name; fails the test when there is none.
    FormControl& control(wchar_t const* name);
    IDispatch& extender(wchar_t const* name);
    /// The fake control of that name.
    FakeControl& fake(wchar_t const* name);
    /// Sends one key message the way that the message loop would; whether somebody used it up.
    bool key(UINT message, WPARAM key);
    bool press(WPARAM key) { return this->key(WM_KEYDOWN, key); }
    bool pressAlt(wchar_t letter) { return key(WM_SYSCHAR, letter); }
    Variant get(wchar_t const* control, wchar_t const* member)
    {
        return getByName(extender(control), member);
    }
    /// The name of the active control; empty for none.
    std::wstring active();

    std::vector<std::wstring> events; ///< control.event
    std::vector<std::wstring> warnings;
    bool isClosed = false;

private:
    std::map<std::wstring, FakeTraits> m_traits;
    std::unique_ptr<Form> m_form;
};

std::wstring programFolder();
std::string narrow(std::wstring_view text);
/// Types a key while another may be held, as a keyboard does.
void typeKey(BYTE key, BYTE held = 0);

/// The form with everything that it raises written down.
class Demo {
public:
    explicit Demo(UserMode mode = UserMode::Run);
    Demo(std::wstring const& file, UserMode mode);

    Form& form() { return *m_form; }
    Document& document() { return m_document; }
    FormControl& control(wchar_t const* name) { return *m_form->find(name); }
    IDispatch& extender(wchar_t const* name);
    void focusOn(wchar_t const* name);

    /// One key message, the way that the message loop handles it.
    void key(UINT message, WPARAM key);
    Variant get(wchar_t const* control, wchar_t const* member)
    {
        return getByName(extender(control), member);
    }
    /// How often the event was raised.
    std::ptrdiff_t count(std::string const& event) const { return std::ranges::count(events, event); }
    /// Pumps messages until the event has been raised; whether it was.
    bool waitFor(std::string const& event)
    {
        return waitThrough(*m_form, [&] { return count(event) > 0; });
    }
    void pump() { pumpThrough(*m_form); }

    std::vector<std::string> events; ///< names: cmdSave.Click
    std::vector<std::string> lines;  ///< the same events as the gallery's log has them
    std::vector<std::string> warnings;

private:
    Document m_document;
    ControlLibraries m_libraries;
    std::unique_ptr<Form> m_form;
};

} // namespace quillet::gallery::test
