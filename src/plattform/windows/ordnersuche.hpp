// What a pattern finds in a folder, one after the other.
#pragma once

#include <memory>
#include <string>

#include "plattform/windows/pfadform.hpp"

namespace tonkartei {

class Ordnersuche {
public:
    // A path for the wide calls, whose last name may be a pattern.
    explicit Ordnersuche(const std::wstring& muster);
    ~Ordnersuche();
    Ordnersuche(const Ordnersuche&) = delete;
    Ordnersuche& operator=(const Ordnersuche&) = delete;

    // False without a find; the system's error is set then.
    explicit operator bool() const { return da_; }
    bool weiter();
    std::wstring Name() const;
    bool ist_Ordner() const;
    // Many things are reparse points, such as files whose bytes lie in a cloud; only two kinds lead elsewhere.
    bool ist_Verweis() const;

private:
    struct Fund;
    std::unique_ptr<Fund> fund_;
    void* suche_;
    bool da_;
};

// The path with its last name, or with all of its names, as the disk has them.
std::wstring in_seiner_Schreibweise(const std::wstring& weit);
Text ganz_in_seiner_Schreibweise(const Pfadform& pfad);

}  // namespace tonkartei
