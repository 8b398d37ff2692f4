// What may happen to a control's values between loading and saving.
#pragma once

#include "Input.h"
#include "gallery/form/FormTree.h"
#include "gallery/form/PropertyBag.h"

namespace quillet::fuzz {

using Bag = ComPtr<gallery::PropertyBag>;

/// What a control saves that was loaded from the bag and not changed: objects, texts, flags and whole
/// numbers.
Bag asSaved(gallery::PropertyBag const& loaded);

/// The bag with some values changed, taken away and added, as the input says; the same without input. A text
/// has only characters that the form's coding can write.
Bag changed(gallery::PropertyBag const& saved, Input& input, gallery::FormCoding coding);

/// Whether a value is the same after it was written into a form and read again, in whatever type a form has
/// it.
bool areSame(Variant const& written, Variant const& read);

} // namespace quillet::fuzz
