// The plan of a backup: which songs it holds, how large it is, and how it falls into portions.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Portionsplan {
public:
    // All songs of the collection are in the plan.
    explicit Portionsplan(const Bestand& bestand);

    Long Backup_Lieder = 0;
    Long Backup_KByte = 0;
    Long Minimale_Portion = 0;    // MByte: the largest song fits into an empty portion
    std::vector<bool> Im_Backup;  // by number; place 0 is none

    // The plan in MByte.
    Long Gesamtgröße() const;
    // How many portions of P MByte that makes. An estimate: what stays free at the end of each portion does not count.
    Long Anzahl_Portionen(double P) const;

    // A song of the backup directory is left out: the first own one of that name, without a look at whether it is in the
    // plan. Two entries that find the same song subtract it twice.
    void Eintrag_auslassen(const Text& Artist, const Text& Titel);
    // A song of an older backup is left out: the first one of that name that is still in the plan.
    void Lied_auslassen(const Text& Artist, const Text& Titel);

    // The songs of the plan, portion by portion: by category, artist and title, a new portion at the first song that does
    // not fit any more; no look-ahead, what is left free stays free. P in MByte; exactly full is not too full.
    std::vector<std::vector<Long>> Portionen(double P) const;

private:
    void auslassen(Long Nr);
    const std::vector<Long>* gleichnamige(const Text& Artist, const Text& Titel) const;

    const Bestand& bestand_;
    std::map<std::pair<Text, Text>, std::vector<Long>> nach_Namen_;  // numbers, ascending
};

}  // namespace tonkartei
