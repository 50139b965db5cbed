// The bus of the user's session.
#pragma once

namespace tonkartei {

// Whether there is one to be reached. Asking for a connection without one could start a bus of its own.
bool Sitzungsbus_da();

}  // namespace tonkartei
