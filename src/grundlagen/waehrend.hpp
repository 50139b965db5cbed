// A variable that has a value as long as something goes on, and its old one again however that ends.
#pragma once

#include <utility>

namespace tonkartei {

template <class T>
class Während {
public:
    explicit Während(T& variable, T wert = true) : variable_(variable), vorher_(std::exchange(variable, wert)) {}
    ~Während() { variable_ = vorher_; }
    Während(const Während&) = delete;
    Während& operator=(const Während&) = delete;

private:
    T& variable_;
    T vorher_;
};

}  // namespace tonkartei
