// SPDX-License-Identifier: GPL-3.0-or-later
// Sound on the Qt thread: wave files through one single-channel player, where
// a new sound cuts the one playing, and the MIDI tune through FluidSynth. No
// audio object exists until the first request; without an output device or
// without the soundfont everything stays silent, with no message.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <memory>

class QAudioSink;
class QIODevice;
class QTimer;

namespace ch {

class MusicPlayer;

class SoundSystem : public QObject {
public:
    explicit SoundSystem(QString dataPath, QObject* parent = nullptr);
    ~SoundSystem() override;

    // "\Chord.wav": a file of the data folder; a missing or unreadable file is silent.
    void playWave(const QString& name);
    void startMusic();  // "Quillmark.MID" from its start
    void stopMusic();

    // Counts of requests served, for the debug driver.
    int wavesStarted() const { return wavesStarted_; }
    bool musicPlaying() const;

private:
    struct Clip {
        int rate = 0;
        int channels = 0;
        QByteArray pcm;  // signed 16-bit
    };
    const Clip* clip(const QString& name);
    bool ensureSink(const Clip& clip);
    void feed();
    void closeSink();

    QString dataPath_;
    QHash<QString, Clip> clips_;
    bool probed_ = false;
    bool haveOutput_ = false;
    QAudioSink* sink_ = nullptr;
    QIODevice* io_ = nullptr;
    int sinkRate_ = 0, sinkChannels_ = 0;
    QByteArray playing_;
    qsizetype position_ = 0;
    QTimer* feeder_ = nullptr;
    qint64 idleSince_ = 0;
    int wavesStarted_ = 0;
    std::unique_ptr<MusicPlayer> music_;
};

// Reads a RIFF wave file of 16-bit PCM; false when it is anything else.
bool ReadWave(const QByteArray& file, int& rate, int& channels, QByteArray& pcm);

}  // namespace ch
