// The demonstration form with the component's own controls, live, for tests.
#pragma once

#include "gallery/Members.h"
#include "gallery/app/ControlLibrary.h"
#include "gallery/app/Document.h"
#include "gallery/form/FormReader.h"
#include "gallery/host/Form.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::gallery::test {

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
    /// Pumps messages until the event has been raised; whether it was.
    bool waitFor(std::string const& event);
    void pump();

    std::vector<std::string> events; ///< names: cmdSave.Click
    std::vector<std::string> lines;  ///< the same events as the gallery's log has them
    std::vector<std::string> warnings;

private:
    Document m_document;
    ControlLibraries m_libraries;
    std::unique_ptr<Form> m_form;
};

} // namespace quillet::gallery::test
