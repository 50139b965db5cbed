// A scratch folder for one test, gone afterwards, with the few helpers to put files into it and to look at them.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace tonkartei {

class Testordner {
public:
    Testordner() : Testordner(std::filesystem::temp_directory_path()) {}
    // Below another folder, for tests that need another volume.
    explicit Testordner(const std::filesystem::path& oberer) {
        pfad_ = Text_von(frischer_Ordner(oberer, "tonkartei-test-") / "");
    }
    ~Testordner() {
        if (pfad_.empty()) return;
        // A test may have taken its own rights away.
        std::error_code egal;
        for (auto i = std::filesystem::recursive_directory_iterator(weg(), egal); !egal && i != end(i); i.increment(egal))
            if (i->is_directory(egal) && !i->is_symlink(egal))
                std::filesystem::permissions(i->path(), std::filesystem::perms::owner_all, egal);
        std::filesystem::remove_all(weg(), egal);
    }
    Testordner(const Testordner&) = delete;
    Testordner& operator=(const Testordner&) = delete;

    // Under a name that nobody had, and closed to others.
    static std::filesystem::path frischer_Ordner(const std::filesystem::path& oberer, const std::string& vorsatz) {
        std::random_device zufall;
        std::filesystem::path versuch;
        do versuch = oberer / (vorsatz + std::to_string(zufall()));
        while (!std::filesystem::create_directory(versuch));
        std::filesystem::permissions(versuch, std::filesystem::perms::owner_all);
        return versuch;
    }

    // With a separator at its end; `name` below it.
    const std::string& pfad() const { return pfad_; }
    std::string pfad(std::string_view name) const {
        std::string ganz = pfad_ + std::string(name);
        // Cases write "a/b" everywhere.
        std::replace(ganz.begin(), ganz.end(), '/', static_cast<char>(std::filesystem::path::preferred_separator));
        return ganz;
    }
    // The same for the standard library, which on some systems would take the bytes of a text for another code page.
    std::filesystem::path weg(std::string_view name = {}) const { return weg_zu(pfad(name)); }
    static std::filesystem::path weg_zu(std::string_view pfad) { return {std::u8string(pfad.begin(), pfad.end())}; }
    static std::string Text_von(const std::filesystem::path& weg) {
        const std::u8string bytes = weg.u8string();
        return {bytes.begin(), bytes.end()};
    }

    // Both return the full path.
    std::string datei(std::string_view name, std::string_view inhalt = {}) const {
        std::ofstream strom(weg(name), std::ios::binary);
        strom.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
        if (!strom.flush()) throw std::runtime_error("cannot write " + pfad(name));
        return pfad(name);
    }
    std::string ordner(std::string_view name) const {
        std::filesystem::create_directories(weg(name));
        return pfad(std::string(name) + "/");
    }

    // A folder's or file's name that is no text, where the system has such.
    static constexpr const char* krummer_Name = std::filesystem::path::preferred_separator == '/' ? "Gr\xFC\xDF"
                                                                                                    "e"
                                                                                                  : "Grüße";

    bool da(std::string_view name) const { return std::filesystem::exists(std::filesystem::symlink_status(weg(name))); }
    // The bytes of a file below the folder; "(fehlt)" when there is none.
    std::string inhalt(std::string_view name) const { return inhalt_von(pfad(name)); }
    static std::string inhalt_von(const std::string& pfad) {
        std::ifstream strom(weg_zu(pfad), std::ios::binary);
        if (!strom) return "(fehlt)";
        return {std::istreambuf_iterator<char>(strom), std::istreambuf_iterator<char>()};
    }

private:
    std::string pfad_;
};

}  // namespace tonkartei
