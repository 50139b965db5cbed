// A process that is worked through its input and its output.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tonkartei {

class Kindprozess {
public:
    enum class Lage { gelesen, Zeit_um, Ende };

    // The program first. `umgebung`: "NAME=WERT", besides what this process has. std::runtime_error when it cannot start.
    Kindprozess(std::vector<std::string> aufruf, const std::vector<std::string>& umgebung);
    // Without input it ends by itself; if it does not within two seconds, it is ended.
    ~Kindprozess();
    Kindprozess(const Kindprozess&) = delete;
    Kindprozess& operator=(const Kindprozess&) = delete;

    // What a process that has ended does not take is lost.
    void schreiben(const std::string& bytes);
    // What has come, added to `ziel`; waits at most so many milliseconds for it.
    Lage lesen(std::string& ziel, int ms);
    // The exit status, or minus the signal that ended it; none while it runs.
    std::optional<int> Status();
    // Without input and output, to its end.
    void beenden() noexcept;

private:
    struct Innen;
    std::unique_ptr<Innen> innen_;
};

}  // namespace tonkartei
