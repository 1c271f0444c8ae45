// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <sys/resource.h>

#include "qt/renderer.h"
#include "qt/sound.h"
#include "window/platform.h"

namespace ch {

long PeakMemoryKb() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:")) return line.mid(6).trimmed().split(' ').value(0).toLong();
    return 0;
}

ScriptDriver::ScriptDriver(QStringList lines, QString shotFolder, Renderer& renderer, SoundSystem& sound, Sink sink,
                           std::function<void()> quit, QObject* parent)
    : QObject(parent),
      lines_(std::move(lines)),
      shots_(std::move(shotFolder)),
      renderer_(renderer),
      sound_(sound),
      sink_(std::move(sink)),
      quit_(std::move(quit)) {}

void ScriptDriver::start() { QTimer::singleShot(0, this, [this] { step(); }); }

void ScriptDriver::fail(const QString& text) {
    std::fprintf(stderr, "cardhaven: script line %d: %s\n", next_, qPrintable(text));
}

void ScriptDriver::step() {
    while (next_ < lines_.size()) {
        const QString line = lines_[next_++].trimmed();
        if (line.isEmpty() || line.startsWith('#')) continue;
        const QStringList words = line.split(QRegularExpression(QStringLiteral("\\s+")));
        int waitMs = 0;
        if (!execute(words, waitMs)) return;
        if (waitMs > 0) {
            QTimer::singleShot(waitMs, this, [this] { step(); });
            return;
        }
    }
}

bool ScriptDriver::execute(const QStringList& words, int& waitMs) {
    const QString cmd = words[0];
    const QString arg = words.value(1);
    if (cmd == "wait") {
        waitMs = std::max(1, arg.toInt());
        return true;
    }
    if (cmd == "click" || cmd == "dblclick") {
        static const QRegularExpression ref(QStringLiteral("^(\\w+)\\.(\\w+)(?:\\((\\d+)\\))?$"));
        const auto m = ref.match(arg);
        if (!m.hasMatch()) {
            fail("bad reference " + arg);
            return true;
        }
        InputEvent e;
        e.kind = cmd == "click" ? InputKind::Click : InputKind::DblClick;
        e.form = m.captured(1).toStdString();
        e.control = m.captured(2).toStdString();
        e.index = m.captured(3).isEmpty() ? -1 : m.captured(3).toInt();
        sink_(e);
        waitMs = 1;
        return true;
    }
    if (cmd == "close") {
        InputEvent e;
        e.kind = InputKind::Close;
        e.form = arg.toStdString();
        sink_(e);
        waitMs = 1;
        return true;
    }
    if (cmd == "windows") {
        std::string line = "windows";
        for (const auto& [form, window] : renderer_.visibleWindows()) line += ' ' + form;
        std::printf("%s\n", line.c_str());
        std::fflush(stdout);
        return true;
    }
    if (cmd == "size") {
        const auto windows = renderer_.visibleWindows();
        auto it = windows.find(arg.toStdString());
        if (it == windows.end()) {
            fail("no window " + arg);
            return true;
        }
        std::printf("size %s %d %d\n", qPrintable(arg), it->second->width(), it->second->height());
        std::fflush(stdout);
        return true;
    }
    if (cmd == "dump") {
        const auto windows = renderer_.visibleWindows();
        auto it = windows.find(arg.toStdString());
        if (it != windows.end())
            for (QWidget* w : it->second->findChildren<QWidget*>())
                std::printf("%s %s %d,%d %dx%d %s \"%s\"\n", w->metaObject()->className(),
                            qPrintable(w->objectName()), w->x(), w->y(), w->width(), w->height(),
                            w->isVisible() ? "shown" : "hidden", qPrintable(w->accessibleName()));
        return true;
    }
    if (cmd == "resize") {
        // As the user drags the window's edge: W by H pixels of client area.
        const auto windows = renderer_.visibleWindows();
        auto it = windows.find(arg.toStdString());
        if (it == windows.end()) {
            fail("no window " + arg);
            return true;
        }
        it->second->resize(words.value(2).toInt(), words.value(3).toInt());
        waitMs = 1;
        return true;
    }
    if (cmd == "answer") {
        const QString want = arg.toLower();
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* box = qobject_cast<QMessageBox*>(w);
            if (!box || !box->isVisible()) continue;
            for (QAbstractButton* button : box->buttons()) {
                QString text = button->text().remove('&').toLower();
                if (text == want) {
                    button->click();
                    waitMs = 1;
                    return true;
                }
            }
        }
        fail("no message box with a button " + arg);
        return true;
    }
    if (cmd == "shot") {
        QDir().mkpath(shots_);
        for (const auto& [form, window] : renderer_.visibleWindows()) {
            const QString file = shots_ + '/' + arg + '-' + QString::fromStdString(form) + ".png";
            if (!window->grab().save(file)) fail("cannot write " + file);
        }
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (auto* box = qobject_cast<QMessageBox*>(w); box && box->isVisible())
                box->grab().save(shots_ + '/' + arg + "-msgbox.png");
        }
        return true;
    }
    if (cmd == "wave") {
        sound_.playWave(arg);
        return true;
    }
    if (cmd == "music") {
        if (arg == "on") sound_.startMusic();
        else sound_.stopMusic();
        return true;
    }
    if (cmd == "memory") {
        std::printf("peak_kb %ld\n", PeakMemoryKb());
        std::fflush(stdout);
        return true;
    }
    if (cmd == "cpu") {
        // "cpu start" marks the processor time used so far, "cpu stop" prints
        // the time used since, by all threads, in milliseconds.
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        const long ms = (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000L +
                        (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000L;
        if (arg == "start") {
            cpuMark_ = ms;
        } else {
            std::printf("cpu_ms %ld\n", ms - cpuMark_);
            std::fflush(stdout);
        }
        return true;
    }
    if (cmd == "sounds") {
        std::printf("waves_started %d music %s\n", sound_.wavesStarted(), sound_.musicPlaying() ? "on" : "off");
        std::fflush(stdout);
        return true;
    }
    if (cmd == "quit") {
        quit_();
        return false;
    }
    fail("unknown command " + cmd);
    return true;
}

}  // namespace ch
