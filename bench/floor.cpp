// SPDX-License-Identifier: GPL-3.0-or-later
// The floor the desktop program is measured against: a bare Qt Widgets window
// that paints one card and does nothing else. bench/startup.sh runs it beside
// the program in the same run.
//   bench-floor [--stay MS]
// Prints "shown_at_ns N" at its first paint, "peak_kb N" (peak resident
// memory) 5 s later, and after MS milliseconds (default 10000) "cpu_ms N",
// the processor time since the first paint, and ends.
#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <sys/resource.h>

namespace {

long CpuMs() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000L +
           (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000L;
}

long PeakKb() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:")) return line.mid(6).trimmed().split(' ').value(0).toLong();
    return 0;
}

class CardWindow : public QWidget {
public:
    explicit CardWindow(int stayMs) : stayMs_(stayMs) {
        setWindowTitle(QStringLiteral("floor"));
        resize(200, 160);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.fillRect(rect(), QColor(0x1E, 0x6B, 0x3A));
        p.setRenderHint(QPainter::Antialiasing);
        QPainterPath card;
        card.addRoundedRect(QRectF(60.5, 30.5, 71, 96), 6, 6);
        p.fillPath(card, Qt::white);
        p.setPen(Qt::black);
        p.drawPath(card);
        p.setPen(QColor(0xC0, 0, 0));
        p.setFont(QFont(QStringLiteral("DejaVu Sans"), 14, QFont::Bold));
        p.drawText(QRectF(64, 32, 30, 24), Qt::AlignLeft, QStringLiteral("A"));
        p.setFont(QFont(QStringLiteral("DejaVu Sans"), 28));
        p.drawText(QRectF(60, 30, 71, 96), Qt::AlignCenter, QString(QChar(0x2665)));
        if (painted_) return;
        painted_ = true;
        timespec ts{};
        clock_gettime(CLOCK_REALTIME, &ts);
        std::printf("shown_at_ns %lld\n", static_cast<long long>(ts.tv_sec) * 1000000000LL + ts.tv_nsec);
        std::fflush(stdout);
        const long mark = CpuMs();
        QTimer::singleShot(5000, this, [] {
            std::printf("peak_kb %ld\n", PeakKb());
            std::fflush(stdout);
        });
        QTimer::singleShot(std::max(stayMs_, 5001), this, [mark] {
            std::printf("cpu_ms %ld\n", CpuMs() - mark);
            std::fflush(stdout);
            QCoreApplication::quit();
        });
    }

private:
    int stayMs_;
    bool painted_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    int stay = 10000;
    for (int i = 1; i + 1 < argc; ++i)
        if (QByteArray(argv[i]) == "--stay") stay = QByteArray(argv[i + 1]).toInt();
    int qtArgc = 1;
    QApplication app(qtArgc, argv);
    CardWindow window(stay);
    window.show();
    return app.exec();
}
