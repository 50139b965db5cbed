// Driver of the fuzz targets: changes seeds at random and runs the target until the time is up. Deterministic: the same
// number as second argument gives the same inputs in the same order. Adding a target takes three lines beside the target:
//
//   1. fuzz_x.cpp:       extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t*, std::size_t)   (see treiber.hpp)
//   2. fuzz_x.cpp:       std::vector<std::string> Fuzz_Saat()
//   3. CMakeLists.txt:   tonkartei_fuzz(fuzz_x fuzz_x.cpp LIBRARY...)
//
//   fuzz_x [SECONDS [NUMBER]]      fuzz for so long
//   fuzz_x --datei FILE...         run these inputs once, to repeat a finding
//
// The input that is being run stands in fuzz_x.letzte_eingabe of the current folder; after a finding the file stays. A
// target links with clang's -fsanitize=fuzzer as well, without this file.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <fstream>
#include <iterator>
#include <random>
#include <string_view>

#include "fuzz/treiber.hpp"

namespace {

constexpr std::size_t größte_Eingabe = std::size_t{1} << 20;
constexpr unsigned Bündel = 64;           // runs between two looks at the clock
constexpr unsigned Geduld_Sekunden = 60;  // for one bundle; then it hangs

// The input that is being run, in a file that outlives the process.
class Letzte_Eingabe {
public:
    explicit Letzte_Eingabe(std::string pfad)
        : pfad_(std::move(pfad)), griff_(open(pfad_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644)) {}
    ~Letzte_Eingabe() {
        close(griff_);
        unlink(pfad_.c_str());
    }
    Letzte_Eingabe(const Letzte_Eingabe&) = delete;
    Letzte_Eingabe& operator=(const Letzte_Eingabe&) = delete;

    void merken(const std::string& eingabe) const {
        if (ftruncate(griff_, 0) == 0) (void)!pwrite(griff_, eingabe.data(), eingabe.size(), 0);
    }

private:
    std::string pfad_;
    int griff_;
};

class Veränderer {
public:
    Veränderer(const std::vector<std::string>& saat, std::uint64_t zahl) : saat_(saat), zufall_(zahl) {}

    std::string nächste() {
        std::string eingabe = saat_[bis(saat_.size())];
        for (std::size_t i = bis(6) + 1; i > 0; --i) verändern(eingabe);
        eingabe.resize(std::min(eingabe.size(), größte_Eingabe));
        return eingabe;
    }

private:
    std::size_t bis(std::size_t grenze) { return grenze == 0 ? 0 : static_cast<std::size_t>(zufall_() % grenze); }
    char byte() {
        static constexpr std::string_view besondere("\x00\x01\x09\x0A\x0D\x1A ,\"-09\x7F\x80\xFA\xFB\xFE\xFF", 18);
        return bis(2) == 0 ? besondere[bis(besondere.size())] : static_cast<char>(bis(256));
    }
    // Mostly short, sometimes to the end.
    std::size_t Stück(std::size_t höchstens) { return bis(4) == 0 ? bis(höchstens + 1) : std::min(bis(16) + 1, höchstens); }

    void verändern(std::string& eingabe) {
        const std::size_t stelle = bis(eingabe.size() + 1);
        const std::size_t rest = eingabe.size() - stelle;
        switch (bis(9)) {
            case 0:
                if (rest > 0) eingabe[stelle] = static_cast<char>(eingabe[stelle] ^ (1 << bis(8)));
                break;
            case 1:
                if (rest > 0) eingabe[stelle] = byte();
                break;
            case 2: eingabe.erase(stelle, Stück(rest)); break;
            case 3: eingabe.resize(stelle); break;
            case 4: eingabe.insert(stelle, Stück(40), byte()); break;
            case 5: {  // a piece of itself again
                const std::string stück = eingabe.substr(stelle, Stück(rest));
                eingabe.insert(bis(eingabe.size() + 1), stück);
                break;
            }
            case 6: {  // the tail of another seed
                const std::string& andere = saat_[bis(saat_.size())];
                eingabe.resize(stelle);
                eingabe += std::string_view(andere).substr(bis(andere.size() + 1));
                break;
            }
            case 7: Zahl_ersetzen(eingabe, stelle); break;
            default:
                for (std::size_t i = 0; i < std::min<std::size_t>(rest, 4); ++i) eingabe[stelle + i] = byte();
        }
    }

    // The next decimal number becomes one at the edge of some type.
    void Zahl_ersetzen(std::string& eingabe, std::size_t ab) {
        static constexpr std::array<std::string_view, 14> Zahlen = {
            "-1", "0", "1", "20", "21", "255", "256", "5000", "5001", "32768", "2147483647", "2147483648", "1e400", "0.5"};
        static constexpr std::string_view Ziffern = "0123456789";
        const std::size_t anfang = eingabe.find_first_of(Ziffern, ab);
        if (anfang == std::string::npos) return;
        const std::size_t ende = eingabe.find_first_not_of(Ziffern, anfang);
        eingabe.replace(anfang, (ende == std::string::npos ? eingabe.size() : ende) - anfang, Zahlen[bis(Zahlen.size())]);
    }

    const std::vector<std::string>& saat_;
    std::mt19937_64 zufall_;
};

// The input is handed over in memory of exactly its size, so that a sanitizer sees the first byte too many.
void laufen(const std::string& eingabe) {
    const std::vector<std::uint8_t> genau(eingabe.begin(), eingabe.end());
    LLVMFuzzerTestOneInput(genau.data(), genau.size());
}

int wiederholen(int anzahl, char** pfade) {
    for (int i = 0; i < anzahl; ++i) {
        std::ifstream datei(pfade[i], std::ios::binary);
        if (!datei) {
            std::fprintf(stderr, "%s: nicht lesbar\n", pfade[i]);
            return 2;
        }
        laufen(std::string(std::istreambuf_iterator<char>(datei), {}));
        std::printf("%s: ohne Befund\n", pfade[i]);
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::string_view(argv[1]) == "--datei") return wiederholen(argc - 2, argv + 2);
    const double sekunden = argc > 1 ? std::strtod(argv[1], nullptr) : 2;
    const std::uint64_t zahl = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    std::string name = argv[0];
    name.erase(0, name.rfind('/') + 1);

    std::vector<std::string> saat = Fuzz_Saat();
    if (saat.empty()) saat.emplace_back();
    Letzte_Eingabe letzte(name + ".letzte_eingabe");
    Veränderer veränderer(saat, zahl);
    std::uint64_t läufe = 0;
    const auto Lauf = [&](const std::string& eingabe) {
        letzte.merken(eingabe);
        laufen(eingabe);
        ++läufe;
    };

    const auto ende = std::chrono::steady_clock::now() + std::chrono::duration<double>(sekunden);
    alarm(Geduld_Sekunden);
    for (const std::string& eingabe : saat) Lauf(eingabe);
    while (std::chrono::steady_clock::now() < ende) {
        alarm(Geduld_Sekunden);
        for (unsigned i = 0; i < Bündel; ++i) Lauf(veränderer.nächste());
    }
    std::printf("%s: %llu Läufe ohne Befund (Saat %llu)\n", name.c_str(), static_cast<unsigned long long>(läufe),
                static_cast<unsigned long long>(zahl));
    return 0;
}
