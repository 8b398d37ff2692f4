// A live form: its window, its controls and what they share.
#pragma once

#include "base/ComPtr.h"
#include "base/Handles.h"
#include "base/Scale.h"
#include "gallery/form/FormReader.h"
#include "gallery/form/FormTree.h"
#include "gallery/host/ControlFactory.h"
#include "gallery/host/Focus.h"
#include "gallery/host/FormControl.h"
#include "gallery/host/Keyboard.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::gallery {

class FormObject;
class InPlaceFrame;

enum class UserMode { Run, Design };

/// Something that a control of the form has raised.
struct FormEvent {
    FormControl& control;
    std::wstring_view name;
    DISPPARAMS const& arguments; ///< the last argument first, as automation has it
};

struct FormOptions {
    UserMode mode = UserMode::Run;
    HWND parent = nullptr; ///< the window that the form stands in; null for a window of its own
    HWND owner = nullptr;  ///< the window above which a dialog stays
    std::wstring file;     ///< only for messages
    ControlFactory factory;
    /// A record of the form's companion file; throws ValueFault. Pictures are left out where there is none.
    std::function<std::string_view(ResourceReference const&)> record;
    std::function<void(FormEvent const&)> onEvent;
    /// At design time: a double click on a control.
    std::function<void(FormControl&)> onDesign;
    /// A control could not be made, and a placeholder stands for it, or one of its properties not be read.
    std::function<void(FormError const&)> onWarning;
    std::function<void()> onClosed;
};

using FormControls = std::vector<std::unique_ptr<FormControl>>;

class Form {
public:
    /// Makes the window, hidden, and every control of the tree, loaded and active in place.
    Form(FormTree const& tree, FormOptions options);
    ~Form();
    Form(Form const&) = delete;
    Form& operator=(Form const&) = delete;

    /// Shows the window; the first control in the tab order gets the focus.
    void show();
    /// Ends the controls and the window. Nothing happens the second time.
    void close();
    /// Gives the keyboard's rules or, at design time, the designer their look at a message before it is
    /// dispatched; true when it is done.
    bool translate(MSG& message);

    HWND window() const noexcept { return m_window.get(); }
    FormOptions const& options() const noexcept { return m_options; }
    bool isDesign() const noexcept { return m_options.mode == UserMode::Design; }
    Resolution const& resolution() const noexcept { return m_resolution; }
    double twipsPerUnitX() const noexcept;
    double twipsPerUnitY() const noexcept;

    std::wstring const& name() const noexcept { return m_name; }
    FormCoding coding() const noexcept { return m_coding; }
    std::wstring caption() const;
    void setCaption(std::wstring const& caption);
    OLE_COLOR backColor() const noexcept { return m_backColor; }
    void setBackColor(OLE_COLOR color);
    OLE_COLOR foreColor() const noexcept { return m_foreColor; }
    IFont* font() const noexcept { return m_font.get(); }

    /// In the order of the form file: a container stands before what it holds.
    FormControls const& controls() const noexcept { return m_controls; }
    /// Null when there is none of that name; the first of a control array.
    FormControl* find(std::wstring_view controlName) const noexcept;
    /// The control that the window belongs to; null when it belongs to none.
    FormControl* controlOf(HWND inside) const noexcept;

    /// The form as its controls see it.
    FormObject& object() noexcept { return *m_object.get(); }
    InPlaceFrame& frame() noexcept { return *m_frame.get(); }
    Focus& focus() noexcept { return m_focus; }
    Keyboard& keyboard() noexcept { return m_keyboard; }

    void raise(FormControl& control, std::wstring_view name, DISPPARAMS const& arguments);
    void warn(int line, std::wstring reason) const;
    /// What the form's window is sent.
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    /// Messages that children send to the window they stand in; nothing when it is none of those.
    std::optional<LRESULT> childMessage(UINT message, WPARAM wParam, LPARAM lParam);

private:
    void makeWindow(FormNode const& node);
    void makeControls(std::vector<FormNode> const& nodes, FormControl* container);
    std::unique_ptr<FormControl> makeControl(FormNode const& node, FormControl* container);
    void keepOneDefault();
    bool designed(MSG const& message);
    void paint();
    void eraseBackground(HDC dc) const;

    FormOptions m_options;
    Resolution m_resolution = screenResolution();
    std::wstring m_name;
    FormCoding m_coding;
    long m_scaleMode;
    OLE_COLOR m_backColor;
    OLE_COLOR m_foreColor;
    ComPtr<IFont> m_font;
    ComPtr<FormObject> m_object;
    ComPtr<InPlaceFrame> m_frame;
    UniqueWindow m_window;
    FormControls m_controls;
    Focus m_focus;
    Keyboard m_keyboard;
    bool m_isClosed = false;
};

} // namespace quillet::gallery
