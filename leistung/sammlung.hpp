// The files of a full collection in a scratch folder, half of them with a tag of the newer kind in front.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tonkartei {

class Sammlung {
public:
    static constexpr int Anzahl = 5000;

    Sammlung() : ordner_(std::filesystem::temp_directory_path() / ("tonkartei_bench_" + std::to_string(::getpid()))) {
        std::filesystem::create_directories(ordner_);
        const std::string ton = Frame_Folge();
        for (int nr = 1; nr <= Anzahl; ++nr) {
            const std::string zahl = std::to_string(nr);
            Pfade.push_back((ordner_ / (std::string(8 - zahl.size(), '0') + zahl + ".MP3")).string());
            std::ofstream datei(Pfade.back(), std::ios::binary);
            std::size_t davor = 0;
            if (nr % 2 == 0) {
                const std::string block = ID3v2_Block(zahl);
                davor = block.size();
                datei << block;
            }
            datei << ton;
            datei.seekp(static_cast<std::streamoff>(davor + (Frames - echte_Frames) * Framelänge));
            datei << ton << "TAG" << Feld_30("Titel " + zahl) << Feld_30("Artist " + zahl) << Feld_30("Album") << "2001"
                  << Feld_30("Kommentar") << '\x11';
        }
    }
    ~Sammlung() {
        std::error_code egal;
        std::filesystem::remove_all(ordner_, egal);
    }
    Sammlung(const Sammlung&) = delete;
    Sammlung& operator=(const Sammlung&) = delete;

    // With separator.
    std::string Ordner() const { return ordner_.string() + "/"; }
    std::vector<std::string> Pfade;

private:
    static constexpr std::size_t Framelänge = 417;   // 128 kbit/s at 44100
    static constexpr std::size_t Frames = 9500;      // some four minutes
    static constexpr std::size_t echte_Frames = 20;  // at either end; the middle is a hole that nobody has to read

    static std::string Frame_Folge() {
        std::string bytes;
        for (std::size_t i = 0; i < echte_Frames; ++i) {
            std::string frame(Framelänge, '\x55');
            bytes += frame.replace(0, 4, "\xFF\xFB\x90\x64");
        }
        return bytes;
    }

    // A tag of the newer kind as a ripping program leaves it: a few text frames and room to grow.
    static std::string ID3v2_Block(const std::string& zahl) {
        constexpr std::size_t Länge = 2048;
        std::string frames;
        const auto frame = [&](const char* name, const std::string& text) {
            frames += name;
            frames += std::string{0, 0, 0, static_cast<char>(text.size() + 1), 0, 0, 0} + text;
        };
        frame("TIT2", "Titel " + zahl);
        frame("TPE1", "Artist " + zahl);
        frame("TALB", "Album");
        frame("TYER", "2001");
        frame("TRCK", "7/12");
        frame("TCON", "(17)Rock");
        frame("TENC", "Encoder");
        frame("COMM", std::string("deu\0Kommentar", 13));
        frames.resize(Länge, '\0');
        return std::string("ID3\x03\0\0\0\0\x10\0", 10) + frames;
    }

    static std::string Feld_30(std::string text) {
        text.resize(30, '\0');
        return text;
    }

    std::filesystem::path ordner_;
};

}  // namespace tonkartei
