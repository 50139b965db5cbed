// The sound device, by the calls that every Windows has. They tell exactly what was heard, and hold and drop it at once.
#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

#include "plattform/windows/winapi.hpp"
#include "spieler/mpg123/tonausgabe.hpp"

#include <mmsystem.h>

namespace tonkartei::spieler {

namespace {

constexpr auto Gerätefrist = std::chrono::seconds(3);  // a device that plays nothing of what it has for so long is gone

class Wellenausgabe final : public Tonausgabe {
public:
    explicit Wellenausgabe(int rate) : Tonausgabe(rate) {
        WAVEFORMATEX form{};
        form.wFormatTag = WAVE_FORMAT_PCM;
        form.nChannels = 2;
        form.nSamplesPerSec = static_cast<DWORD>(rate);
        form.wBitsPerSample = 16;
        form.nBlockAlign = 4;
        form.nAvgBytesPerSec = form.nSamplesPerSec * 4;
        lebt_ = ::waveOutOpen(&gerät_, WAVE_MAPPER, &form, 0, 0, CALLBACK_NULL) == MMSYSERR_NOERROR;
        if (!lebt_) gerät_ = nullptr;
        // Who feeds a device goes before who computes.
        ::SetThreadPriority(::GetCurrentThread(), THREAD_PRIORITY_HIGHEST);
    }
    ~Wellenausgabe() override {
        if (!gerät_) return;
        ::waveOutReset(gerät_);
        for (Block& block : blöcke_) freigeben(block);
        ::waveOutClose(gerät_);
    }

    bool lebt() const override { return lebt_; }
    bool Platz() override { return (blöcke_[nächster_].Kopf.dwFlags & WHDR_INQUEUE) == 0; }

    void schreiben(std::span<const std::int16_t> werte) override {
        Block& block = blöcke_[nächster_];
        nächster_ = (nächster_ + 1) % blöcke_.size();
        freigeben(block);
        block.Werte.assign(werte.begin(), werte.end());
        block.Kopf = {};
        block.Kopf.lpData = reinterpret_cast<char*>(block.Werte.data());
        block.Kopf.dwBufferLength = static_cast<DWORD>(werte.size_bytes());
        lebt_ = lebt_ && ::waveOutPrepareHeader(gerät_, &block.Kopf, sizeof block.Kopf) == MMSYSERR_NOERROR &&
                ::waveOutWrite(gerät_, &block.Kopf, sizeof block.Kopf) == MMSYSERR_NOERROR;
        geschrieben_ += static_cast<std::int64_t>(werte.size() / 2);
    }

    void anhalten(bool angehalten) override {
        if (angehalten == angehalten_) return;
        angehalten_ = angehalten;
        if (angehalten)
            ::waveOutPause(gerät_);
        else
            ::waveOutRestart(gerät_);
        bewegt_um_ = Uhr::now();
    }

    void leeren() override {
        ::waveOutReset(gerät_);
        geschrieben_ = gespielt_ = 0;
        bewegt_um_ = Uhr::now();
        // Emptying lets go of a pause.
        if (angehalten_) ::waveOutPause(gerät_);
    }

    std::int64_t gespielt() override {
        MMTIME zeit{};
        zeit.wType = TIME_SAMPLES;
        const bool erfahren = ::waveOutGetPosition(gerät_, &zeit, sizeof zeit) == MMSYSERR_NOERROR;
        std::int64_t jetzt = gespielt_;
        if (erfahren && zeit.wType == TIME_SAMPLES) jetzt = zeit.u.sample;
        if (erfahren && zeit.wType == TIME_BYTES) jetzt = zeit.u.cb / 4;
        if (alles_zurück()) jetzt = geschrieben_;
        if (jetzt != gespielt_ || angehalten_ || gespielt_ >= geschrieben_) bewegt_um_ = Uhr::now();
        if (Uhr::now() - bewegt_um_ > Gerätefrist) lebt_ = false;
        return gespielt_ = std::min(jetzt, geschrieben_);
    }

private:
    using Uhr = std::chrono::steady_clock;
    struct Block {
        WAVEHDR Kopf{};
        std::vector<std::int16_t> Werte;
    };

    void freigeben(Block& block) {
        if (block.Kopf.dwFlags & WHDR_PREPARED) ::waveOutUnprepareHeader(gerät_, &block.Kopf, sizeof block.Kopf);
        block.Kopf.dwFlags = 0;
    }
    // Some devices never count the very last frames.
    bool alles_zurück() const {
        for (const Block& block : blöcke_)
            if (block.Kopf.dwFlags & WHDR_INQUEUE) return false;
        return true;
    }

    HWAVEOUT gerät_ = nullptr;
    bool lebt_ = false, angehalten_ = false;
    std::array<Block, 16> blöcke_;  // four tenths of a second: less stutters when the machine is busy
    std::size_t nächster_ = 0;
    std::int64_t geschrieben_ = 0, gespielt_ = 0;
    Uhr::time_point bewegt_um_ = Uhr::now();
};

}  // namespace

std::unique_ptr<Tonausgabe> Wellenausgabe_öffnen(int rate) {
    auto ausgabe = std::make_unique<Wellenausgabe>(rate);
    return ausgabe->lebt() ? std::move(ausgabe) : nullptr;
}

}  // namespace tonkartei::spieler
