// What assistive technology sees of the windows: names, roles and values where Qt does not know them, and the order of the
// screen. All of it is made when it is asked for; without anyone who asks it costs nothing.
#pragma once

namespace tonkartei {

class Bauteil;

// Once, with the application object.
void Zugang_einrichten();
// The name follows the model.
void Zugangsnamen_setzen(const Bauteil& teil);

}  // namespace tonkartei
