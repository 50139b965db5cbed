// The system's own header, for the files of this folder alone: its macros bear names that the seam gives to constants, so
// whatever is included must have been read before it.
#pragma once

#include "plattform/fenstersystem.hpp"
#include "plattform/registrierung.hpp"
#include "plattform/shell.hpp"

namespace tonkartei {

// By a name that stays.
inline constexpr Registrierung::Schlüssel Wurzelschlüssel = HKEY_CURRENT_USER;

}  // namespace tonkartei

#undef NOMINMAX
#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
