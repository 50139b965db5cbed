// A variable that has a value as long as something goes on, and its old one again however that ends.
#pragma once

#include <exception>
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

// A mark that something is half done. An exception that goes through leaves it standing: whoever looks at what is left, up
// where run-time errors end the program, must know.
class Halb_getan {
public:
    explicit Halb_getan(bool& marke)
        : marke_(marke), vorher_(std::exchange(marke, true)), ausnahmen_(std::uncaught_exceptions()) {}
    ~Halb_getan() {
        if (std::uncaught_exceptions() == ausnahmen_) marke_ = vorher_;
    }
    Halb_getan(const Halb_getan&) = delete;
    Halb_getan& operator=(const Halb_getan&) = delete;

private:
    bool& marke_;
    bool vorher_;
    int ausnahmen_;
};

}  // namespace tonkartei
