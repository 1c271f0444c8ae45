// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/sound.h"

#include <fluidsynth.h>

#include <QAudioFormat>
#include <QAudioSink>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QMediaDevices>
#include <QTimer>
#include <cstring>
#include <dlfcn.h>
#include <type_traits>

namespace ch {

namespace {
constexpr int kFeedMs = 10;         // how often the player tops up the sink
constexpr int kCloseAfterMs = 3000;  // idle time before the sink is closed
const char* const kSoundFont = "/usr/share/sounds/sf2/TimGM6mb.sf2";

QString DataFile(const QString& folder, QString name) {
    while (name.startsWith('\\') || name.startsWith('/')) name.remove(0, 1);
    return folder + '/' + name;
}

quint32 U32(const char* p) {
    return quint32(quint8(p[0])) | quint32(quint8(p[1])) << 8 | quint32(quint8(p[2])) << 16 |
           quint32(quint8(p[3])) << 24;
}
quint16 U16(const char* p) { return quint16(quint8(p[0]) | quint8(p[1]) << 8); }

void Quiet(int, const char*, void*) {}

// FluidSynth and the many libraries it pulls in are loaded on the first
// start of the music, so that they cost nothing at start-up.
struct Fluid {
#define CH_FLUID(name) decltype(&::name) name = nullptr;
    CH_FLUID(new_fluid_settings)
    CH_FLUID(fluid_settings_setnum)
    CH_FLUID(fluid_settings_setint)
    CH_FLUID(fluid_settings_setstr)
    CH_FLUID(new_fluid_synth)
    CH_FLUID(fluid_synth_sfload)
    CH_FLUID(new_fluid_player)
    CH_FLUID(fluid_player_add)
    CH_FLUID(fluid_player_play)
    CH_FLUID(fluid_player_stop)
    CH_FLUID(fluid_player_get_status)
    CH_FLUID(new_fluid_audio_driver)
    CH_FLUID(delete_fluid_audio_driver)
    CH_FLUID(delete_fluid_player)
    CH_FLUID(delete_fluid_synth)
    CH_FLUID(delete_fluid_settings)
    CH_FLUID(fluid_set_log_function)
#undef CH_FLUID

    // Null when the library is missing or lacks a function.
    static const Fluid* Get() {
        static const Fluid* loaded = [] () -> const Fluid* {
            void* lib = dlopen("libfluidsynth.so.3", RTLD_NOW | RTLD_LOCAL);
            if (!lib) return nullptr;
            static Fluid f;
            bool complete = true;
            auto bind = [&](auto& fn, const char* symbol) {
                fn = reinterpret_cast<std::remove_reference_t<decltype(fn)>>(dlsym(lib, symbol));
                complete = complete && fn;
            };
#define CH_BIND(name) bind(f.name, #name);
            CH_BIND(new_fluid_settings) CH_BIND(fluid_settings_setnum) CH_BIND(fluid_settings_setint)
            CH_BIND(fluid_settings_setstr) CH_BIND(new_fluid_synth) CH_BIND(fluid_synth_sfload)
            CH_BIND(new_fluid_player) CH_BIND(fluid_player_add) CH_BIND(fluid_player_play)
            CH_BIND(fluid_player_stop) CH_BIND(fluid_player_get_status) CH_BIND(new_fluid_audio_driver)
            CH_BIND(delete_fluid_audio_driver) CH_BIND(delete_fluid_player) CH_BIND(delete_fluid_synth)
            CH_BIND(delete_fluid_settings) CH_BIND(fluid_set_log_function)
#undef CH_BIND
            if (!complete) return nullptr;
            for (int level = FLUID_PANIC; level <= FLUID_DBG; ++level) f.fluid_set_log_function(level, Quiet, nullptr);
            return &f;
        }();
        return loaded;
    }
};
}  // namespace

bool ReadWave(const QByteArray& file, int& rate, int& channels, QByteArray& pcm) {
    const char* d = file.constData();
    const qsizetype n = file.size();
    if (n < 12 || std::memcmp(d, "RIFF", 4) != 0 || std::memcmp(d + 8, "WAVE", 4) != 0) return false;
    bool haveFormat = false;
    qsizetype at = 12;
    while (at + 8 <= n) {
        const quint32 size = U32(d + at + 4);
        const qsizetype body = at + 8;
        if (size > quint32(n - body)) return false;
        if (std::memcmp(d + at, "fmt ", 4) == 0 && size >= 16) {
            if (U16(d + body) != 1 || U16(d + body + 14) != 16) return false;
            channels = U16(d + body + 2);
            rate = int(U32(d + body + 4));
            haveFormat = channels >= 1 && channels <= 2 && rate >= 4000 && rate <= 192000;
        } else if (std::memcmp(d + at, "data", 4) == 0) {
            if (!haveFormat) return false;
            pcm = file.mid(body, qsizetype(size) & ~qsizetype(2 * channels - 1));
            return true;
        }
        at = body + size + (size & 1);
    }
    return false;
}

// The tune: a fresh synthesizer and player for each start, so that it begins
// at the first note; the audio driver lives only while the tune plays.
class MusicPlayer {
public:
    static std::unique_ptr<MusicPlayer> Start(const QString& file) {
        if (!QFileInfo::exists(file) || !QFileInfo::exists(kSoundFont)) return nullptr;
        const Fluid* api = Fluid::Get();
        if (!api) return nullptr;
        auto m = std::make_unique<MusicPlayer>(*api);
        const Fluid& f = *api;
        m->settings_ = f.new_fluid_settings();
        if (!m->settings_) return nullptr;
        // At this gain the tune peaks where the effects do (three quarters of full scale).
        f.fluid_settings_setnum(m->settings_, "synth.gain", 1.05);
        f.fluid_settings_setint(m->settings_, "audio.period-size", 1024);
        f.fluid_settings_setint(m->settings_, "audio.periods", 2);
        f.fluid_settings_setint(m->settings_, "synth.cpu-cores", 1);
        m->synth_ = f.new_fluid_synth(m->settings_);
        if (!m->synth_ || f.fluid_synth_sfload(m->synth_, kSoundFont, 1) == FLUID_FAILED) return nullptr;
        m->player_ = f.new_fluid_player(m->synth_);
        if (!m->player_ || f.fluid_player_add(m->player_, file.toLocal8Bit().constData()) != FLUID_OK) return nullptr;
        // ALSA prints to standard error where there is no sound card: only where there is one.
        for (const char* driver : {"pulseaudio", "alsa"}) {
            if (std::strcmp(driver, "alsa") == 0 && !QFileInfo::exists("/dev/snd")) continue;
            f.fluid_settings_setstr(m->settings_, "audio.driver", driver);
            m->driver_ = f.new_fluid_audio_driver(m->settings_, m->synth_);
            if (m->driver_) break;
        }
        if (!m->driver_) return nullptr;
        f.fluid_player_play(m->player_);
        return m;
    }

    explicit MusicPlayer(const Fluid& api) : f_(api) {}
    ~MusicPlayer() {
        // The driver goes before the synthesizer it pulls samples from.
        if (player_) f_.fluid_player_stop(player_);
        if (driver_) f_.delete_fluid_audio_driver(driver_);
        if (player_) f_.delete_fluid_player(player_);
        if (synth_) f_.delete_fluid_synth(synth_);
        if (settings_) f_.delete_fluid_settings(settings_);
    }
    MusicPlayer(const MusicPlayer&) = delete;
    MusicPlayer& operator=(const MusicPlayer&) = delete;

    bool done() const { return !player_ || f_.fluid_player_get_status(player_) == FLUID_PLAYER_DONE; }

private:
    const Fluid& f_;
    fluid_settings_t* settings_ = nullptr;
    fluid_synth_t* synth_ = nullptr;
    fluid_player_t* player_ = nullptr;
    fluid_audio_driver_t* driver_ = nullptr;
};

SoundSystem::SoundSystem(QString dataPath, QObject* parent) : QObject(parent), dataPath_(std::move(dataPath)) {}

SoundSystem::~SoundSystem() {
    music_.reset();
    closeSink();
}

const SoundSystem::Clip* SoundSystem::clip(const QString& name) {
    auto it = clips_.find(name);
    if (it == clips_.end()) {
        Clip c;
        QFile file(DataFile(dataPath_, name));
        if (file.open(QIODevice::ReadOnly)) ReadWave(file.readAll(), c.rate, c.channels, c.pcm);
        it = clips_.insert(name, c);
    }
    return it->pcm.isEmpty() ? nullptr : &*it;
}

void SoundSystem::playWave(const QString& name) {
    if (!probed_) {
        probed_ = true;
        haveOutput_ = !QMediaDevices::audioOutputs().isEmpty();
    }
    const Clip* c = clip(name);
    if (!c || !haveOutput_ || !ensureSink(*c)) return;
    ++wavesStarted_;
    playing_ = c->pcm;
    position_ = 0;
    feed();
}

bool SoundSystem::ensureSink(const Clip& c) {
    if (sink_ && (sinkRate_ != c.rate || sinkChannels_ != c.channels)) closeSink();
    if (sink_) return true;
    QAudioFormat format;
    format.setSampleRate(c.rate);
    format.setChannelCount(c.channels);
    format.setSampleFormat(QAudioFormat::Int16);
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull() || !device.isFormatSupported(format)) return false;
    sink_ = new QAudioSink(device, format, this);
    sink_->setBufferSize(c.rate * c.channels * 2 / 10);  // 100 ms
    io_ = sink_->start();
    if (!io_) {
        closeSink();
        return false;
    }
    sinkRate_ = c.rate;
    sinkChannels_ = c.channels;
    if (!feeder_) {
        feeder_ = new QTimer(this);
        feeder_->setTimerType(Qt::PreciseTimer);
        connect(feeder_, &QTimer::timeout, this, [this] { feed(); });
    }
    feeder_->start(kFeedMs);
    return true;
}

// Push mode: writes as much of the sound as the sink takes, then silence, and
// closes the sink after a while of silence.
void SoundSystem::feed() {
    if (!sink_ || !io_) return;
    qsizetype free = sink_->bytesFree();
    const qsizetype frame = 2 * sinkChannels_;
    free -= free % frame;
    if (free <= 0) return;
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (position_ < playing_.size()) {
        const qsizetype n = qMin(free, playing_.size() - position_);
        io_->write(playing_.constData() + position_, n);
        position_ += n;
        idleSince_ = now;
        free -= n;
    }
    if (position_ >= playing_.size()) {
        if (free > 0) io_->write(QByteArray(free, '\0'));
        if (now - idleSince_ > kCloseAfterMs) closeSink();
    }
}

void SoundSystem::closeSink() {
    if (feeder_) feeder_->stop();
    if (sink_) {
        sink_->stop();
        delete sink_;
    }
    sink_ = nullptr;
    io_ = nullptr;
}

void SoundSystem::startMusic() {
    music_.reset();
    music_ = MusicPlayer::Start(DataFile(dataPath_, "Quillmark.MID"));
    if (!music_) return;
    // Closes the driver once the tune has ended, since an open driver costs CPU.
    auto* watch = new QTimer(this);
    MusicPlayer* current = music_.get();
    connect(watch, &QTimer::timeout, this, [this, watch, current] {
        if (music_.get() != current) {
            watch->deleteLater();
        } else if (music_->done()) {
            music_.reset();
            watch->deleteLater();
        }
    });
    watch->start(500);
}

void SoundSystem::stopMusic() { music_.reset(); }

bool SoundSystem::musicPlaying() const { return music_ != nullptr; }

}  // namespace ch
