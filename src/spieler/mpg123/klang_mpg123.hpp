// Sound by mpg123. A thread of its own opens, decodes and plays; what is wished of it and what it tells lie under one lock
// that is held for moments only, so that neither a disk nor a device can hold up an answer.
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

#include "plattform/dateisystem.hpp"
#include "spieler/klang.hpp"

namespace tonkartei::spieler {

class Spielwerk;

class Klang_mpg123 final : public Klang {
public:
    // `ausgabe` "null": into nothing. `platte` is used on the thread alone; `wecken` is called from there when abholen() has
    // work.
    Klang_mpg123(const Text& ausgabe, Dateisystem& platte, std::function<void()> wecken);
    ~Klang_mpg123() override;

    void abholen() override;

    void laden(const Text& datei) override;
    void stoppen() override;
    void anhalten(bool angehalten) override;
    void springen(std::int64_t ms) override;
    void Lautstärke_setzen(int wert) override;

    std::int64_t Position() const override;
    std::optional<double> Länge() const override;

private:
    struct Wunsch {
        std::uint64_t Lied = 0;  // counts the loads and stops
        Text Datei;              // empty: none
        std::uint64_t Sprung = 0;
        std::optional<std::int64_t> Ziel;  // of a jump that is still to be made, ms
        bool angehalten = false;
        int Lautstärke = 255;
        bool Ende = false;
    };
    struct Stand {
        std::int64_t Position = 0;
        std::optional<double> Länge;
        bool zu_Ende = false;
    };

    template <class Änderung>
    void wünschen(Änderung änderung);
    void Lied_wünschen(const Text& datei);
    void laufen(bool stumm, Dateisystem& platte);
    // What was wished is done; the song that has come to its end is told of once.
    static Stand tun(const Wunsch& wunsch, Spielwerk& werk, std::uint64_t& lied, bool& spielt);

    const std::function<void()> wecken_;
    mutable std::mutex sperre_;
    std::condition_variable neues_;
    bool gewünscht_ = false;
    Wunsch wunsch_;
    Stand stand_;  // of the song that is wished
    std::thread faden_;
};

}  // namespace tonkartei::spieler
