// Opens forms in tests: with fake controls, and with what they raise written down.
#pragma once

#include "gallery/FakeControl.h"
#include "gallery/Members.h"
#include "gallery/form/FormReader.h"
#include "gallery/host/Form.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace quillet::gallery::test {

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
    /// The name of the active control; empty for none.
    std::wstring active();

    std::vector<std::wstring> events; ///< control.event
    std::vector<std::wstring> warnings;
    bool isClosed = false;

private:
    std::map<std::wstring, FakeTraits> m_traits;
    std::unique_ptr<Form> m_form;
};

} // namespace quillet::gallery::test
