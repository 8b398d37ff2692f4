// The form's own simple controls: labels, text boxes, buttons, frames, and the box for an unknown class.
#pragma once

#include "base/ComPtr.h"
#include "base/Handles.h"
#include "gallery/host/FormControl.h"
#include "gallery/host/LateBoundObject.h"
#include "gallery/intrinsic/BoxWindow.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <string>
#include <string_view>

namespace quillet::gallery {

enum class IntrinsicKind {
    Label,
    TextBox,
    CommandButton,
    OptionButton,
    CheckBox,
    Frame,
    Invisible,
    Placeholder
};

class IntrinsicObject;

/// A native window that stands in for a control of the environment. An unknown class is a placeholder.
class IntrinsicControl final : public FormControl {
public:
    IntrinsicControl(Form& form, FormControl* container, FormNode const& node);
    /// A box that says what should stand there, whatever the node's class.
    IntrinsicControl(Form& form, FormControl* container, FormNode const& node, IntrinsicKind kind);
    ~IntrinsicControl() override;

    IntrinsicKind kind() const noexcept { return m_kind; }
    HWND window() const noexcept override { return m_window.get(); }
    HWND childrenWindow() const noexcept override { return isBox() ? m_window.get() : nullptr; }
    IUnknown* object() noexcept override;
    IDispatch* automation() noexcept override;
    bool takesFocus() const noexcept override;
    bool actsLikeButton() const noexcept override { return m_kind == IntrinsicKind::CommandButton; }
    bool isOption() const noexcept override { return m_kind == IntrinsicKind::OptionButton; }
    bool isSelectedOption() const noexcept override { return isOption() && value() != 0; }

    void press(WPARAM key) override;
    void choose() override;
    bool ownsAccessKey(MSG const& message) override;
    void runAccessKey(MSG const& message) override;
    void showDefaultChanged() override;
    void close() override { m_window.reset(); }

    /// The caption or, of a text box, the text.
    std::wstring text() const;
    void setText(std::wstring const& text);
    /// 0 or 1, of an option button or a check box.
    long value() const noexcept;
    /// Selecting an option button clears the others of its container. Raises Click when it changes.
    void setValue(long value);
    void setEnabled(bool enabled) noexcept { ::EnableWindow(m_window.get(), enabled); }
    OLE_COLOR foreColor() const noexcept { return m_foreColor; }
    OLE_COLOR backColor() const noexcept { return m_backColor; }
    void setForeColor(OLE_COLOR color) noexcept;
    void setBackColor(OLE_COLOR color);
    IFont* font() const noexcept { return m_font.get(); }

    /// A notification that the window has sent to its parent.
    void notified(WORD code);
    /// Colours the DC in which the window is about to paint; the brush for its background.
    HBRUSH colours(HDC dc) const noexcept;
    /// Draws a frame's or a placeholder's own window.
    void paintBox(HDC dc) const;

protected:
    void placeChanged() override;
    void visibleChanged() override;

private:
    bool isBox() const noexcept
    {
        return m_kind == IntrinsicKind::Frame || m_kind == IntrinsicKind::Placeholder;
    }
    void makeWindow(FormNode const& node);
    void raise(std::wstring_view event);

    IntrinsicKind m_kind;
    OLE_COLOR m_foreColor;
    OLE_COLOR m_backColor;
    BoxEdge m_edge; ///< of a frame
    ComPtr<IFont> m_font;
    ComPtr<IntrinsicObject> m_object;
    UniqueBrush m_brush;
    UniqueWindow m_window;
};

} // namespace quillet::gallery
