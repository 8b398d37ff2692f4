// The classes that the component makes: one row each.
#include "shell/ClassTable.h"

#include "controls/flatcommand/Create.h"
#include "controls/imagecommand/Create.h"
#include "controls/optioncheck/Create.h"
#include "shell/ResourceIds.h"
#include "typelib/Texts.h"

namespace quillet {

namespace {

constexpr ClassRow kClasses[] = {
    {&flatCommandClass, &createFlatCommand, kQvFlatCommandText, QV_TOOLBOX_FLAT_COMMAND},
    {&flatToolButtonClass, &createFlatToolButton, kFlatToolButtonText, QV_TOOLBOX_TOOL_BUTTON},
    {&imageCommandClass, &createImageCommand, kQvImageCommandText, QV_TOOLBOX_IMAGE_COMMAND},
    {&flatOptionClass, &createFlatOption, kQvFlatOptionText, QV_TOOLBOX_FLAT_OPTION},
    {&flatCheckClass, &createFlatCheck, kQvFlatCheckText, QV_TOOLBOX_FLAT_CHECK},
};

} // namespace

std::span<ClassRow const> classTable() noexcept { return kClasses; }

ClassRow const* findClass(REFCLSID classId) noexcept
{
    for (ClassRow const& row : kClasses)
        if (row.controlClass().classId == classId)
            return &row;
    return nullptr;
}

} // namespace quillet
