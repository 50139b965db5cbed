// A flag that has a value as long as something goes on, and its old one again however that ends.
#pragma once

#include <utility>

namespace tonkartei {

class Während {
public:
    explicit Während(bool& flagge, bool wert = true) : flagge_(flagge), vorher_(std::exchange(flagge, wert)) {}
    ~Während() { flagge_ = vorher_; }
    Während(const Während&) = delete;
    Während& operator=(const Während&) = delete;

private:
    bool& flagge_;
    bool vorher_;
};

}  // namespace tonkartei
