// Identifiers of the component's resources; the resource script reads this too.
#pragma once

#define QV_TOOLBOX_FLAT_COMMAND 101
#define QV_TOOLBOX_IMAGE_COMMAND 102
#define QV_TOOLBOX_TOOL_BUTTON 103
#define QV_TOOLBOX_FLAT_OPTION 104
#define QV_TOOLBOX_FLAT_CHECK 105
