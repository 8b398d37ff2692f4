// The access key that a caption names with an ampersand.
#include "gallery/intrinsic/Mnemonic.h"

#include "gallery/form/Names.h"

namespace quillet::gallery {

bool isMnemonic(std::wstring_view caption, wchar_t character) noexcept
{
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != L'&')
            continue;
        if (caption[i + 1] != L'&')
            return sameName(caption.substr(i + 1, 1), std::wstring_view(&character, 1));
        ++i;
    }
    return false;
}

} // namespace quillet::gallery
