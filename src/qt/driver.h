// SPDX-License-Identifier: GPL-3.0-or-later
// The debug driver of the desktop program (--script FILE): reads one command a
// line and feeds it to the real windows with real waits, for screenshots, the
// start-up benchmark and the tests that need a display.
//
//   wait MS                  let MS milliseconds pass
//   click REF, dblclick REF  REF is FORM.CONTROL or FORM.CONTROL(INDEX)
//   close FORM               the user closes a window
//   resize FORM W H          the user makes a window W by H pixels
//   answer yes|no|ok|cancel  presses a button of the open message box
//   shot NAME                writes NAME-FORM.png of each window shown
//   windows                  prints "windows" and the forms shown, by name
//   size FORM                prints "size FORM W H", the window's size in pixels
//   dump FORM                prints the window's widgets, their places and texts
//   wave FILE, music on|off  sound requests, as the games make them
//   memory                   prints "peak_kb N", the peak resident memory
//   cpu start|stop           "cpu stop" prints "cpu_ms N", processor time since start
//   sounds                   prints how many waves were started and if music plays
//   quit                     ends the program
// Lines starting with # are comments.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>

namespace ch {

class Renderer;
class SoundSystem;
struct InputEvent;

class ScriptDriver : public QObject {
public:
    using Sink = std::function<void(const InputEvent&)>;
    ScriptDriver(QStringList lines, QString shotFolder, Renderer& renderer, SoundSystem& sound, Sink sink,
                 std::function<void()> quit, QObject* parent = nullptr);
    void start();

private:
    void step();
    bool execute(const QStringList& words, int& waitMs);
    void fail(const QString& text);

    QStringList lines_;
    int next_ = 0;
    QString shots_;
    Renderer& renderer_;
    SoundSystem& sound_;
    Sink sink_;
    std::function<void()> quit_;
    long cpuMark_ = 0;
};

// The peak resident memory of this process in kilobytes, 0 when unknown.
long PeakMemoryKb();

}  // namespace ch
