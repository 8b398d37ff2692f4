// An option button or check box inside a control: a child window of the system's button class, painted flat.
#pragma once

#include "base/Bstr.h"
#include "controls/optioncheck/InnerButtonPicture.h"
#include "controls/optioncheck/InnerKind.h"
#include "drawing/SystemColours.h"

#include <ocidl.h>
#include <windows.h>

#include <string>
#include <string_view>

namespace quillet {

class OptionCheckButton;
struct ButtonMessage;

/// Keyboard, states and accessibility are the system's own; the picture is ours. Mouse, keys and Click go to
/// the control's handlers. It has the control's font.
class InnerButton {
public:
    InnerButton(OptionCheckButton& control, InnerKind kind, std::wstring_view caption);
    ~InnerButton() { destroy(); }
    InnerButton(InnerButton const&) = delete;
    InnerButton& operator=(InnerButton const&) = delete;

    /// The window, made at first need inside the control's. Throws when Windows refuses it.
    HWND handle();
    /// The window or null; makes none.
    HWND existing() const noexcept { return m_window; }
    void destroy() noexcept;

    Bstr const& caption() const noexcept { return m_caption; }
    /// The caption without the marks of access keys.
    std::wstring shownCaption() const;
    /// The character behind the first mark that counts; empty where there is none.
    std::wstring_view accessKey() const noexcept;
    void setCaption(std::wstring_view caption);
    OLE_COLOR foreColor() const noexcept { return m_foreColor; }
    void setForeColor(OLE_COLOR colour);
    OLE_COLOR backColor() const noexcept { return m_backColor; }
    void setBackColor(OLE_COLOR colour);
    void fontChanged();

    InnerKind kind() const noexcept { return m_kind; }
    /// 0 clear, 1 set, of a check box 2: the third state.
    long value() const noexcept { return m_value; }
    /// Raises Click when that chooses an option or changes a check box.
    void setValue(long value);
    /// A user's click: an option becomes the chosen one, a check box changes between clear and set.
    void click();

    /// Makes the window as large as the control's.
    void cover() noexcept;
    /// Repaints the window at once.
    void refresh() noexcept;
    void takeFocus();
    /// Handles a notification that the window sent to its parent.
    void notified(WORD code);

    /// Paints into any DC.
    void draw(HDC dc, SIZE size, OLE_COLOR foreColor, COLORREF inside) const;
    /// Paints the circle or square alone into any DC, its inside filled with the brush.
    void drawFilledGlyph(HDC dc, SIZE size, HBRUSH brush) const;

    /// For the entry point, when the component goes.
    static void unregisterClass() noexcept;

private:
    class PaintedByUs;

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    GlyphLook glyphLook(COLORREF inside) const;
    void create(HWND parent);
    HWND forget() noexcept;
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT passOn(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT passOnUnseen(UINT message, WPARAM wParam, LPARAM lParam);
    template <class Handler> bool tellAndStay(Handler&& handler) noexcept;
    LRESULT button(ButtonMessage const& row, WPARAM wParam, LPARAM lParam);
    LRESULT pressed(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT key(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT gotFocus(WPARAM wParam, LPARAM lParam);
    LRESULT lostFocus(WPARAM wParam, LPARAM lParam);
    void paint();
    void store(long value);
    bool isClickedByFocus() const noexcept;

    OptionCheckButton& m_control;
    InnerKind const m_kind;
    Bstr m_caption;
    OLE_COLOR m_foreColor = colour::kButtonText;
    OLE_COLOR m_backColor = colour::kButtonFace;
    mutable CaptionPlace m_place{};
    long m_value = 0;
    HWND m_window = nullptr;
    WNDPROC m_system = nullptr; ///< the procedure of the system's button class
    bool m_pressing = false;    ///< the system handles a press of the left button
};

} // namespace quillet
