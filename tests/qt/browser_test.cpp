// SPDX-License-Identifier: GPL-3.0-or-later
// Finding the desktop's browser: none and one found are told apart by the desktop, before any page opens.
#include <gtest/gtest.h>

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include "qt/browser.h"

namespace {

// PATH holds only a folder of our own while a test runs; BROWSER is unset.
class BrowserTest : public testing::Test {
protected:
    void SetUp() override {
        path_ = qgetenv("PATH");
        browser_ = qgetenv("BROWSER");
        qunsetenv("BROWSER");
        qputenv("PATH", dir_.path().toLocal8Bit());
    }
    void TearDown() override {
        qputenv("PATH", path_);
        if (browser_.isEmpty()) qunsetenv("BROWSER");
        else qputenv("BROWSER", browser_);
    }
    // A program in our PATH folder that prints `output`.
    void Program(const char* name, const QByteArray& output) {
        QFile file(dir_.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\nprintf '" + output + "'\n");
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QTemporaryDir dir_;
    QByteArray path_, browser_;
};

TEST_F(BrowserTest, NoneWithoutAHandlerForTheScheme) {
    EXPECT_EQ(ch::DefaultBrowser("https://example.org/"), "");
    Program("xdg-mime", "");
    EXPECT_EQ(ch::DefaultBrowser("https://example.org/"), "");
    qputenv("BROWSER", "no-such-browser");
    EXPECT_EQ(ch::DefaultBrowser("https://example.org/"), "");
}

TEST_F(BrowserTest, TheDesktopsHandlerOrBrowserVariable) {
    Program("xdg-mime", "web.desktop\\n");
    EXPECT_EQ(ch::DefaultBrowser("https://example.org/"), "web.desktop");
    Program("mybrowser", "");
    qputenv("BROWSER", "mybrowser --new-window:other");
    EXPECT_EQ(ch::DefaultBrowser("https://example.org/"), "mybrowser");
}

}  // namespace
