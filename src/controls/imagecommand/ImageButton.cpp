// A button with a picture: how it begins, loads and saves.
#include "controls/imagecommand/ImageButton.h"

#include "saving/StandardPicture.h"
#include "typelib/DispatchIds.h"

namespace quillet {

ImageButton::ImageButton(ImageButtonKind const& kind, IUnknown* outer)
    : CommandButton(kind.controlClass, outer), m_kind(kind)
{
    // A container may leave out both loading and initialising. The container's font comes with its site.
    properties().setPlainDefaults(*this);
}

void ImageButton::onInitProperties()
{
    setFont(container().ambientFont());
    properties().setDefaults(*this, PropertyTable::Part::Through, dispid::imageButton::ShowFocusRectangle);
    ignoringErrors([&] { repaint(); });
    properties().setDefaults(*this, PropertyTable::Part::After, dispid::imageButton::ShowFocusRectangle);
    for (auto const image :
         {&ImageLooks::image, &ImageLooks::disabledImage, &ImageLooks::hotImage, &ImageLooks::pressedImage})
        m_looks.*image = emptyPicture();
}

void ImageButton::onReadProperties(PropertyBag& bag)
{
    properties().read(*this, bag);
    toolTip().CreateToolTip(window().existing());
    ignoringErrors([&] { repaint(); }); // what cannot be painted is loaded all the same
}

void ImageButton::onWriteProperties(PropertyBag& bag) { properties().write(*this, bag); }

} // namespace quillet
