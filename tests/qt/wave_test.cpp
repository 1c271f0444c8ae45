// SPDX-License-Identifier: GPL-3.0-or-later
// The wave reader and the files the sound generator makes.
#include <gtest/gtest.h>

#include <QFile>
#include <QtEndian>
#include <vector>

#include "qt/sound.h"

namespace {

QByteArray Wave(int rate, int channels, int bits, int format, const QByteArray& pcm) {
    QByteArray out("RIFF");
    // Little-endian fields of 2 or 4 bytes.
    auto put = [&](quint32 v, int bytes) {
        for (int i = 0; i < bytes; ++i) out.append(char(v >> (8 * i) & 0xFF));
    };
    put(quint32(36 + pcm.size()), 4);
    out.append("WAVEfmt ");
    put(16, 4);
    put(quint32(format), 2);
    put(quint32(channels), 2);
    put(quint32(rate), 4);
    put(quint32(rate * channels * bits / 8), 4);
    put(quint32(channels * bits / 8), 2);
    put(quint32(bits), 2);
    out.append("data");
    put(quint32(pcm.size()), 4);
    out.append(pcm);
    return out;
}

QByteArray ReadData(const char* name) {
    QFile f(QStringLiteral(CARDHAVEN_DATA_DIR "/") + name);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

}  // namespace

TEST(ReadWave, TakesSixteenBitPcmInOneOrTwoChannelsAndRefusesTheRest) {
    int rate = 0, channels = 0;
    QByteArray pcm;
    ASSERT_TRUE(ch::ReadWave(Wave(22050, 1, 16, 1, QByteArray(100, 'x')), rate, channels, pcm));
    EXPECT_EQ((std::vector<qsizetype>{rate, channels, pcm.size()}), (std::vector<qsizetype>{22050, 1, 100}));
    ASSERT_TRUE(ch::ReadWave(Wave(44100, 2, 16, 1, QByteArray(102, 'x')), rate, channels, pcm));
    EXPECT_EQ(channels, 2);
    EXPECT_EQ(pcm.size(), 100) << "a partial frame at the end is dropped";

    QByteArray cut = Wave(22050, 1, 16, 1, QByteArray(100, 'x'));
    cut.chop(50);  // the data chunk claims more than the file holds
    QByteArray huge = Wave(22050, 1, 16, 1, QByteArray(4, 'x'));
    huge[16] = '\xff';  // a format chunk size far past the end
    huge[17] = '\xff';
    const std::pair<const char*, QByteArray> refused[] = {
        {"8-bit", Wave(22050, 1, 8, 1, QByteArray(10, 'x'))},
        {"float", Wave(22050, 1, 16, 3, QByteArray(10, 'x'))},
        {"six channels", Wave(22050, 6, 16, 1, QByteArray(12, 'x'))},
        {"empty", QByteArray()},
        {"no chunks", QByteArray("RIFF\xff\xff\xff\xffWAVE", 12)},
        {"cut", cut},
        {"huge format", huge},
    };
    for (const auto& [what, file] : refused) EXPECT_FALSE(ch::ReadWave(file, rate, channels, pcm)) << what;
}

// Every effect the games ask for exists at a length that suits it: a score step ends before the next
// 75 ms later, a refused click is short, a fanfare long enough to be heard as one.
TEST(GeneratedSounds, EveryEffectHasALengthThatFitsItsUse) {
    const struct {
        const char* name;
        int minMs, maxMs;
    } effects[] = {
        {"Applause.wav", 1500, 3000}, {"Busted.wav", 800, 2000},  {"Chord.wav", 100, 300},
        {"Click.wav", 10, 80},        {"CountScore.wav", 200, 600}, {"HighScore.wav", 800, 2000},
        {"Markq.wav", 50, 200},       {"Noise.wav", 200, 800},    {"Slide.wav", 100, 400},
        {"Snap.wav", 10, 75},         {"Tick.wav", 30, 150},      {"TwentyOne.wav", 300, 900},
        {"Wingame.wav", 1500, 3000},
    };
    for (const auto& e : effects) {
        int rate = 0, channels = 0;
        QByteArray pcm;
        ASSERT_TRUE(ch::ReadWave(ReadData(e.name), rate, channels, pcm)) << e.name;
        const int ms = static_cast<int>(pcm.size() / 2 / channels * 1000 / rate);
        EXPECT_GE(ms, e.minMs) << e.name;
        EXPECT_LE(ms, e.maxMs) << e.name;
        // Not silent, and not clipped.
        int peak = 0;
        for (qsizetype i = 0; i + 1 < pcm.size(); i += 2)
            peak = std::max(peak, std::abs(int(qFromLittleEndian<qint16>(pcm.constData() + i))));
        EXPECT_GT(peak, 8000) << e.name;
        EXPECT_LT(peak, 32000) << e.name;
    }
}

TEST(GeneratedSounds, TheTuneLastsAboutAMinute) {
    const QByteArray midi = ReadData("Quillmark.MID");
    ASSERT_GT(midi.size(), 22);
    ASSERT_TRUE(midi.startsWith("MThd"));
    const int ppq = qFromBigEndian<quint16>(midi.constData() + 12);
    ASSERT_EQ(midi.mid(14, 4), QByteArray("MTrk"));
    const quint32 size = qFromBigEndian<quint32>(midi.constData() + 18);
    ASSERT_EQ(qsizetype(22 + size), midi.size());
    const auto* d = reinterpret_cast<const quint8*>(midi.constData());
    qsizetype at = 22;
    quint64 ticks = 0;
    quint32 tempo = 500000;
    quint8 status = 0;
    int notes = 0;
    while (at < midi.size()) {
        quint32 delta = 0;
        do delta = (delta << 7) | (d[at] & 0x7F);
        while (d[at++] & 0x80);
        ticks += delta;
        if (d[at] == 0xFF) {
            const quint8 type = d[at + 1];
            const quint8 len = d[at + 2];
            if (type == 0x51) tempo = quint32(d[at + 3]) << 16 | quint32(d[at + 4]) << 8 | d[at + 5];
            at += 3 + len;
            continue;
        }
        if (d[at] & 0x80) status = d[at++];
        if ((status & 0xF0) == 0x90 && d[at + 1] > 0) ++notes;
        at += (status & 0xF0) == 0xC0 || (status & 0xF0) == 0xD0 ? 1 : 2;
    }
    const double seconds = double(ticks) / ppq * tempo / 1e6;
    EXPECT_GT(seconds, 50);
    EXPECT_LT(seconds, 80);
    EXPECT_GT(notes, 300);
}
