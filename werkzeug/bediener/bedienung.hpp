// Puts machine, view and a program together and works it by the lines of standard input until it ends.
#pragma once

#include <functional>
#include <memory>

#include "plattform/plattform.hpp"

namespace tonkartei {

class Ansicht;

// What is worked: built before its start, and gone before the end is told.
class Bedientes {
public:
    virtual ~Bedientes() = default;
    virtual void starten() = 0;
};

using Bauplan = std::function<std::unique_ptr<Bedientes>(const Plattform&, Ansicht&, const Text& Kommandozeile)>;

// The exit status.
int bedienen(int argc, char** argv, const Bauplan& bauplan);

}  // namespace tonkartei
