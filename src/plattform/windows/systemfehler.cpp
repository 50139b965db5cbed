#include "plattform/windows/systemfehler.hpp"

#include "plattform/windows/winapi.hpp"

namespace tonkartei {
namespace {

constexpr unsigned long Kontingent_erschöpft = 1295;  // not in every version of the system's header

}  // namespace

int Fehlernummer(unsigned long fehler, int verweigert) {
    switch (fehler) {
        case ERROR_FILE_NOT_FOUND: return 53;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_NOT_READY:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_DIRECTORY: return 76;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS: return 58;
        case ERROR_NOT_SAME_DEVICE: return 74;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case Kontingent_erschöpft:
        case ERROR_FILE_TOO_LARGE: return 61;
        case ERROR_TOO_MANY_OPEN_FILES: return 67;
        case ERROR_ACCESS_DENIED:
        case ERROR_PRIVILEGE_NOT_HELD: return verweigert;
        case ERROR_WRITE_PROTECT:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_DELETE_PENDING:
        case ERROR_USER_MAPPED_FILE:
        case ERROR_BUSY: return 70;
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_DIR_NOT_EMPTY:
        case ERROR_CANT_RESOLVE_FILENAME:
        case ERROR_INVALID_PARAMETER: return 75;
        default: return 57;
    }
}

void werfen(unsigned long fehler, const Text& pfad, int verweigert) {
    throw Dateifehler(Fehlernummer(fehler, verweigert), pfad);
}

void werfen_letzten(const Text& pfad, int verweigert) { werfen(::GetLastError(), pfad, verweigert); }

}  // namespace tonkartei
