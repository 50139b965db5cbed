// A process with a window: fremdes_fenster CLASS [FILE [ARGUMENT...]]. Into the file go the arguments behind it, each with
// "|". Answers to 1024: with l 1 what w is and 1 more, with l 2 after w milliseconds.
#define UNICODE
#include <windows.h>

#include <shellapi.h>

namespace {

LRESULT CALLBACK antworten(HWND fenster, UINT nachricht, WPARAM w, LPARAM l) {
    if (nachricht == WM_DESTROY) ::PostQuitMessage(0);
    if (nachricht == WM_USER && l == 2) ::Sleep(static_cast<DWORD>(w));
    if (nachricht == WM_USER) return static_cast<LRESULT>(w) + 1;
    return ::DefWindowProcW(fenster, nachricht, w, l);
}

void schreiben(const wchar_t* datei, wchar_t** argumente, int anzahl) {
    const HANDLE griff = ::CreateFileW(datei, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    for (int i = 0; i < anzahl; ++i) {
        char bytes[2000];
        const int länge = ::WideCharToMultiByte(CP_UTF8, 0, argumente[i], -1, bytes, sizeof bytes, nullptr, nullptr);
        if (länge < 1) continue;
        bytes[länge - 1] = '|';
        DWORD egal = 0;
        ::WriteFile(griff, bytes, static_cast<DWORD>(länge), &egal, nullptr);
    }
    ::CloseHandle(griff);
}

}  // namespace

int main() {
    int anzahl = 0;
    wchar_t** argumente = ::CommandLineToArgvW(::GetCommandLineW(), &anzahl);
    if (anzahl < 2) return 1;
    if (anzahl > 2) schreiben(argumente[2], argumente + 3, anzahl - 3);
    WNDCLASSW klasse{};
    klasse.lpfnWndProc = &antworten;
    klasse.lpszClassName = argumente[1];
    ::RegisterClassW(&klasse);
    ::CreateWindowExW(0, argumente[1], L"", WS_OVERLAPPEDWINDOW, 60, 70, 300, 200, nullptr, nullptr, nullptr, nullptr);
    MSG nachricht;
    while (::GetMessageW(&nachricht, nullptr, 0, 0) > 0) ::DispatchMessageW(&nachricht);
    return 0;
}
