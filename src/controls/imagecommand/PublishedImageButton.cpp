// The two published classes: an image button behind the interface of each.
#include "controls/imagecommand/ImageButton.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "typelib/HelpContexts.h"
#include "typelib/Interfaces.h"

namespace quillet {

namespace {

/// The interfaces are alike but for the type of one member.
template <class Interface, class BorderStyleConstants, ImageButtonKind const& Kind>
class Published final : public Dual<Interface>, public ImageButton {
public:
    explicit Published(IUnknown* outer)
        : Dual<Interface>(static_cast<Surface&>(*this)), ImageButton(Kind, outer)
    {}

    // Every property reads and writes through its row.
#define QV_BORDER_STYLE BorderStyleConstants
#define QV_TABLE properties()
#include "surface/PropertyMembers.inc"
#include "typelib/members/imageButton.inc"
#undef QV_TABLE
#undef QV_BORDER_STYLE

    STDMETHODIMP get_hwnd(LONG* value) override { return answerHwnd(value); }
    STDMETHODIMP get_hdc(LONG* value) override { return answerHdc(value); }
    STDMETHODIMP Refresh() override { return DrawButton(); }
    STDMETHODIMP DrawButton() override
    {
        return call([&] { draw(); });
    }
    STDMETHODIMP WindowProc(LONG hwnd, LONG uMsg, LONG wParam, LONG lParam, LONG* result) override
    {
        return answerWindowProc(hwnd, uMsg, wParam, lParam, result);
    }
    STDMETHODIMP InUserMode(VARIANT_BOOL* result) override
    {
        return call([&] { deref(result) = inUserMode() ? VARIANT_TRUE : VARIANT_FALSE; });
    }

protected:
    IDispatch* dual() noexcept override { return this; }
};

using qvImageCommand = Published<_qvImageCommand, imgCmdBorderStyleConstants, kImageCommand>;
using FlatToolButton = Published<_FlatToolButton, ButtonBorderStyleConstants, kFlatToolButton>;

} // namespace

constinit ImageButtonKind const kImageCommand = {
    {
        kQvImageCommandClass,
        kQvImageCommandInterface,
        kQvImageCommandEvents,
        L"qvImageCommand",
        L"Quillet.qvImageCommand",
        kCommandButtonStatus,
        kImageButtonMembers,
        kHelpQvImageCommand,
        &createControl<qvImageCommand>,
    },
    kImageCommandProperties,
    RestingBorder::Shadow,
};

constinit ImageButtonKind const kFlatToolButton = {
    {
        kFlatToolButtonClass,
        kFlatToolButtonInterface,
        kFlatToolButtonEvents,
        L"FlatToolButton",
        L"Quillet.FlatToolButton",
        kCommandButtonStatus,
        kImageButtonMembers,
        kHelpFlatToolButton,
        &createControl<FlatToolButton>,
    },
    kFlatToolButtonProperties,
    RestingBorder::WhileLaidOut,
};

} // namespace quillet
