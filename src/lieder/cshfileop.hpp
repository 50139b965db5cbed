// The shell's file operation as an object: properties become flags, two ordered lists of paths become its arguments.
#pragma once

#include <cstdint>
#include <vector>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"
#include "plattform/shell.hpp"

namespace tonkartei {

// Failure 800403E8 (hexadecimal) of an operation without a source.
inline constexpr int Fehler_ohne_Quelle = static_cast<int>(0x800403E8U);

class CSHFileOp {
public:
    explicit CSHFileOp(Shell& shell) : shell_(shell) {}

    bool AllowUndo() const noexcept { return AllowUndo_; }
    void AllowUndo(bool wert) noexcept { AllowUndo_ = wert; }
    bool ConfirmMakeDir() const noexcept { return ConfirmMakeDir_; }
    void ConfirmMakeDir(bool wert) noexcept { ConfirmMakeDir_ = wert; }
    bool ConfirmOperation() const noexcept { return ConfirmOperation_; }
    void ConfirmOperation(bool wert) noexcept { ConfirmOperation_ = wert; }
    // Not empty: the progress title instead of file names.
    const Text& CustomText() const noexcept { return CustomText_; }
    void CustomText(Text wert) { CustomText_ = std::move(wert); }
    bool IncludeDirectories() const noexcept { return IncludeDirectories_; }
    void IncludeDirectories(bool wert) noexcept { IncludeDirectories_ = wert; }
    bool RenameOnCollision() const noexcept { return RenameOnCollision_; }
    void RenameOnCollision(bool wert) noexcept { RenameOnCollision_ = wert; }
    bool SilentMode() const noexcept { return SilentMode_; }
    void SilentMode(bool wert) noexcept { SilentMode_ = wert; }

    // `ok`: the shell reported success and the user did not break off. Fehler_ohne_Quelle without a source.
    void MoveFiles(bool& ok) { ok = ausführen(FO_MOVE); }
    void CopyFiles(bool& ok) { ok = ausführen(FO_COPY); }
    void DeleteFiles(bool& ok) { ok = ausführen(FO_DELETE); }
    void RenameFiles(bool& ok) { ok = ausführen(FO_RENAME); }

    void ClearSourceFiles() { Quellen_.clear(); }
    void AddSourceFile(Text pfad) { Quellen_.push_back(std::move(pfad)); }
    void ClearDestFiles() { Ziele_.clear(); }
    void AddDestFile(Text pfad) { Ziele_.push_back(std::move(pfad)); }

private:
    std::uint16_t Flags() const;
    bool ausführen(std::uint32_t code);

    Shell& shell_;
    bool AllowUndo_ = false;
    bool ConfirmMakeDir_ = true;
    bool ConfirmOperation_ = true;
    Text CustomText_;
    bool IncludeDirectories_ = true;
    bool RenameOnCollision_ = false;
    bool SilentMode_ = false;
    std::vector<Text> Quellen_, Ziele_;
};

}  // namespace tonkartei
