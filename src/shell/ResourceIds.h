// Identifiers of the component's resources; the resource script reads this too.
#pragma once

#define QV_TOOLBOX_FLAT_COMMAND 101
