// What every control of a form has in common, whoever made it: place, name, and its part in the form's life.
#pragma once

#include "base/ComPtr.h"
#include "gallery/form/FormTree.h"

#include <oaidl.h>
#include <windows.h>

#include <optional>
#include <string>

namespace quillet::gallery {

class Form;
class Extender;

/// Twips, relative to the container's client area.
struct Place {
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;

    bool operator==(Place const&) const = default;
};

/// What the form keeps for a control; the control sees it through its extender.
struct ExtenderState {
    std::wstring name;
    std::wstring tag;
    std::wstring toolTipText;
    std::optional<long> index; ///< of a control array
    Place place;
    long tabIndex = 0;
    bool tabStop = true;
    bool visible = true;
    bool isDefault = false;
    bool isCancel = false;
};

/// A control of a form. The form owns it; its extender may outlive it and then answers nothing any more.
class FormControl {
public:
    /// container is null for a control that stands on the form itself.
    FormControl(Form& form, FormControl* container, FormNode const& node);
    virtual ~FormControl();
    FormControl(FormControl const&) = delete;
    FormControl& operator=(FormControl const&) = delete;

    Form& form() const noexcept { return m_form; }
    FormControl* container() const noexcept { return m_container; }
    /// Library.Class, as the form file has it.
    std::wstring const& className() const noexcept { return m_className; }
    ExtenderState const& state() const noexcept { return m_state; }
    /// For what changes without anybody being told: tag, tooltip text, tab stop, tab index.
    ExtenderState& state() noexcept { return m_state; }
    Extender& extender() noexcept { return *m_extender.get(); }

    void moveTo(Place const& place);
    void setVisible(bool visible);
    /// At most one control of a form is the default button, and one the cancel button.
    void setDefault(bool isDefault);
    void setCancel(bool isCancel);

    /// The window of the container, and the control's place in it in pixels.
    HWND parentWindow() const noexcept;
    RECT pixels() const noexcept;
    /// Whether it and all its containers are shown.
    bool isShown() const noexcept;
    bool isEnabled() const noexcept { return window() && ::IsWindowEnabled(window()); }
    bool canTabTo() const noexcept { return takesFocus() && m_state.tabStop && isShown() && isEnabled(); }

    /// Null while it has none.
    virtual HWND window() const noexcept = 0;
    /// Where controls inside this one have their windows; null for what is no container.
    virtual HWND childrenWindow() const noexcept { return nullptr; }
    /// The control itself, without the form's additions. The automation face may be null.
    virtual IUnknown* object() noexcept = 0;
    virtual IDispatch* automation() noexcept = 0;

    /// Whether it is an OLE object of its own, as against what the form itself draws.
    virtual bool isEmbedding() const noexcept { return false; }
    virtual bool takesFocus() const noexcept { return true; }
    virtual bool actsLikeButton() const noexcept { return false; }
    /// An option button: arrow keys move among those of a container.
    virtual bool isOption() const noexcept { return false; }
    virtual bool isSelectedOption() const noexcept { return false; }

    virtual void focus();
    /// The focus has gone to another control of the form.
    virtual void focusLost() {}
    /// Enter or Esc has chosen this button.
    virtual void press(WPARAM) {}
    /// An arrow key has come to this option button.
    virtual void choose() {}
    virtual bool ownsAccessKey(MSG const&) { return false; }
    virtual void runAccessKey(MSG const&) {}
    /// The focused control's first sight of a key message; true when it has used it up.
    virtual bool translateKey(MSG&) { return false; }
    /// Whether the control wants Enter or Esc for itself.
    virtual bool eatsKey(WPARAM) { return false; }

    virtual void activate() {}
    virtual void showDefaultChanged() {}
    virtual void drawWithoutWindow(HDC) {}
    /// Lets go of everything; called once, before the form's window goes.
    virtual void close() {}

protected:
    virtual void placeChanged() = 0;
    virtual void visibleChanged() = 0;

private:
    Form& m_form;
    FormControl* m_container;
    std::wstring m_className;
    ExtenderState m_state;
    ComPtr<Extender> m_extender;
};

} // namespace quillet::gallery
