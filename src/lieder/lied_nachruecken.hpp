// The last song takes the number of one that is gone.
#pragma once

#include "grundlagen/ereignis.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

class ABR_Datei;
class Alben_Datei;
struct Modell;

class Lied_nachrücken {
public:
    Lied_nachrücken(Modell& modell, Alben_Datei& alben, ABR_Datei& abr) : modell_(modell), alben_(alben), abr_(abr) {}

    // The file of the last song stands on number `Nr` by now: album links, the statistic of aborted listens and the record
    // follow. How many songs there are is left to the caller.
    void ausführen(Long Nr);

    // The links of the albums have changed, for a window that shows them.
    Ereignis<> Alben_geändert;

private:
    Modell& modell_;
    Alben_Datei& alben_;
    ABR_Datei& abr_;
};

}  // namespace tonkartei
