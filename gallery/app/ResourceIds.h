// The gallery's resources, for the resource compiler, too.
#pragma once

#define GALLERY_ICON 1 // the first is the program's
#define GALLERY_BAR 2
#define GALLERY_BAR_PICTURES 3
