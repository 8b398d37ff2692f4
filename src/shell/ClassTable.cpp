// The classes that the component makes: one row each.
#include "shell/ClassTable.h"

#include "controls/flatcommand/qvFlatCommand.h"
#include "controls/imagecommand/ImageButton.h"
#include "controls/optioncheck/qvFlatCheck.h"
#include "controls/optioncheck/qvFlatOption.h"
#include "shell/ResourceIds.h"
#include "typelib/Texts.h"

namespace quillet {

namespace {

constexpr ClassRow kClasses[] = {
    {qvFlatCommand::kClass, kQvFlatCommandText, QV_TOOLBOX_FLAT_COMMAND},
    {kFlatToolButton.controlClass, kFlatToolButtonText, QV_TOOLBOX_TOOL_BUTTON},
    {kImageCommand.controlClass, kQvImageCommandText, QV_TOOLBOX_IMAGE_COMMAND},
    {qvFlatOption::kClass, kQvFlatOptionText, QV_TOOLBOX_FLAT_OPTION},
    {qvFlatCheck::kClass, kQvFlatCheckText, QV_TOOLBOX_FLAT_CHECK},
};

} // namespace

std::span<ClassRow const> classTable() noexcept { return kClasses; }

ClassRow const* findClass(REFCLSID classId) noexcept
{
    for (ClassRow const& row : kClasses)
        if (row.controlClass.classId == classId)
            return &row;
    return nullptr;
}

} // namespace quillet
