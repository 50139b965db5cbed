// A scratch folder for one test, gone afterwards, with the few helpers to put files into it and to look at them.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace tonkartei {

class Testordner {
public:
    Testordner() : Testordner(std::filesystem::temp_directory_path().string()) {}
    // Below another folder, for tests that need another volume.
    explicit Testordner(const std::string& oberer) {
        std::string muster = oberer + "/tonkartei-test-XXXXXX";
        if (::mkdtemp(muster.data()) == nullptr) throw std::runtime_error("no scratch folder below " + oberer);
        pfad_ = muster + "/";
    }
    ~Testordner() {
        if (pfad_.empty()) return;
        // A test may have taken its own rights away.
        std::error_code egal;
        for (auto i = std::filesystem::recursive_directory_iterator(pfad_, egal); !egal && i != end(i); i.increment(egal))
            if (i->is_directory(egal) && !i->is_symlink(egal))
                std::filesystem::permissions(i->path(), std::filesystem::perms::owner_all, egal);
        std::filesystem::remove_all(pfad_, egal);
    }
    Testordner(const Testordner&) = delete;
    Testordner& operator=(const Testordner&) = delete;

    // With a separator at its end; `name` below it.
    const std::string& pfad() const { return pfad_; }
    std::string pfad(std::string_view name) const { return pfad_ + std::string(name); }

    // Both return the full path.
    std::string datei(std::string_view name, std::string_view inhalt = {}) const {
        std::ofstream strom(pfad(name), std::ios::binary);
        strom.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
        if (!strom.flush()) throw std::runtime_error("cannot write " + pfad(name));
        return pfad(name);
    }
    std::string ordner(std::string_view name) const {
        std::filesystem::create_directories(pfad(name));
        return pfad(name) + "/";
    }

    bool da(std::string_view name) const { return std::filesystem::exists(std::filesystem::symlink_status(pfad(name))); }
    // The bytes of a file below the folder; "(fehlt)" when there is none.
    std::string inhalt(std::string_view name) const { return inhalt_von(pfad(name)); }
    static std::string inhalt_von(const std::string& pfad) {
        std::ifstream strom(pfad, std::ios::binary);
        if (!strom) return "(fehlt)";
        return {std::istreambuf_iterator<char>(strom), std::istreambuf_iterator<char>()};
    }

private:
    std::string pfad_;
};

}  // namespace tonkartei
