// SPDX-License-Identifier: GPL-3.0-or-later
// cardhaven [--home DIR] [--] [SAVED-GAME]
// The desktop program: the Qt thread shows the windows and plays the sounds,
// the logic runs on a thread of its own. Arguments that are not options form
// the command line the game windows see (Sumfall opens it as a saved game);
// after "--" every argument is one of them.
//
// Debug options: --data DIR (wave and music files), --script FILE (see
// src/qt/driver.h), --shots DIR (where the script's shots go), --list-games
// (the game windows of this build), --report-startup (prints when the first
// window has been painted), --write-icon FILE SIZE (the icon as a PNG),
// --card-sheet FILE RATIO (every picture of the catalogue on one PNG),
// --card-sprites FILE RATIO (the same sheet on a transparent ground, which
// the web edition cuts its pictures from).
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QPainter>
#include <QStandardPaths>
#include <QTextStream>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <thread>
#include <unistd.h>

#include "games/games.h"
#include "qt/cardart.h"
#include "qt/driver.h"
#include "qt/qtplatform.h"
#include "qt/renderer.h"
#include "qt/sound.h"
#include "suite/cards.h"
#include "suite/suite.h"
#include "window/headless.h"
#include "window/runtime.h"

namespace {

struct Options {
    ch::SuiteOptions suite;
    QString script;
    QString shots = QStringLiteral(".");
    bool listGames = false;
    bool reportStartup = false;
    QString iconFile;
    int iconSize = 256;
    QString sheetFile;
    double sheetRatio = 1;
    bool sheetTable = true;
};

#ifndef CARDHAVEN_VERSION
#define CARDHAVEN_VERSION "unknown"
#endif

constexpr char kUsage[] = "usage: cardhaven [--home DIR] [--help] [--version] [--] [SAVED-GAME]\n";

[[noreturn]] void Usage(const std::string& complaint) {
    std::cerr << "cardhaven: " << complaint << "\n" << kUsage << "Try 'cardhaven --help' for more.\n";
    std::exit(2);
}

void PrintHelp() {
    std::cout << kUsage
              << "Quillmark's Card Haven: seven timed arcade card games behind one selector.\n"
                 "\n"
                 "  --home DIR     keep settings, high score tables and saved games in DIR\n"
                 "                 (by default the program's folder when it is writable and\n"
                 "                 not installed, else ~/.local/share/cardhaven)\n"
                 "  --help         print this help and exit\n"
                 "  --version      print the version and exit\n"
                 "\n"
                 "A saved Sumfall game (a .sfl file) named on the command line is opened when\n"
                 "the Sumfall window first comes up.\n"
                 "\n"
                 "For testing: --data DIR, --script FILE, --shots DIR, --list-games,\n"
                 "--report-startup, --write-icon FILE SIZE, --card-sheet FILE RATIO,\n"
                 "--card-sprites FILE RATIO.\n";
}

double PositiveNumber(const std::string& option, const std::string& text) {
    char* end = nullptr;
    const double n = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !(n > 0)) Usage(option + " needs a positive number, not '" + text + "'");
    return n;
}

Options ParseArguments(int argc, char** argv) {
    Options o;
    std::string command;
    bool optionsEnded = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        auto value = [&]() -> std::string {
            if (i + 1 >= argc) Usage(arg + " needs a value");
            return argv[++i];
        };
        if (optionsEnded || arg.empty() || arg[0] != '-' || arg == "-") {
            if (!command.empty()) command += ' ';
            command += arg;
        } else if (arg == "--") optionsEnded = true;
        else if (arg == "--help" || arg == "-h") {
            PrintHelp();
            std::exit(0);
        } else if (arg == "--version") {
            std::cout << "cardhaven " CARDHAVEN_VERSION "\n";
            std::exit(0);
        } else if (arg == "--home") o.suite.appPath = value();
        else if (arg == "--data") o.suite.dataPath = value();
        else if (arg == "--script") o.script = QString::fromStdString(value());
        else if (arg == "--shots") o.shots = QString::fromStdString(value());
        else if (arg == "--list-games") o.listGames = true;
        else if (arg == "--report-startup") o.reportStartup = true;
        else if (arg == "--write-icon") {
            o.iconFile = QString::fromStdString(value());
            o.iconSize = static_cast<int>(PositiveNumber(arg, value()));
        } else if (arg == "--card-sheet" || arg == "--card-sprites") {
            o.sheetTable = arg == "--card-sheet";
            o.sheetFile = QString::fromStdString(value());
            o.sheetRatio = PositiveNumber(arg, value());
        } else Usage("unknown option " + arg);
    }
    o.suite.commandLine = command;
    return o;
}

std::string ProgramFolder() {
    std::error_code ec;
    const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    return ec ? std::string(".") : exe.parent_path().string();
}

// An installed program keeps its data in ../share/cardhaven, a build tree or a
// portable copy beside itself.
bool Installed(const std::string& programFolder) {
    return !std::filesystem::exists(programFolder + "/data/Chord.wav") &&
           std::filesystem::exists(programFolder + "/../share/cardhaven/Chord.wav");
}

// The program's folder when it is writable and not an installed one (a build
// tree, a portable copy), else the user's data folder.
std::string DefaultHome(const std::string& programFolder) {
    if (!Installed(programFolder) && access(programFolder.c_str(), W_OK) == 0) return programFolder;
    const char* xdg = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    std::string base = xdg && *xdg ? xdg : std::string(home ? home : ".") + "/.local/share";
    std::string folder = base + "/cardhaven";
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    return folder;
}

std::string DefaultData(const std::string& programFolder) {
    for (const std::string& candidate : {programFolder + "/data", programFolder + "/../share/cardhaven"})
        if (std::filesystem::exists(candidate + "/Chord.wav")) return candidate;
    return programFolder + "/data";
}

// The private runtime folder made where the session has none, removed at exit.
std::string g_runtimeDir;

void RemoveRuntimeDir() {
    if (g_runtimeDir.empty()) return;
    std::error_code ec;
    std::filesystem::remove_all(g_runtimeDir, ec);
    g_runtimeDir.clear();
}

// Set while the application object opens its display.
std::atomic<bool> g_openingDisplay{false};

[[noreturn]] void NoDisplay() {
    const char* display = std::getenv("DISPLAY");
    if (!display || !*display) display = std::getenv("WAYLAND_DISPLAY");
    if (display && *display)
        std::fprintf(stderr, "cardhaven: cannot open the display %s\n", display);
    else
        std::fprintf(stderr, "cardhaven: no display to show the windows on (DISPLAY is not set)\n");
    RemoveRuntimeDir();
    std::_Exit(1);
}

// Without QT_QPA_PLATFORM the windows go to an X or Wayland display, and one
// must be named.
bool DisplayNamed() {
    const char* platform = std::getenv("QT_QPA_PLATFORM");
    if (platform && *platform) return true;
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY"}) {
        const char* value = std::getenv(name);
        if (value && *value) return true;
    }
    return false;
}

// Messages of Qt's audio back end where there is no audio device are dropped;
// a display that cannot be opened ends the program with one line of its own.
void QuietHandler(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (g_openingDisplay) {
        if (type == QtFatalMsg) NoDisplay();
        if (text.contains(QLatin1String("display")) || text.contains(QLatin1String("platform plugin"))) return;
    }
    static const char* const kDropped[] = {"No audio device", "audio device", "pulseaudio", "PulseAudio",
                                           "QAudioSink", "ALSA"};
    for (const char* dropped : kDropped)
        if (text.contains(QLatin1String(dropped))) return;
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

// Every catalogue entry at its own size, thirteen to a row in cells of 84 by
// 110 pixels, on a green table or on nothing.
bool WriteCardSheet(const QString& file, qreal ratio, bool table) {
    const int cell = 84, rowHeight = 110, columns = 13, rows = 6;
    QImage sheet(qRound(columns * cell * ratio + 8 * ratio), qRound(rows * rowHeight * ratio + 8 * ratio),
                 QImage::Format_ARGB32_Premultiplied);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(table ? QColor(0x1E, 0x6B, 0x3A) : QColor(Qt::transparent));
    QPainter p(&sheet);
    auto place = [&](int index, int slot) {
        const QPixmap pixmap = ch::CardPixmap(index, ratio);
        p.drawPixmap(QPointF(8 + slot % columns * cell, 8 + slot / columns * rowHeight), pixmap);
    };
    int slot = 0;
    for (int i = ch::ImageCatalogue::kFirstFace; i <= ch::ImageCatalogue::kLastFace; ++i) place(i, slot++);
    for (int i = 1; i <= 12; ++i) place(i, slot++);
    for (int i : {ch::ImageCatalogue::kEmptyPlace, ch::ImageCatalogue::kPointer, ch::ImageCatalogue::kEmpty76x100,
                  ch::ImageCatalogue::kSplashEmblem})
        place(i, slot++);
    p.end();
    return sheet.save(file);
}

int ListGames() {
    ch::HeadlessPlatform platform;
    ch::Runtime runtime(platform);
    ch::RegisterGameForms(runtime);
    for (const ch::GameInfo* game : ch::RegisteredGames())
        if (game->button) std::printf("%s %s\n", game->button, game->form);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    Options options = ParseArguments(argc, argv);
    if (options.listGames) return ListGames();

    // The icon and the card sheet are drawn without a window.
    if (!options.iconFile.isEmpty() || !options.sheetFile.isEmpty()) setenv("QT_QPA_PLATFORM", "offscreen", 0);
    if (!DisplayNamed()) NoDisplay();

    // Qt's audio wants a runtime folder; a private one where the session has none.
    if (!std::getenv("XDG_RUNTIME_DIR")) {
        std::string pattern = (std::filesystem::temp_directory_path() / "cardhaven-run-XXXXXX").string();
        if (mkdtemp(pattern.data())) {
            g_runtimeDir = pattern;
            setenv("XDG_RUNTIME_DIR", g_runtimeDir.c_str(), 1);
        }
    }
    struct RuntimeDirCleanup {
        ~RuntimeDirCleanup() { RemoveRuntimeDir(); }
    } runtimeDirCleanup;
    qInstallMessageHandler(QuietHandler);

    // Qt sees no arguments: they are all ours, and a saved game's name must
    // not be taken for one of Qt's options.
    int qtArgc = 1;
    g_openingDisplay = true;
    QApplication app(qtArgc, argv);
    g_openingDisplay = false;
    QApplication::setApplicationName(QStringLiteral("cardhaven"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quillmark's Card Haven"));
    QApplication::setDesktopFileName(QStringLiteral("games.quillmark.cardhaven"));
    QApplication::setQuitOnLastWindowClosed(false);

    if (!options.iconFile.isEmpty()) {
        const bool ok = ch::AppIconPixmap(options.iconSize).save(options.iconFile);
        return ok ? 0 : 1;
    }
    if (!options.sheetFile.isEmpty()) return WriteCardSheet(options.sheetFile, options.sheetRatio, options.sheetTable) ? 0 : 1;
    QIcon icon;
    for (int size : {16, 32, 48, 64}) icon.addPixmap(ch::AppIconPixmap(size, app.devicePixelRatio()));
    QApplication::setWindowIcon(icon);

    const std::string programFolder = ProgramFolder();
    if (options.suite.appPath.empty()) {
        options.suite.appPath = DefaultHome(programFolder);
    } else {
        std::error_code ec;
        std::filesystem::create_directories(options.suite.appPath, ec);
    }
    if (options.suite.dataPath.empty()) options.suite.dataPath = DefaultData(programFolder);

    int status = 0;
    {
        ch::SoundSystem sound(QString::fromStdString(options.suite.dataPath));
        ch::QtPlatform* platformPtr = nullptr;
        ch::Renderer renderer([&platformPtr](const ch::InputEvent& e) { platformPtr->post(e); });
        ch::QtPlatform platform(renderer, sound);
        platformPtr = &platform;

        if (options.reportStartup) {
            renderer.setFirstPaintHook([] {
                timespec ts{};
                clock_gettime(CLOCK_REALTIME, &ts);
                std::printf("shown_at_ns %lld\n", static_cast<long long>(ts.tv_sec) * 1000000000LL + ts.tv_nsec);
                std::fflush(stdout);
            });
        }

        std::unique_ptr<ch::ScriptDriver> driver;
        if (!options.script.isEmpty()) {
            QFile file(options.script);
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "cardhaven: cannot read %s\n", qPrintable(options.script));
                return 2;
            }
            const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
            driver = std::make_unique<ch::ScriptDriver>(
                lines, options.shots, renderer, sound, [&platform](const ch::InputEvent& e) { platform.post(e); },
                [&platform] {
                    platform.requestStop();
                });
            driver->start();
        }

        std::thread logic([&] {
            int result = 0;
            try {
                ch::Runtime runtime(platform);
                ch::RegisterGameForms(runtime);
                ch::StartSuite(runtime, options.suite);
                runtime.run();
            } catch (const ch::StopRun&) {
            } catch (const std::exception& e) {
                std::fprintf(stderr, "cardhaven: %s\n", e.what());
                result = 1;
            }
            QMetaObject::invokeMethod(&app, [result] { QCoreApplication::exit(result); }, Qt::QueuedConnection);
        });
        status = app.exec();
        platform.requestStop();
        logic.join();
        driver.reset();
    }
    return status;
}
