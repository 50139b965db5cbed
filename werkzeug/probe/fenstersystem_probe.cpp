#include "probe/fenstersystem_probe.hpp"

#include <algorithm>
#include <utility>

namespace tonkartei {
namespace {

constexpr Hwnd Schreibtisch = 0x10000;
constexpr int Wickelschritt = 5000;
constexpr int übliche_Länge = 180;
const Text Programmname = "WinAmp.Exe";

// Arguments as Windows splits them: blanks separate, double quotes group and go.
std::vector<Text> Argumente(const Text& text) {
    std::vector<Text> ergebnis;
    bool in_Zeichen = false, offen = false;
    for (const char c : text) {
        if (c == ' ' && !in_Zeichen) {
            offen = false;
            continue;
        }
        if (!offen) ergebnis.emplace_back();
        offen = true;
        if (c == '"')
            in_Zeichen = !in_Zeichen;
        else
            ergebnis.back() += c;
    }
    return ergebnis;
}

}  // namespace

void Fenstersystem_Probe::Prozess_gestartet(const Text& befehl) {
    const std::size_t stelle = befehl.find(Programmname);
    if (stelle == Text::npos) return;
    Text klasse = "Winamp v1.x", datei;
    bool neu = false;
    for (const Text& argument : Argumente(befehl.substr(stelle + Programmname.size()))) {
        if (argument.starts_with("/CLASS="))
            klasse = argument.substr(7);
        else if (argument == "/NEW")
            neu = true;
        else
            datei = argument;
    }
    const auto vorhandene = von_Klasse(klasse);
    Spieler& spieler = neu || vorhandene.empty() ? neues_Fenster(klasse) : *vorhandene.front();
    if (datei.empty()) return;
    spieler.Datei = datei;
    spieler.Status = 1;
    spieler.Position = 0;
    spieler.Länge = übliche_Länge;
}

Fenstersystem_Probe::Spieler& Fenstersystem_Probe::neues_Fenster(const Text& klasse) {
    auto spieler = std::make_unique<Spieler>();
    spieler->Griff = nächster_Griff_++;
    spieler->Elter = Schreibtisch;
    spieler->Klasse = klasse;
    const auto gemerkt = lautstärken_.find(klasse);
    if (gemerkt != lautstärken_.end()) spieler->Lautstärke = gemerkt->second;
    spieler_.push_back(std::move(spieler));
    return *spieler_.back();
}

bool Fenstersystem_Probe::Fenster_stirbt(const Text& klasse) {
    const auto alle = von_Klasse(klasse);
    if (alle.empty()) return false;
    schließen(*alle.back());
    return true;
}

void Fenstersystem_Probe::schließen(const Spieler& spieler) {
    std::erase_if(spieler_, [&](const auto& s) { return s.get() == &spieler; });
}

std::vector<Fenstersystem_Probe::Spieler*> Fenstersystem_Probe::von_Klasse(const Text& klasse) {
    std::vector<Spieler*> ergebnis;
    for (const auto& s : spieler_)
        if (s->Klasse == klasse) ergebnis.push_back(s.get());
    return ergebnis;
}

Fenstersystem_Probe::Spieler* Fenstersystem_Probe::suchen(Hwnd fenster) {
    for (const auto& s : spieler_)
        if (s->Griff == fenster) return s.get();
    return nullptr;
}

std::optional<std::int32_t> Fenstersystem_Probe::SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w,
                                                              std::int64_t l) {
    Spieler* spieler = suchen(fenster);
    if (spieler == nullptr) return 0;
    if (spieler->hängt) return std::nullopt;
    switch (nachricht) {
        case WM_CLOSE: schließen(*spieler); return 0;
        case WM_COMMAND: befehlen(*spieler, w); return 0;
        case WM_USER: {
            const std::int32_t antwort = antworten(*spieler, w, l);
            lautstärken_[spieler->Klasse] = spieler->Lautstärke;
            return antwort;
        }
        default: return 0;
    }
}

std::int32_t Fenstersystem_Probe::antworten(Spieler& spieler, std::int32_t w, std::int64_t l) {
    switch (l) {
        case 104: return spieler.Status;
        case 105: return w == 1 ? spieler.Länge : spieler.Position;
        case 106: spieler.Position = std::clamp(w, 0, std::max(0, spieler.Länge * 1000)); return 0;
        case 122: spieler.Lautstärke = std::clamp(w, 0, 255); return 0;
        default: return 0;
    }
}

void Fenstersystem_Probe::befehlen(Spieler& spieler, std::int32_t code) {
    const auto wickeln = [&](int ms) {
        if (spieler.Status != 0) spieler.Position = std::clamp(spieler.Position + ms, 0, std::max(0, spieler.Länge * 1000));
    };
    switch (code) {
        case 40045:
            if (spieler.Status != 3) spieler.Position = 0;
            spieler.Status = 1;
            break;
        case 40046:
            if (spieler.Status != 0) spieler.Status = spieler.Status == 1 ? 3 : 1;
            break;
        case 40047:
            spieler.Status = 0;
            spieler.Position = 0;
            break;
        case 40144: wickeln(-Wickelschritt); break;
        case 40148: wickeln(Wickelschritt); break;
        default: break;
    }
}

Hwnd Fenstersystem_Probe::FindWindowA(const Text& klasse) {
    for (const auto& s : spieler_)
        if (s->Klasse == klasse && s->Elter == Schreibtisch) return s->Griff;
    return 0;
}

Hwnd Fenstersystem_Probe::GetWindow(Hwnd fenster, std::uint32_t art) {
    if (art == GW_CHILD) {
        for (const auto& s : spieler_)
            if (s->Elter == fenster) return s->Griff;
        return 0;
    }
    if (art != GW_HWNDNEXT) return 0;
    bool gefunden = false;
    const Spieler* hier = suchen(fenster);
    for (const auto& s : spieler_) {
        if (gefunden && s->Elter == hier->Elter) return s->Griff;
        if (s.get() == hier) gefunden = true;
    }
    return 0;
}

Text Fenstersystem_Probe::GetClassNameA(Hwnd fenster) {
    const Spieler* spieler = suchen(fenster);
    return spieler == nullptr ? Text{} : spieler->Klasse;
}

Hwnd Fenstersystem_Probe::GetDesktopWindow() { return Schreibtisch; }

bool Fenstersystem_Probe::SetWindowPos(Hwnd fenster, Hwnd, int x, int y, int breite, int höhe, std::uint32_t flags) {
    Spieler* spieler = suchen(fenster);
    if (spieler == nullptr) return false;
    Rechteck& platz = spieler->Platz;
    if ((flags & SWP_NOMOVE) == 0) platz = {x, y, x + platz.rechts - platz.links, y + platz.unten - platz.oben};
    if ((flags & SWP_NOSIZE) == 0) {
        platz.rechts = platz.links + breite;
        platz.unten = platz.oben + höhe;
    }
    if ((flags & SWP_SHOWWINDOW) != 0) spieler->sichtbar = true;
    if ((flags & SWP_HIDEWINDOW) != 0) spieler->sichtbar = false;
    return true;
}

bool Fenstersystem_Probe::GetWindowRect(Hwnd fenster, Rechteck& ergebnis) {
    if (fenster == Schreibtisch) {
        ergebnis = {0, 0, 1280, 1024};
        return true;
    }
    const Spieler* spieler = suchen(fenster);
    if (spieler == nullptr) return false;
    ergebnis = spieler->Platz;
    return true;
}

Hwnd Fenstersystem_Probe::SetParent(Hwnd fenster, Hwnd neuer_Elter) {
    Spieler* spieler = suchen(fenster);
    if (spieler == nullptr) return 0;
    return std::exchange(spieler->Elter, neuer_Elter == 0 ? Schreibtisch : neuer_Elter);
}

std::int32_t Fenstersystem_Probe::SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) {
    Spieler* spieler = suchen(fenster);
    return spieler == nullptr ? 0 : std::exchange(spieler->Fensterwerte[stelle], wert);
}

}  // namespace tonkartei
