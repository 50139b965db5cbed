#include "bediener/bediener.hpp"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <thread>

namespace tonkartei {
namespace {

using nlohmann::json;

// The JSON library knows no lone surrogates, so they move to a private area of their own: U+DCxx becomes U+F7xx.
std::string ohne_Ersatzzeichen(std::string zeile) {
    for (std::size_t i = 0; i + 5 < zeile.size(); ++i) {
        if (zeile[i] != '\\') continue;
        if (zeile.compare(i, 4, "\\udc") == 0) zeile.replace(i, 4, "\\uf7");
        ++i;
    }
    return zeile;
}

std::vector<std::string> Aufruf(const Bediener::Optionen& o) {
    std::vector<std::string> a{o.programm.empty() ? TONKARTEI_BEDIENER : o.programm};
    const auto mit = [&a](const char* name, const std::string& wert) {
        if (wert.empty()) return;
        a.emplace_back(name);
        a.push_back(wert);
    };
    mit("--wurzel", o.wurzel);
    mit("--parameter", o.parameter);
    for (const std::string& setze : o.setze) mit("--setze", setze);
    mit("--ordner", o.ordner);
    mit("--maschine", o.maschine);
    mit("--ansicht", o.ansicht);
    mit("--uhr", o.uhr);
    if (o.zweite_Instanz) a.emplace_back("--zweite-instanz");
    return a;
}

}  // namespace

Bediener::Bediener(const Optionen& optionen) : frist_(optionen.Frist), prozess_(Aufruf(optionen), optionen.umgebung) {
    Antworten_lesen();
}

Bediener::~Bediener() = default;

const Bediener::Antworten& Bediener::operator()(const std::string& zeile) {
    prozess_.schreiben(zeile + "\n");
    Antworten_lesen();
    return antworten_;
}

bool Bediener::Zeile_lesen(std::string& zeile) {
    const auto ende_der_Frist = std::chrono::steady_clock::now() + std::chrono::seconds(frist_);
    std::size_t ende = 0;
    while ((ende = puffer_.find('\n')) == std::string::npos) {
        const auto rest =
            std::chrono::duration_cast<std::chrono::milliseconds>(ende_der_Frist - std::chrono::steady_clock::now());
        switch (prozess_.lesen(puffer_, static_cast<int>(std::max<std::int64_t>(rest.count(), 0)))) {
            case Kindprozess::Lage::gelesen: break;
            case Kindprozess::Lage::Ende: return false;
            case Kindprozess::Lage::Zeit_um: prozess_.beenden(); throw std::runtime_error("no reply within the time limit");
        }
    }
    zeile = puffer_.substr(0, ende);
    puffer_.erase(0, ende + 1);
    return true;
}

void Bediener::Antworten_lesen() {
    antworten_.clear();
    std::string zeile;
    while (Zeile_lesen(zeile)) {
        antworten_.push_back(json::parse(ohne_Ersatzzeichen(zeile)));
        if (antworten_.back().contains("bereit")) return;
    }
}

std::string Bediener::zuletzt(const char* schlüssel) const {
    return antworten_.empty() ? std::string() : antworten_.back().value(schlüssel, std::string());
}

json Bediener::ereignis(const std::string& art) const {
    json letztes;
    for (const json& antwort : antworten_)
        if (antwort.value("ereignis", std::string()) == art) letztes = antwort;
    return letztes;
}

std::string Bediener::meldung() const {
    const json feld = ereignis("meldung");
    return feld.is_null() ? std::string() : feld["text"].get<std::string>();
}

json Bediener::schau(const std::string& zeile, const std::string& schlüssel) {
    const Antworten vorher = antworten_;
    (*this)(zeile);
    for (const json& antwort : antworten_) {
        if (!antwort.contains(schlüssel)) continue;
        json ergebnis = antwort;
        antworten_ = vorher;  // a look does not hide what the last command did
        return ergebnis;
    }
    throw std::runtime_error(zeile + ": " + (fehler().empty() ? "no answer" : fehler()));
}

json Bediener::zeige(const std::string& name) { return schau("zeige " + name, "element"); }

std::string Bediener::text(const std::string& name) { return zeige(name).value("text", std::string()); }

std::vector<std::string> Bediener::zeilen(const std::string& name) {
    return zeige(name).at("zeilen").get<std::vector<std::string>>();
}

json Bediener::fenster(const std::string& name) {
    const json alle = schau("fenster", "fenster");
    for (const json& fenster : alle["fenster"])
        if (fenster["name"] == name) return fenster;
    return {};
}

json Bediener::protokoll(bool alles) { return schau(alles ? "protokoll alles" : "protokoll", "protokoll")["protokoll"]; }

json Bediener::registrierung() { return schau("registrierung", "registrierung")["registrierung"]; }

json Bediener::spieler() { return schau("spieler", "spieler")["spieler"]; }

int Bediener::Ende_abwarten() {
    const auto ende_der_Frist = std::chrono::steady_clock::now() + std::chrono::seconds(frist_);
    for (;;) {
        if (const auto status = prozess_.Status()) return *status;
        if (std::chrono::steady_clock::now() > ende_der_Frist) {
            prozess_.beenden();
            throw std::runtime_error("it does not end");
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

std::string Bediener::Pfadbytes(const std::string& text) {
    std::string ergebnis;
    for (std::size_t i = 0; i < text.size(); ++i) {
        // U+F780 to U+F7FF: EF 9E 80 to EF 9F BF.
        if (text.compare(i, 1, "\xEF") == 0 && i + 2 < text.size() && (text[i + 1] == '\x9E' || text[i + 1] == '\x9F')) {
            const unsigned unten = static_cast<unsigned char>(text[i + 2]) & 0x3FU;
            ergebnis += static_cast<char>((text[i + 1] == '\x9E' ? 0x80U : 0xC0U) + unten);
            i += 2;
        } else {
            ergebnis += text[i];
        }
    }
    return ergebnis;
}

std::string Bediener::zitiert(const std::string& text) {
    std::string ergebnis = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') ergebnis += '\\';
        if (c == '\n')
            ergebnis += "\\n";
        else if (c == '\r')
            ergebnis += "\\r";
        else
            ergebnis += c;
    }
    return ergebnis + '"';
}

}  // namespace tonkartei
