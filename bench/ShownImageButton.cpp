// An image command button or a tool button in a visible window, under the real mouse.
#include "bench/ShownImageButton.h"

#include "base/Bstr.h"
#include "base/RunTimeError.h"
#include "bench/Rounds.h"
#include "kit/Input.h"
#include "kit/Pump.h"
#include "typelib/Guids.h"

#include <olectl.h>

#include <cwchar>

namespace quillet::bench {

ImageKind const kImageKinds[2] = {{"image command", kQvImageCommandClass, kQvImageCommandInterface},
                                  {"tool button", kFlatToolButtonClass, kFlatToolButtonInterface}};

namespace {

using WithImage = _qvImageCommand;

BareImage bareImage(IPictureDisp* object)
{
    auto const picture = query<IPicture>(object);
    SHORT type = PICTYPE_NONE;
    OLE_HANDLE handle = 0;
    if (!picture || FAILED(picture->get_Type(&type)) || FAILED(picture->get_Handle(&handle)))
        return {};
    HANDLE const held = LongToHandle(static_cast<LONG>(handle));
    if (type == PICTYPE_ICON) // the icons measured are those of small pictures
        return {nullptr, static_cast<HICON>(held), {16, 16}};
    BITMAP format = {};
    ::GetObjectW(held, sizeof format, &format);
    return {static_cast<HBITMAP>(held), nullptr, {format.bmWidth, format.bmHeight}};
}

} // namespace

HRESULT SavedImageButton::QueryInterface(REFIID iid, void** object)
{
    bool const known = iid == IID_IPropertyBag || iid == IID_IUnknown;
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
}

HRESULT SavedImageButton::Read(LPCOLESTR name, VARIANT* value, IErrorLog*)
{
    if (std::wcscmp(name, L"Caption") == 0) {
        value->bstrVal = Bstr(kCaption).detach();
        value->vt = VT_BSTR;
        return S_OK;
    }
    if (m_picture && std::wcscmp(name, L"Image") == 0) {
        value->pdispVal = m_picture.copy();
        value->vt = VT_DISPATCH;
        return S_OK;
    }
    return E_INVALIDARG; // not saved: the default holds
}

ShownImageButton::ShownImageButton(kit::Library const& library, ImageKind const& kind, IPictureDisp* picture)
    : m_image(bareImage(picture)), m_saved(picture), m_factory(library.factory(kind.classId)),
      m_hosted(deref(m_factory.get()), m_saved, m_frame, m_window.handle(), kPlace),
      m_button(query<_qvImageCommand>(m_hosted.as<IUnknown>().get(), kind.interfaceId))
{
    check(m_hosted.as<IOleWindow>()->GetWindow(&m_buttonWindow));
    kit::pumpPending();
}

void ShownImageButton::enter(ImageLook look)
{
    bool const moved = look == ImageLook::Normal ? kit::moveCursorAway()
                                                 : kit::moveCursorTo(m_buttonWindow, kMiddle.x, kMiddle.y);
    require(moved, "the cursor does not move");
    kit::pumpPending();
}

BareImagePainter ShownImageButton::barePainter() const
{
    return {m_buttonWindow, kSize, fontOf(control()), "Save changes", m_image};
}

BareImageLook ShownImageButton::bareLook(ImageLook look) const
{
    WithImage& button = control();
    if (look == ImageLook::Hot)
        return {colourOf(button, &WithImage::get_HotForeColor),
                colourOf(button, &WithImage::get_HotBackColor),
                colourOf(button, &WithImage::get_HotLightBorderColor),
                colourOf(button, &WithImage::get_HotDarkBorderColor)};
    return {colourOf(button, &WithImage::get_ForeColor), colourOf(button, &WithImage::get_BackColor),
            colourOf(button, &WithImage::get_LightBorderColor),
            colourOf(button, &WithImage::get_DarkBorderColor)};
}

} // namespace quillet::bench
