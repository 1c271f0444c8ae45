// SPDX-License-Identifier: GPL-3.0-or-later
// The tests of the desktop front end run on Qt's offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>

namespace {
// The offscreen platform says so when a window is raised; nothing else is dropped.
void Handler(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.contains(QLatin1String("does not support raise"))) std::fprintf(stderr, "%s\n", qPrintable(text));
}
}  // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    qInstallMessageHandler(Handler);
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
