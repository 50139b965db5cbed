#include "plattform/windows/endesignale.hpp"

#include <atomic>

#include "plattform/windows/winapi.hpp"

namespace tonkartei {
namespace {

constexpr wchar_t Klasse[] = L"Tonkartei-Ende";
constexpr DWORD Gnadenfrist = 5000;  // the system ends the process earlier

// The system calls back without a word of our own: where the process is told to end, on a thread of the system's.
std::atomic<HWND> Empfänger{nullptr};

BOOL WINAPI gerufen(DWORD) {
    const HWND fenster = Empfänger;
    if (fenster == nullptr || ::PostMessageW(fenster, WM_APP, 0, 0) == 0) return FALSE;
    // Once we answer, a console that closes takes the process with it.
    ::Sleep(Gnadenfrist);
    return TRUE;
}

LRESULT CALLBACK empfangen(HWND fenster, UINT nachricht, WPARAM w, LPARAM l) {
    if (nachricht != WM_APP) return ::DefWindowProcW(fenster, nachricht, w, l);
    reinterpret_cast<const Endesignale*>(::GetWindowLongPtrW(fenster, GWLP_USERDATA))->gekommen();
    return 0;
}

}  // namespace

Endesignale::Endesignale() {
    WNDCLASSW klasse{};
    klasse.lpfnWndProc = &empfangen;
    klasse.hInstance = ::GetModuleHandleW(nullptr);
    klasse.lpszClassName = Klasse;
    ::RegisterClassW(&klasse);
    const HWND fenster = ::CreateWindowExW(0, Klasse, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, klasse.hInstance, nullptr);
    fenster_ = fenster;
    if (fenster == nullptr) return;
    ::SetWindowLongPtrW(fenster, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    Empfänger = fenster;
    ::SetConsoleCtrlHandler(&gerufen, TRUE);
}

Endesignale::~Endesignale() {
    if (fenster_ == nullptr) return;
    ::SetConsoleCtrlHandler(&gerufen, FALSE);
    Empfänger = nullptr;
    ::DestroyWindow(static_cast<HWND>(fenster_));
}

}  // namespace tonkartei
