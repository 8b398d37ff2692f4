// An image command button or a tool button in a visible window, under the real mouse.
#pragma once

#include "bench/BarePainter.h"
#include "bench/Container.h"
#include "kit/Canvas.h"
#include "kit/HostWindow.h"
#include "kit/Library.h"
#include "typelib/Interfaces.h"

#include <windows.h>

namespace quillet::bench {

/// The two classes.
struct ImageKind {
    char const* name;
    CLSID classId;
    IID interfaceId;
};
extern ImageKind const kImageKinds[2];

enum class ImageLook { Normal, Hot };

/// What the saved form of a picture button says: a caption, a picture or none, no shift when pressed.
class SavedImageButton final : public Owned<IPropertyBag> {
public:
    explicit SavedImageButton(IPictureDisp* picture) : m_picture(picture) {}

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override;
    STDMETHODIMP Write(LPCOLESTR, VARIANT*) override { return E_NOTIMPL; }

private:
    ComPtr<IPictureDisp> m_picture;
};

class ShownImageButton {
public:
    static constexpr RECT kPlace{20, 20, 140, 52};
    static constexpr SIZE kSize{kPlace.right - kPlace.left, kPlace.bottom - kPlace.top};
    static constexpr POINT kMiddle{kSize.cx / 2, kSize.cy / 2};

    ShownImageButton(kit::Library const& library, ImageKind const& kind, IPictureDisp* picture);

    /// The interfaces of both classes have the same vtable.
    _qvImageCommand& control() const noexcept { return *m_button.get(); }
    HWND window() const noexcept { return m_buttonWindow; }

    /// With the real mouse.
    void enter(ImageLook look);
    BareImagePainter barePainter() const;
    BareImageLook bareLook(ImageLook look) const;

private:
    BareImage m_image;
    kit::HostWindow m_window{40, 40, 200, 100};
    Frame m_frame{m_window.handle()};
    SavedImageButton m_saved;
    ComPtr<IClassFactory> m_factory;
    Hosted m_hosted;
    ComPtr<_qvImageCommand> m_button;
    HWND m_buttonWindow = nullptr;
};

} // namespace quillet::bench
