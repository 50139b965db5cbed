#include "plattform/linux/fenstersystem_linux.hpp"

#include "plattform/linux/schreibtisch.hpp"

namespace tonkartei {

using protokoll::Anfrage;
using protokoll::Art;

std::optional<std::int32_t> Fenstersystem_Linux::SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w,
                                                              std::int64_t l) {
    Anfrage anfrage;
    anfrage.Art = Art::Nachricht;
    anfrage.Nachricht = nachricht;
    anfrage.w = w;
    anfrage.l = l;
    if (const auto antwort = leitungen_.fragen(fenster, anfrage)) return antwort->Antwort.Ergebnis;
    if (leitungen_.da(fenster)) return std::nullopt;  // it owes the answer
    return 0;
}

Hwnd Fenstersystem_Linux::FindWindowA(const Text& klasse) {
    leitungen_.schauen();
    Hwnd fenster = leitungen_.nächstes(0);
    while (fenster != 0 && leitungen_.Klasse(fenster) != klasse) fenster = leitungen_.nächstes(fenster);
    return fenster;
}

Hwnd Fenstersystem_Linux::GetWindow(Hwnd fenster, std::uint32_t art) {
    if (art == GW_CHILD && fenster == schreibtisch::Griff) {
        leitungen_.schauen();
        return leitungen_.nächstes(0);
    }
    return art == GW_HWNDNEXT && fenster != 0 ? leitungen_.nächstes(fenster) : 0;
}

Text Fenstersystem_Linux::GetClassNameA(Hwnd fenster) { return leitungen_.Klasse(fenster).value_or(Text()); }

Hwnd Fenstersystem_Linux::GetDesktopWindow() { return schreibtisch::Griff; }

bool Fenstersystem_Linux::SetWindowPos(Hwnd fenster, Hwnd, int x, int y, int breite, int höhe, std::uint32_t flags) {
    Anfrage anfrage;
    anfrage.Art = Art::Lage_setzen;
    anfrage.w = static_cast<std::int32_t>(flags);
    anfrage.Werte[0] = x;
    anfrage.Werte[1] = y;
    anfrage.Werte[2] = breite;
    anfrage.Werte[3] = höhe;
    return leitungen_.fragen(fenster, anfrage).has_value();
}

bool Fenstersystem_Linux::GetWindowRect(Hwnd fenster, Rechteck& ergebnis) {
    Anfrage anfrage;
    anfrage.Art = Art::Lage_lesen;
    const auto antwort = leitungen_.fragen(fenster, anfrage);
    if (!antwort) return false;
    const auto& w = antwort->Antwort.Werte;
    ergebnis = {w[0], w[1], w[2], w[3]};
    return true;
}

Hwnd Fenstersystem_Linux::SetParent(Hwnd fenster, Hwnd neuer_Elter) {
    Anfrage anfrage;
    anfrage.Art = Art::Elter_setzen;
    anfrage.w = neuer_Elter;
    const auto antwort = leitungen_.fragen(fenster, anfrage);
    return antwort ? antwort->Antwort.Ergebnis : 0;
}

std::int32_t Fenstersystem_Linux::SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) {
    Anfrage anfrage;
    anfrage.Art = Art::Fensterwert_setzen;
    anfrage.Nachricht = static_cast<std::uint32_t>(stelle);
    anfrage.w = wert;
    const auto antwort = leitungen_.fragen(fenster, anfrage);
    return antwort ? antwort->Antwort.Ergebnis : 0;
}

std::optional<Fenstersystem_Linux::Spielerzustand> Fenstersystem_Linux::Zustand(Hwnd fenster) {
    Anfrage anfrage;
    anfrage.Art = Art::Auskunft;
    const auto antwort = leitungen_.fragen(fenster, anfrage);
    if (!antwort) return std::nullopt;
    const auto& w = antwort->Antwort.Werte;
    return Spielerzustand{.sichtbar = w[protokoll::Wert_sichtbar] != 0,
                          .Lautstärke = w[protokoll::Wert_Lautstärke],
                          .Status = w[protokoll::Wert_Status],
                          .Position = w[protokoll::Wert_Position],
                          .Länge = w[protokoll::Wert_Länge],
                          .Datei = antwort->Anhang};
}

bool Fenstersystem_Linux::Dateien_übergeben(Hwnd fenster, const std::vector<Text>& dateien) {
    Anfrage anfrage;
    anfrage.Art = Art::Dateien_ersetzen;
    std::string anhang;
    for (std::size_t i = 0; i < dateien.size(); ++i) {
        if (dateien[i].size() <= protokoll::Höchstlänge_Pfad) (anhang += dateien[i]) += '\0';
        const bool letzte = i + 1 == dateien.size();
        const bool voll = anhang.size() + sizeof(Anfrage) + protokoll::Höchstlänge_Pfad + 1 > protokoll::Höchstlänge_Anfrage;
        if (!letzte && !voll) continue;
        if (!leitungen_.fragen(fenster, anfrage, anhang)) return false;
        anfrage.Art = Art::Dateien_anhängen;
        anhang.clear();
    }
    return true;
}

}  // namespace tonkartei
