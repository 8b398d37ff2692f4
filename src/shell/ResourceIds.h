// Identifiers of the component's resources; the resource script reads this too.
#pragma once

#define QV_TOOLBOX_FLAT_COMMAND 101
#define QV_TOOLBOX_FLAT_OPTION 102
#define QV_TOOLBOX_FLAT_CHECK 103
