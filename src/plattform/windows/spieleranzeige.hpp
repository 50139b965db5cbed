// How a player of ours shows what no message tells: its file is the window's title, its volume a value on the window.
#pragma once

namespace tonkartei {

inline constexpr const wchar_t* Fensterwert_Lautstärke = L"Tonkartei.Lautstärke";  // and 1 more, since 0 is none

}  // namespace tonkartei
