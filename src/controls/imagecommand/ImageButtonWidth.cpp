// The width of an image button that follows its picture and its caption.
#include "base/Checked.h"
#include "base/Handles.h"
#include "controls/button/Caption.h"
#include "controls/imagecommand/ImageButton.h"
#include "saving/StandardFont.h"
#include "saving/StandardPicture.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr long kCaptionSpace = 3; // pixels
constexpr long kPictureSpace = 2;

} // namespace

void ImageButton::onMeasure()
{
    if (!m_looks.autoSizeWidth)
        return;
    bool const pictured = !isEmptyPicture(m_looks.image.get());
    long pixels = m_looks.captionIndent;
    if (pictured) {
        m_image1.setPicture(m_looks.image.get());
        pixels = m_image1.size().cx;
    }
    std::wstring const shown = SplitCaption(m_looks.caption.view()).shown;
    // The wider of both fonts, so that checking the button does not change its width.
    long text = textWidth(*font(), shown);
    if (auto const checkedFont = query<IFont>(m_looks.checkedFont.get()))
        text = std::max(text, textWidth(*checkedFont.get(), shown));
    pixels = checkedAdd(pixels, text);
    if (!shown.empty())
        pixels = checkedAdd(pixels, kCaptionSpace);
    if (m_looks.borderStyle != 0)
        pixels = checkedAdd(pixels, 2 * m_looks.borderWidth);
    if (pictured)
        pixels = checkedAdd(pixels, kPictureSpace);
    setWidth(roundedToEven(pixels * twipsPerPixel().x));
}

} // namespace quillet
