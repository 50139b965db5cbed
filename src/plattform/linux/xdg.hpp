// The folders of the user as the desktop conventions (XDG base directories) place them, all with trailing separator. Values
// of the environment that are no absolute paths count as unset.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

// $HOME, else the user's entry in the system's list of users.
Text Heimordner();
// tonkartei/ below $XDG_CONFIG_HOME, default ~/.config. Not created.
Text Einstellungsordner();
// $XDG_DATA_HOME, default ~/.local/share, and tonkartei/ below it. Not created.
Text Datenwurzel();
Text Datenordner();
// tonkartei/ below $XDG_RUNTIME_DIR, else tonkartei-UID/ below the temporary folder: private to the user and created when
// missing. When that cannot be had (another user sits on the name), the path is one below which nothing can be made, so that
// every use of it fails.
Text Laufzeitordner();

}  // namespace tonkartei
