// The disk of this machine, and a scratch folder on it.
#pragma once

#include <gtest/gtest.h>

#include "echt.hpp"
#include "plattform/offene_datei.hpp"
#include "testordner.hpp"

namespace tonkartei {

class DateisystemTest : public testing::Test {
protected:
    Testordner ordner;
    Dateisystem_echt dateien;

    std::string lies(const Text& pfad) {
        Offene_Datei datei(dateien, pfad, Dateimodus::lesen);
        std::string bytes(static_cast<std::size_t>(datei.Länge()), '\0');
        bytes.resize(datei.lesen(0, bytes));
        return bytes;
    }
    void schreib(const Text& pfad, std::string_view bytes) {
        Offene_Datei(dateien, pfad, Dateimodus::schreiben).schreiben(0, bytes);
    }
};

}  // namespace tonkartei
