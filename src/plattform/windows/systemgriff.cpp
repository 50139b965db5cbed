#include "plattform/windows/systemgriff.hpp"

#include "plattform/windows/winapi.hpp"

namespace tonkartei {

Systemgriff::Systemgriff(void* griff) noexcept : griff_(griff == INVALID_HANDLE_VALUE ? nullptr : griff) {}

bool Systemgriff::schließen() noexcept {
    void* griff = std::exchange(griff_, nullptr);
    return griff == nullptr || ::CloseHandle(griff) != 0;
}

}  // namespace tonkartei
