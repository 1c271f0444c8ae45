// SPDX-License-Identifier: GPL-3.0-or-later
// cardhaven-sounds DIR
// Writes the suite's thirteen sound effects (16-bit mono wave files) and its
// tune "Quillmark.MID" into DIR. Everything is synthesised here from simple
// oscillators, noise and envelopes, the same bytes on every run.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int kRate = 22050;
constexpr double kPi = 3.14159265358979323846;

using Samples = std::vector<double>;

// A small deterministic noise source, so the files never change between builds.
struct Noise {
    uint32_t state = 0x12345678;
    double next() {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        return (state / 4294967295.0) * 2 - 1;
    }
};

Samples Silence(double seconds) { return Samples(static_cast<size_t>(seconds * kRate), 0.0); }

// Adds a tone: `wave` gives the value at a phase in cycles; attack and
// release in seconds, an exponential decay rate per second.
void Tone(Samples& out, double at, double seconds, double freq, double gain, double decay = 0,
          const std::function<double(double)>& wave = [](double ph) { return std::sin(2 * kPi * ph); },
          double glideTo = 0, double attack = 0.005, double release = 0.02) {
    const size_t start = static_cast<size_t>(at * kRate);
    const size_t n = static_cast<size_t>(seconds * kRate);
    if (out.size() < start + n) out.resize(start + n, 0.0);
    double phase = 0;
    for (size_t i = 0; i < n; ++i) {
        const double t = static_cast<double>(i) / kRate;
        const double f = glideTo > 0 ? freq * std::pow(glideTo / freq, t / seconds) : freq;
        phase += f / kRate;
        double env = std::exp(-decay * t);
        if (t < attack) env *= t / attack;
        if (seconds - t < release) env *= (seconds - t) / release;
        out[start + i] += gain * env * wave(phase);
    }
}

double Square(double ph) { return std::fmod(ph, 1.0) < 0.5 ? 1.0 : -1.0; }
double Triangle(double ph) {
    const double x = std::fmod(ph, 1.0);
    return x < 0.5 ? 4 * x - 1 : 3 - 4 * x;
}
double Saw(double ph) { return 2 * std::fmod(ph, 1.0) - 1; }
// A bell-like tone: a sine with a quieter octave and twelfth.
double Bell(double ph) {
    return 0.7 * std::sin(2 * kPi * ph) + 0.2 * std::sin(4 * kPi * ph) + 0.1 * std::sin(6 * kPi * ph);
}

double Midi(int note) { return 440.0 * std::pow(2.0, (note - 69) / 12.0); }

// Noise through a one-pole low-pass filter, with a cutoff that may move.
void NoiseBurst(Samples& out, double at, double seconds, double gain, double decay, double cutFrom, double cutTo,
                Noise& noise) {
    const size_t start = static_cast<size_t>(at * kRate);
    const size_t n = static_cast<size_t>(seconds * kRate);
    if (out.size() < start + n) out.resize(start + n, 0.0);
    double low = 0;
    for (size_t i = 0; i < n; ++i) {
        const double t = static_cast<double>(i) / kRate;
        const double cut = cutFrom + (cutTo - cutFrom) * t / seconds;
        const double a = 1 - std::exp(-2 * kPi * cut / kRate);
        low += a * (noise.next() - low);
        double env = std::exp(-decay * t);
        if (t < 0.003) env *= t / 0.003;
        if (seconds - t < 0.01) env *= (seconds - t) / 0.01;
        out[start + i] += gain * env * low;
    }
}

bool WriteWave(const std::string& path, const Samples& samples) {
    double peak = 0;
    for (double s : samples) peak = std::max(peak, std::fabs(s));
    // Every effect at the same peak level, so that none drowns another.
    const double scale = peak > 0 ? 0.75 / peak : 1.0;
    std::vector<int16_t> pcm;
    pcm.reserve(samples.size());
    for (double s : samples) pcm.push_back(static_cast<int16_t>(std::lround(std::clamp(s * scale, -1.0, 1.0) * 32767)));
    std::ofstream f(path, std::ios::binary);
    if (!f) return false;
    auto u32 = [&](uint32_t v) { f.put(char(v)).put(char(v >> 8)).put(char(v >> 16)).put(char(v >> 24)); };
    auto u16 = [&](uint16_t v) { f.put(char(v)).put(char(v >> 8)); };
    const uint32_t bytes = static_cast<uint32_t>(pcm.size() * 2);
    f.write("RIFF", 4);
    u32(36 + bytes);
    f.write("WAVEfmt ", 8);
    u32(16);
    u16(1);
    u16(1);
    u32(kRate);
    u32(kRate * 2);
    u16(2);
    u16(16);
    f.write("data", 4);
    u32(bytes);
    for (int16_t s : pcm) u16(static_cast<uint16_t>(s));
    return static_cast<bool>(f);
}

// ---- the effects -------------------------------------------------------------

Samples Applause() {
    Samples s = Silence(2.4);
    Noise noise;
    Noise timing{0xBEEF1234};
    for (int i = 0; i < 260; ++i) {
        const double at = (timing.next() + 1) / 2 * 2.0;
        const double fade = at < 0.2 ? at / 0.2 : at > 1.6 ? std::max(0.0, (2.2 - at) / 0.6) : 1.0;
        NoiseBurst(s, at, 0.06, 0.35 * fade, 60, 5000, 2500, noise);
    }
    return s;
}

Samples Busted() {
    Samples s;
    const int notes[] = {55, 54, 53};
    for (int i = 0; i < 3; ++i) Tone(s, i * 0.28, 0.26, Midi(notes[i]), 0.35, 2, Saw);
    Tone(s, 0.84, 0.7, Midi(52), 0.35, 1.5, Saw, Midi(50));
    return s;
}

Samples Chord() {  // a refused click: a short, low, dull buzz
    Samples s;
    Tone(s, 0, 0.22, Midi(43), 0.3, 10, Square);
    Tone(s, 0, 0.22, Midi(44), 0.25, 10, Square);
    return s;
}

Samples Click() {
    Samples s;
    Noise noise;
    NoiseBurst(s, 0, 0.025, 0.8, 180, 6000, 3000, noise);
    Tone(s, 0, 0.03, 1800, 0.3, 120);
    return s;
}

Samples CountScore() {
    Samples s;
    const int notes[] = {72, 76, 79, 84};
    for (int i = 0; i < 4; ++i) Tone(s, i * 0.07, 0.16, Midi(notes[i]), 0.35, 12, Bell);
    return s;
}

Samples HighScore() {  // a short fanfare
    Samples s;
    const int notes[] = {67, 72, 76, 79};
    for (int i = 0; i < 4; ++i) Tone(s, i * 0.13, 0.2, Midi(notes[i]), 0.28, 3, Triangle);
    for (int n : {72, 76, 79, 84}) Tone(s, 0.55, 0.9, Midi(n), 0.2, 2.2, Triangle, 0, 0.01, 0.3);
    return s;
}

Samples Markq() {  // a selection: a light, high pluck
    Samples s;
    Tone(s, 0, 0.14, Midi(84), 0.45, 28, Bell);
    Tone(s, 0, 0.14, Midi(91), 0.15, 35);
    return s;
}

Samples NoiseSound() {
    Samples s;
    Noise noise;
    NoiseBurst(s, 0, 0.5, 0.7, 4, 600, 4000, noise);
    return s;
}

Samples Slide() {  // a card sliding across the table
    Samples s;
    Noise noise;
    NoiseBurst(s, 0, 0.24, 0.8, 9, 2500, 900, noise);
    return s;
}

Samples Snap() {  // one step of a score count
    Samples s;
    Tone(s, 0, 0.045, Midi(88), 0.4, 60, Bell);
    Noise noise;
    NoiseBurst(s, 0, 0.01, 0.3, 300, 8000, 8000, noise);
    return s;
}

Samples Tick() {  // a deselection: lower and softer than the selection
    Samples s;
    Tone(s, 0, 0.09, Midi(76), 0.35, 40, Bell);
    return s;
}

Samples TwentyOne() {  // a completed combination: a bright rising chime
    Samples s;
    Tone(s, 0, 0.35, Midi(79), 0.35, 6, Bell);
    Tone(s, 0.1, 0.5, Midi(84), 0.35, 5, Bell);
    Tone(s, 0.1, 0.5, Midi(88), 0.2, 5, Bell);
    return s;
}

Samples Wingame() {  // a cleared board: a cheerful little tune
    Samples s;
    const int melody[] = {72, 76, 79, 76, 77, 81, 84, 0, 83, 79, 84};
    const double lengths[] = {0.15, 0.15, 0.15, 0.15, 0.15, 0.15, 0.3, 0.05, 0.15, 0.15, 0.7};
    double at = 0;
    for (size_t i = 0; i < std::size(melody); ++i) {
        if (melody[i]) Tone(s, at, lengths[i] + 0.05, Midi(melody[i]), 0.3, 3, Triangle);
        at += lengths[i];
    }
    for (int n : {48, 55, 60}) Tone(s, at - 0.7, 0.8, Midi(n), 0.15, 2, Triangle);
    return s;
}

// ---- the tune ------------------------------------------------------------------

struct MidiEvent {
    uint32_t tick;
    std::vector<uint8_t> bytes;
};

class Song {
public:
    static constexpr int kPpq = 480;
    void note(int channel, double beat, double beats, int key, int velocity) {
        const uint32_t on = static_cast<uint32_t>(std::lround(beat * kPpq));
        const uint32_t off = static_cast<uint32_t>(std::lround((beat + beats) * kPpq)) - 10;
        events_.push_back({on, {uint8_t(0x90 | channel), uint8_t(key), uint8_t(velocity)}});
        events_.push_back({off, {uint8_t(0x80 | channel), uint8_t(key), 0}});
    }
    void program(int channel, int number) { events_.push_back({0, {uint8_t(0xC0 | channel), uint8_t(number)}}); }
    void control(int channel, int number, int value) {
        events_.push_back({0, {uint8_t(0xB0 | channel), uint8_t(number), uint8_t(value)}});
    }
    bool write(const std::string& path, int bpm) {
        std::stable_sort(events_.begin(), events_.end(), [](const MidiEvent& a, const MidiEvent& b) {
            if (a.tick != b.tick) return a.tick < b.tick;
            return (a.bytes[0] & 0xF0) == 0x80 && (b.bytes[0] & 0xF0) != 0x80;  // offs before ons
        });
        std::vector<uint8_t> track;
        auto delta = [&](uint32_t v) {
            uint8_t buf[5];
            int n = 0;
            buf[n++] = v & 0x7F;
            while (v >>= 7) buf[n++] = static_cast<uint8_t>((v & 0x7F) | 0x80);
            while (n) track.push_back(buf[--n]);
        };
        const uint32_t tempo = 60000000 / static_cast<uint32_t>(bpm);
        delta(0);
        track.insert(track.end(), {0xFF, 0x51, 0x03, uint8_t(tempo >> 16), uint8_t(tempo >> 8), uint8_t(tempo)});
        uint32_t last = 0;
        for (const MidiEvent& e : events_) {
            delta(e.tick - last);
            last = e.tick;
            track.insert(track.end(), e.bytes.begin(), e.bytes.end());
        }
        delta(kPpq);
        track.insert(track.end(), {0xFF, 0x2F, 0x00});
        std::ofstream f(path, std::ios::binary);
        if (!f) return false;
        const uint8_t header[] = {'M', 'T', 'h', 'd', 0, 0, 0, 6, 0, 0, 0, 1, uint8_t(kPpq >> 8), uint8_t(kPpq & 0xFF)};
        f.write(reinterpret_cast<const char*>(header), sizeof header);
        const uint32_t size = static_cast<uint32_t>(track.size());
        const uint8_t chunk[] = {'M', 'T', 'r', 'k', uint8_t(size >> 24), uint8_t(size >> 16), uint8_t(size >> 8),
                                 uint8_t(size)};
        f.write(reinterpret_cast<const char*>(chunk), sizeof chunk);
        f.write(reinterpret_cast<const char*>(track.data()), static_cast<std::streamsize>(track.size()));
        return static_cast<bool>(f);
    }

private:
    std::vector<MidiEvent> events_;
};

// A bright tune in C major, 132 beats per minute, 32 bars (about a minute):
// verse, chorus, verse, chorus with a closing chord.
bool WriteTune(const std::string& path) {
    Song song;
    const int kLead = 0, kChords = 1, kBass = 2, kDrums = 9;
    song.program(kLead, 11);   // vibraphone
    song.program(kChords, 4);  // electric piano
    song.program(kBass, 33);   // finger bass
    song.control(kLead, 7, 110);
    song.control(kChords, 7, 70);
    song.control(kBass, 7, 100);
    song.control(kDrums, 7, 80);

    // Chord roots and qualities: one chord a bar.
    struct ChordOf { int root; bool minor; };
    const ChordOf verse[8] = {{60, false}, {57, true}, {65, false}, {67, false},
                              {60, false}, {57, true}, {62, true},  {67, false}};
    const ChordOf chorus[8] = {{65, false}, {67, false}, {64, true}, {57, true},
                               {65, false}, {67, false}, {60, false}, {67, false}};
    // Melodies: (beat in bar, length, note), bar by bar.
    struct N { double beat, len; int key; };
    const std::vector<std::vector<N>> verseTune = {
        {{0, 1, 76}, {1, 0.5, 74}, {1.5, 0.5, 72}, {2, 1, 74}, {3, 1, 76}},
        {{0, 1.5, 72}, {1.5, 0.5, 69}, {2, 2, 72}},
        {{0, 1, 77}, {1, 0.5, 76}, {1.5, 0.5, 74}, {2, 1, 72}, {3, 1, 69}},
        {{0, 1, 71}, {1, 1, 74}, {2, 2, 79}},
        {{0, 1, 76}, {1, 0.5, 77}, {1.5, 0.5, 79}, {2, 1, 81}, {3, 1, 79}},
        {{0, 1, 76}, {1, 1, 72}, {2, 2, 69}},
        {{0, 1, 74}, {1, 0.5, 76}, {1.5, 0.5, 77}, {2, 1, 81}, {3, 1, 77}},
        {{0, 1, 79}, {1, 1, 77}, {2, 1, 74}, {3, 1, 71}},
    };
    const std::vector<std::vector<N>> chorusTune = {
        {{0, 0.5, 81}, {0.5, 0.5, 81}, {1, 1, 84}, {2, 1, 81}, {3, 1, 77}},
        {{0, 1.5, 79}, {1.5, 0.5, 77}, {2, 1, 74}, {3, 1, 79}},
        {{0, 0.5, 76}, {0.5, 0.5, 79}, {1, 1, 83}, {2, 1, 79}, {3, 1, 76}},
        {{0, 1.5, 72}, {1.5, 0.5, 76}, {2, 2, 81}},
        {{0, 0.5, 81}, {0.5, 0.5, 81}, {1, 1, 84}, {2, 1, 86}, {3, 1, 84}},
        {{0, 1, 83}, {1, 1, 79}, {2, 1, 74}, {3, 1, 79}},
        {{0, 1, 84}, {1, 0.5, 83}, {1.5, 0.5, 81}, {2, 1, 79}, {3, 1, 76}},
        {{0, 1, 74}, {1, 1, 77}, {2, 1, 79}, {3, 1, 83}},
    };

    double bar = 0;
    auto playBar = [&](const ChordOf& c, const std::vector<N>& tune, bool busy) {
        const double b = bar * 4;
        const int third = c.minor ? 3 : 4;
        for (const N& n : tune) song.note(kLead, b + n.beat, n.len, n.key, 96);
        // Chords on the off beats, a root and fifth in the bass.
        for (double off : {0.5, 1.5, 2.5, 3.5})
            for (int k : {c.root, c.root + third, c.root + 7}) song.note(kChords, b + off, 0.4, k - 12, 60);
        song.note(kBass, b, 1, c.root - 24, 100);
        song.note(kBass, b + 1.5, 0.5, c.root - 24 + 7, 85);
        song.note(kBass, b + 2, 1, c.root - 24 + 12, 95);
        song.note(kBass, b + 3, 1, c.root - 24 + 7, 85);
        // Kick, snare, closed hi-hat.
        for (double k : {0.0, 2.0}) song.note(kDrums, b + k, 0.25, 36, 100);
        if (busy) song.note(kDrums, b + 2.5, 0.25, 36, 80);
        for (double s : {1.0, 3.0}) song.note(kDrums, b + s, 0.25, 38, 90);
        for (double h = 0; h < 4; h += 0.5) song.note(kDrums, b + h, 0.2, 42, h == std::floor(h) ? 70 : 50);
        bar += 1;
    };
    for (int section = 0; section < 4; ++section) {
        const bool isChorus = section % 2 == 1;
        for (int i = 0; i < 8; ++i)
            playBar(isChorus ? chorus[i] : verse[i], isChorus ? chorusTune[i] : verseTune[i], isChorus);
    }
    // The closing chord and a cymbal.
    const double end = bar * 4;
    for (int k : {48, 60, 64, 67, 72}) song.note(k < 60 ? kBass : kChords, end, 4, k, 100);
    song.note(kLead, end, 4, 84, 100);
    song.note(kDrums, end, 2, 49, 110);
    song.note(kDrums, end, 0.5, 36, 110);
    return song.write(path, 132);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: cardhaven-sounds DIR\n");
        return 2;
    }
    const std::string dir = argv[1];
    const struct {
        const char* name;
        Samples (*make)();
    } effects[] = {
        {"Applause.wav", Applause}, {"Busted.wav", Busted},       {"Chord.wav", Chord},
        {"Click.wav", Click},       {"CountScore.wav", CountScore}, {"HighScore.wav", HighScore},
        {"Markq.wav", Markq},       {"Noise.wav", NoiseSound},    {"Slide.wav", Slide},
        {"Snap.wav", Snap},         {"Tick.wav", Tick},           {"TwentyOne.wav", TwentyOne},
        {"Wingame.wav", Wingame},
    };
    for (const auto& effect : effects) {
        if (!WriteWave(dir + "/" + effect.name, effect.make())) {
            std::fprintf(stderr, "cardhaven-sounds: cannot write %s/%s\n", dir.c_str(), effect.name);
            return 1;
        }
    }
    if (!WriteTune(dir + "/Quillmark.MID")) {
        std::fprintf(stderr, "cardhaven-sounds: cannot write %s/Quillmark.MID\n", dir.c_str());
        return 1;
    }
    return 0;
}
