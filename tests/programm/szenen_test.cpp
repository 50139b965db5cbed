// Plays the transcripts: each scene on a scratch folder of its own, each line compared exactly.
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <iomanip>
#include <sstream>

#include "programm/buehne.hpp"
#include "programm/szene.hpp"

namespace tonkartei {
namespace {

std::string verbunden(const Zeilen& teile, const std::string& mitte = " / ") {
    std::string text;
    for (std::size_t i = 0; i < teile.size(); ++i) text += (i > 0 ? mitte : "") + teile[i];
    return text;
}

Zeilen geteilt(const std::string& text, const std::string& mitte) {
    Zeilen teile;
    for (std::size_t von = 0; von <= text.size();) {
        const std::size_t bis = std::min(text.find(mitte, von), text.size());
        teile.push_back(text.substr(von, bis - von));
        von = bis + mitte.size();
    }
    return teile;
}

// Line breaks and what cannot be read, as a transcript has them.
std::string lesbar(const std::string& text) {
    std::string ergebnis;
    for (const char c : text) {
        char folge[5];
        std::snprintf(folge, sizeof folge, "\\x%02X", static_cast<unsigned char>(c));
        ergebnis += c == '\n' ? "\\n" : (c >= 0 && c < ' ') || c == 127 ? std::string(folge) : std::string(1, c);
    }
    return ergebnis;
}

// The lines of a file in the old code page; one that no CR LF ends has a "\" behind it.
Zeilen Dateizeilen(const std::string& bytes) {
    Zeilen zeilen = geteilt(bytes, "\r\n");
    for (auto& zeile : zeilen) {
        std::string utf8;
        for (const char c : lesbar(zeile)) {
            const auto u = static_cast<unsigned char>(c);
            utf8 += u < 0x80 ? std::string(1, c) : std::string{char(0xC0 | (u >> 6)), char(0x80 | (u & 0x3F))};
        }
        zeile = utf8;
    }
    if (zeilen.back().empty())
        zeilen.pop_back();
    else
        zeilen.back() += "\\";
    return zeilen;
}

// The other way round.
std::string Dateibytes(const Zeilen& zeilen) {
    std::string bytes;
    for (std::string zeile : zeilen) {
        const bool offen = zeile.ends_with("\\");
        if (offen) zeile.pop_back();
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            const auto u = static_cast<unsigned char>(zeile[i]);
            if (zeile.compare(i, 2, "\\x") == 0) {
                bytes += static_cast<char>(std::stoi(zeile.substr(i + 2, 2), nullptr, 16));
                i += 3;
            } else if (u == 0xC2 || u == 0xC3) {
                bytes += static_cast<char>((u & 3) << 6 | (zeile[++i] & 0x3F));
            } else {
                bytes += zeile[i];
            }
        }
        if (!offen) bytes += "\r\n";
    }
    return bytes;
}

std::string Wort(const nlohmann::json& wert) {
    if (wert.is_null()) return "-";
    if (wert.is_boolean()) return wert.get<bool>() ? "ja" : "nein";
    if (wert.is_string()) return lesbar(wert);
    return wert.is_array() ? verbunden(wert.get<Zeilen>()) : wert.dump();
}

class Szenenlauf : public Bühne {
public:
    explicit Szenenlauf(const Szene& szene) : szene_(szene) {}

    void TestBody() override {
        for (const Schritt& schritt : szene_.schritte) {
            Zeilen erwartet = schritt.danach;
            for (auto& zeile : erwartet) zeile = ersetzt(zeile);
            Zeilen block = schritt.block;
            for (auto& zeile : block) zeile = ersetzt(zeile);
            const std::string text = ersetzt(schritt.text);
            Zeilen wirklich;
            try {
                if (schritt.art == '?') {
                    const auto stelle = text.find(": ");
                    const std::string frage = text.substr(0, std::min(stelle, text.size() - text.ends_with(":")));
                    if (text.starts_with("sammlung "))
                        erwartet = Dateizeilen(Sammlung_aus(geteilt(text, "; "), block).bytes());
                    else
                        erwartet = block.empty() ? Zeilen{stelle > text.size() ? "" : text.substr(stelle + 2)} : block;
                    wirklich = Blick(frage, !block.empty());
                } else {
                    if (schritt.art == '>')
                        hand(text);
                    else
                        stellen(text, block);
                    wirklich = neues(schritt, erwartet);
                }
            } catch (const std::filesystem::filesystem_error& fehler) {
                if (fehler.code() == std::errc::function_not_supported) GTEST_SKIP() << "no symbolic links here";
                wirklich = {std::string("exception: ") + fehler.what()};
            } catch (const std::exception& fehler) {
                wirklich = {std::string("exception: ") + fehler.what()};
            }
            if (wirklich != erwartet)
                ADD_FAILURE_AT(szene_.datei.c_str(), schritt.zeile)
                    << szene_.name << "\n  " << schritt.art << " " << text << "\nexpected:\n  "
                    << verbunden(erwartet, "\n  ") << "\ngot:\n  " << verbunden(wirklich, "\n  ");
        }
    }

private:
    // "{name/}" is a path below the scratch folder, "{}" that folder.
    std::string ersetzt(std::string text) const {
        for (auto von = text.find('{'); von != std::string::npos; von = text.find('{', von)) {
            const auto bis = text.find('}', von);
            if (bis == std::string::npos) break;
            text.replace(von, bis - von + 1, ordner.pfad(text.substr(von + 1, bis - von - 1)));
        }
        return text;
    }
    // What was said since the last step, and where the program waits now if that is another window than before.
    Zeilen neues(const Schritt& schritt, const Zeilen& erwartet) {
        Zeilen alles = geschehen();
        for (auto& zeile : alles) {
            zeile = lesbar(zeile);
            if (zeile.starts_with("FEHLER ") && erwartet == Zeilen{"FEHLER"}) zeile = "FEHLER";
        }
        if (schritt.art == '!' && erwartet.empty()) std::erase(alles, "Fortschritt | Datenbank laden...");
        if (b == nullptr) return alles;
        const std::string bereit = b->bereit();
        const std::string ort = bereit == "schleife"  ? "[schleife]"
                                : bereit == "fenster" ? "[" + b->bereit_name() + "]"
                                                      : "";
        if (!ort.empty() && ort != ort_) alles.push_back(ort_ = ort);
        if (bereit.empty() || bereit == "hängt") alles.push_back("[" + bereit + "]");
        return alles;
    }
    static Sammlung Sammlung_aus(const Zeilen& wahl, const Zeilen& block) {
        Sammlung s;
        if (!block.empty()) s.Lieder.clear();
        for (const auto& eintrag : wahl) {
            const std::string wert = eintrag.substr(eintrag.find('=') + 1);
            if (eintrag == "Standard") s.Standard = true;
            if (eintrag == "leer" || s.Standard) s.Lieder.clear();
            if (eintrag.starts_with("Titel=")) s.Titel = wert;
            if (eintrag.starts_with("Version=")) s.Version = wert;
            if (eintrag.starts_with("Kategorien=")) s.Kategorien = geteilt(wert, ",");
            if (eintrag.starts_with("Schemas=")) s.Schemas = std::stoi(wert);
            if (eintrag.starts_with("Grenze=")) s.Grenze = std::stoi(wert);
        }
        for (const auto& zeile : block) {
            Zeilen f = geteilt(zeile, "; ");
            const Zeilen vorgabe{"", "", "0", "100", "2", "0:3:20"};
            f.insert(f.end(), vorgabe.begin() + static_cast<long>(f.size()), vorgabe.end());
            const Zeilen zeit = geteilt(f[5], ":");
            s.Lieder.push_back(
                {f[0], f[1], std::stoi(f[2]), std::stoi(f[3]), std::stoi(f[4]), zeit.at(0), zeit.at(1), zeit.at(2)});
        }
        return s;
    }
    void stellen(const std::string& text, const Zeilen& block) {
        const Zeilen worte = geteilt(text, " "), felder = geteilt(text, "; ");
        const std::string& was = worte[0];
        const std::string wo = felder[0].substr(std::min(was.size() + 1, felder[0].size()));
        const std::string pfad = ordner.pfad(wo);
        if (was == "datei" || was == "lied" || was == "sammlung")
            std::filesystem::create_directories(was == "sammlung" ? std::filesystem::path(pfad)
                                                                  : std::filesystem::path(pfad).parent_path());
        if (was == "start") {
            starten_mit({worte.begin() + 1, worte.end()}, block);
        } else if (was == "sammlung") {
            sammlung(wo, Sammlung_aus(felder, block));
        } else if (was == "lieder") {
            std::vector<int> zahlen, ohne;
            for (std::size_t i = 1; i < worte.size(); ++i) (i == 1 ? zahlen : ohne).push_back(std::atoi(worte[i].c_str()));
            lege(zahlen[0], ohne);
        } else if (was == "datei") {
            ordner.datei(wo, Dateibytes(block));
        } else if (was == "lied") {  // path; artist; title; KByte
            const std::string artist = Dateibytes({felder.at(1) + "\\"}), titel = Dateibytes({felder.at(2) + "\\"});
            const std::size_t kbyte = felder.size() > 3 ? std::stoul(felder[3]) : 2;
            ordner.datei(wo, std::string(kbyte * 1024 - 128, 'x') + Tag_Bytes{.Titel = titel, .Artist = artist}.Block());
        } else if (was == "ordner") {
            ordner.ordner(wo);
        } else if (was == "verweis") {  // path; where it leads
            std::filesystem::create_symlink(felder.at(1), pfad);
        } else if (was == "weg") {
            std::filesystem::remove_all(pfad);
        } else if (was == "zeit") {  // path; moment
            std::tm t{};
            std::istringstream(felder.at(1)) >> std::get_time(&t, "%Y-%m-%d %H:%M:%S");
            t.tm_isdst = -1;
            const auto zeit = std::chrono::system_clock::from_time_t(std::mktime(&t));
            std::filesystem::last_write_time(pfad, std::chrono::file_clock::from_sys(zeit));
        } else if (was == "wähle") {
            wähle(std::stoi(wo));
        } else if (was == "ende") {
            EXPECT_EQ(b->Ende_abwarten(), std::atoi(wo.c_str())) << szene_.name;
        } else {
            throw std::runtime_error("no such setting");
        }
    }
    void starten_mit(const Zeilen& namen, const Zeilen& block) {
        Bediener::Optionen o;
        Zeilen pfade;
        for (const auto& name : namen) pfade.push_back(ordner.pfad(name + "/"));
        if (!pfade.empty()) o.setze = zuletzt(pfade);
        for (const auto& zeile : block) {
            const std::string wert = zeile.substr(std::min(zeile.find(' ') + 1, zeile.size()));
            if (zeile.starts_with("--setze ")) o.setze.push_back(wert);
            if (zeile.starts_with("--parameter ")) o.parameter = wert;
            if (zeile.starts_with("--uhr ")) o.uhr = wert;
            if (zeile == "--zweite-instanz") o.zweite_Instanz = true;
        }
        ort_ = "[schleife]";
        starten(o);
    }
    // What has gone out since the last look: starts, messages with both parameters, pauses.
    std::string gesendet() {
        Zeilen z;
        for (const auto& e : b->protokoll())
            if (e["art"] == "prozess")
                z.push_back("start " + e["befehl"].get<std::string>());
            else if (e["art"] == "nachricht" && e["msg"] == 16)
                z.push_back(e["fenster"].get<std::string>() + " zu");
            else if (e["art"] == "nachricht")
                z.push_back(e["fenster"].get<std::string>() + " " + e["w"].dump() + "/" + e["l"].dump());
            else if (e["art"] == "pause")
                z.push_back("pause " + e["ms"].dump());
        return verbunden(z);
    }
    Zeilen Blick(const std::string& frage, bool ganz) {
        const Zeilen worte = geteilt(frage, " ");
        const std::string &was = worte[0], wo = frage.substr(std::min(was.size() + 1, frage.size()));
        if (was == "datei") {
            if (ganz) return Dateizeilen(ordner.inhalt(wo));
            return {!ordner.da(wo) ? "fehlt" : "da"};
        }
        if (was == "gleich") return {ordner.inhalt(worte[1]) == ordner.inhalt(worte[2]) ? "ja" : "nein"};
        if (was == "tag") {
            const std::string bytes = ordner.inhalt(wo),
                              ende = bytes.substr(bytes.size() - std::min<std::size_t>(128, bytes.size()));
            const auto feld = [&](std::size_t von) {
                const std::string wert = ende.substr(von, 30).c_str();
                return wert.substr(0, wert.find_last_not_of(' ') + 1);
            };
            return {ende.starts_with("TAG") ? feld(33) + " / " + feld(3) : "ohne"};
        }
        if (was == "sammlung") {
            return Dateizeilen(mdb(geteilt(wo, "; ")[0]));
        }
        if (was == "ordner") {
            Zeilen namen;
            for (const auto& e : std::filesystem::directory_iterator(ordner.pfad(wo)))
                namen.push_back(e.path().filename().string());
            std::sort(namen.begin(), namen.end());
            return {verbunden(namen)};
        }
        if (was == "wert") return {wert(wo)};
        if (was == "stand") return {stand()};
        if (was == "gesendet") return {gesendet()};
        if (was == "fokus" || was == "zwischenablage") return {Wort((*b)(was).front()[was])};
        if (was == "spieler") {
            Zeilen alle;
            for (const auto& s : b->spieler())
                alle.push_back(s["klasse"].get<std::string>() + " " + s["status"].dump() + " " +
                               s["datei"].get<std::string>());
            return {verbunden(alle)};
        }
        if (was == "fenster") {
            const auto f = b->fenster(worte[1]);
            if (f.is_null()) return {"zu"};
            Zeilen werte;
            for (std::size_t i = 2; i < worte.size(); ++i) werte.push_back(Wort(f[worte[i]]));
            return {worte.size() > 2 ? verbunden(werte) : "offen"};
        }
        // Controls of one window, and which of their keys.
        Zeilen werte;
        for (const auto& name : geteilt(was, ",")) {
            const auto bild = b->zeige(name.find('.') == std::string::npos ? was.substr(0, was.find('.') + 1) + name : name);
            const std::string art = bild["art"];
            const std::string schlüssel = worte.size() > 1        ? worte[1]
                                          : art == "liste"        ? "zeilen"
                                          : art == "menü"         ? "haken"
                                          : bild.contains("wert") ? "wert"
                                                                  : "text";
            werte.push_back(bild.contains(schlüssel) ? Wort(bild[schlüssel]) : "-");
        }
        return {verbunden(werte)};
    }

    const Szene& szene_;
    std::string ort_ = "[schleife]";
};

const bool Angemeldet = [] {
    static std::vector<Szene> alle;
    std::vector<std::filesystem::path> dateien;
    for (const auto& eintrag : std::filesystem::directory_iterator(TONKARTEI_PROTOKOLLE))
        if (eintrag.path().extension() == ".txt") dateien.push_back(eintrag.path());
    std::sort(dateien.begin(), dateien.end());
    for (const auto& datei : dateien)
        for (auto& szene : Szenen_lesen(datei.string())) alle.push_back(std::move(szene));
    for (const Szene& szene : alle) {
        const std::string reihe = "Szenen_" + std::filesystem::path(szene.datei).stem().string();
        testing::RegisterTest(reihe.c_str(), szene.name.c_str(), nullptr, nullptr, szene.datei.c_str(), szene.zeile,
                              [&szene]() -> Bühne* { return new Szenenlauf(szene); });
    }
    return !alle.empty();
}();

}  // namespace
}  // namespace tonkartei
