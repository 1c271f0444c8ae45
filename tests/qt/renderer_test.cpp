// SPDX-License-Identifier: GPL-3.0-or-later
// The renderer shows a snapshot of the model and sends the user's input back
// as events; the platform carries events and snapshots between the threads.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QMenuBar>
#include <QPushButton>
#include <thread>
#include <vector>

#include "qt/qtplatform.h"
#include "qt/renderer.h"
#include "window/snapshot.h"
#include "qt/sound.h"
#include "suite/suite.h"
#include "window/headless.h"
#include "window/runtime.h"

namespace ch {
namespace {

// A small window with a menu, a frame, buttons and a status bar.
class frmProbe : public Form {
public:
    explicit frmProbe(Runtime& rt) : Form(rt, "frmProbe") {
        static const ControlSpec kLayout[] = {
            {ControlKind::Menu, "mnuFile", -1, 0, 0, 0, 0, "&File"},
            {ControlKind::Menu, "mnuPlay", -1, 0, 0, 0, 0, "&Play", "mnuFile"},
            {ControlKind::Menu, "mnuSep", -1, 0, 0, 0, 0, "-", "mnuFile"},
            {ControlKind::Menu, "mnuTime", -1, 0, 0, 0, 0, "&Time Limit", "mnuFile"},
            {ControlKind::Menu, "mnuTime30", -1, 0, 0, 0, 0, "30 seconds", "mnuTime"},
            {ControlKind::Frame, "fraBox", -1, 150, 150, 3000, 1500, "Box"},
            {ControlKind::Button, "cmdInside", -1, 150, 300, 1200, 375, "&Inside", "fraBox"},
            {ControlKind::Button, "cmdHidden", -1, 4000, 150, 1200, 375, "Hidden"},
            {ControlKind::Label, "lblText", -1, 150, 2000, 3000, 300, "Hello"},
            {ControlKind::StatusBar, "StatusBar1", -1, 0, 0, 0, 375},
        };
        add(kLayout);
        setSize(9540, 7200);
        c("cmdHidden").setVisible(false);
        c("mnuTime30").setChecked(true);
        c("mnuPlay").setEnabled(false);
        c("StatusBar1").setPanel(1, "Welcome");
    }
};

struct Probe {
    HeadlessPlatform headless;
    Runtime runtime{headless};
    SnapshotTaker taker;
    std::vector<InputEvent> sent;
    Renderer renderer{[this](const InputEvent& e) { sent.push_back(e); }};

    Probe() {
        runtime.registerForm("frmProbe", [](Runtime& rt) { return std::make_unique<frmProbe>(rt); });
        runtime.show("frmProbe");
        renderer.apply(taker.take(runtime));
    }
    QWidget* window() { return renderer.visibleWindows().at("frmProbe"); }
    template <typename T>
    T* find(const QString& text) {
        for (T* w : window()->findChildren<T*>())
            if (w->text() == text) return w;
        return nullptr;
    }
};

}  // namespace

TEST(Renderer, TwipsBecomePixelsAtFifteenToOne) {
    EXPECT_EQ(Px(0), 0);
    EXPECT_EQ(Px(15), 1);
    EXPECT_EQ(Px(1065), 71);
    EXPECT_EQ(Px(22), 1);
    EXPECT_EQ(Px(23), 2);
    EXPECT_EQ(Px(-15), -1);
}

TEST(Renderer, AFormsOuterSizeCountsItsFrameTitleAndMenu) {
    Probe probe;
    QWidget* window = probe.window();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), QString());
    QMenuBar* menu = window->findChild<QMenuBar*>();
    ASSERT_NE(menu, nullptr);
    // 9540 x 7200 twips = 636 x 480 pixels outside; the client area below the
    // menu is 628 wide and 480 - 8 - 19 - 19 high.
    EXPECT_EQ(window->width(), 628);
    EXPECT_EQ(window->height() - menu->sizeHint().height(), 434);
}

TEST(Renderer, ControlsAppearWhereTheModelPutsThem) {
    Probe probe;
    QPushButton* inside = probe.find<QPushButton>("&Inside");
    ASSERT_NE(inside, nullptr);
    EXPECT_EQ(inside->geometry(), QRect(10, 20, 80, 25)) << "relative to its frame";
    EXPECT_TRUE(inside->isVisible());
    QPushButton* hidden = probe.find<QPushButton>("Hidden");
    ASSERT_NE(hidden, nullptr);
    EXPECT_FALSE(hidden->isVisible());
}

TEST(Renderer, MenusCarryCaptionsTicksAndEnabledState) {
    Probe probe;
    QMenuBar* bar = probe.window()->findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(bar->actions().size(), 1);
    QMenu* file = bar->actions()[0]->menu();
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(bar->actions()[0]->text(), "&File");
    const QList<QAction*> entries = file->actions();
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0]->text(), "&Play");
    EXPECT_FALSE(entries[0]->isEnabled());
    EXPECT_TRUE(entries[1]->isSeparator());
    ASSERT_NE(entries[2]->menu(), nullptr) << "an entry with entries of its own is a submenu";
    QAction* thirty = entries[2]->menu()->actions().value(0);
    ASSERT_NE(thirty, nullptr);
    EXPECT_TRUE(thirty->isChecked());

    // A changed model updates the same menu.
    probe.runtime.loaded("frmProbe")->c("mnuTime30").setChecked(false);
    probe.runtime.loaded("frmProbe")->c("mnuPlay").setEnabled(true);
    probe.renderer.apply(probe.taker.take(probe.runtime));
    EXPECT_FALSE(thirty->isChecked());
    EXPECT_TRUE(entries[0]->isEnabled());

    // Choosing an entry asks the logic; the tick stays the model's.
    thirty->trigger();
    ASSERT_EQ(probe.sent.size(), 1u);
    EXPECT_EQ(probe.sent[0].control, "mnuTime30");
    EXPECT_EQ(probe.sent[0].kind, InputKind::Click);
    EXPECT_FALSE(thirty->isChecked());
}

TEST(Renderer, ClicksAndClosingGoToTheLogicWhichDecides) {
    Probe probe;
    probe.find<QPushButton>("&Inside")->click();
    ASSERT_EQ(probe.sent.size(), 1u);
    EXPECT_EQ(probe.sent[0].form, "frmProbe");
    EXPECT_EQ(probe.sent[0].control, "cmdInside");
    EXPECT_EQ(probe.sent[0].index, -1);

    QWidget* window = probe.window();
    window->close();
    ASSERT_EQ(probe.sent.size(), 2u);
    EXPECT_EQ(probe.sent[1].kind, InputKind::Close);
    EXPECT_TRUE(window->isVisible()) << "the window stays until the logic unloads it";

    probe.runtime.unload(*probe.runtime.loaded("frmProbe"));
    probe.renderer.apply(probe.taker.take(probe.runtime));
    EXPECT_TRUE(probe.renderer.visibleWindows().empty());
}

TEST(Renderer, AReloadedFormGetsAFreshWindow) {
    Probe probe;
    QPointer<QWidget> first = probe.window();
    probe.runtime.unload(*probe.runtime.loaded("frmProbe"));
    probe.runtime.show("frmProbe");
    probe.renderer.apply(probe.taker.take(probe.runtime));
    EXPECT_TRUE(first.isNull());
    EXPECT_NE(probe.renderer.visibleWindows().count("frmProbe"), 0u);
}

TEST(Renderer, TheSelectorShowsOnlyTheGamesOfThisBuild) {
    HeadlessPlatform headless;
    Runtime runtime(headless);
    SuiteOptions options;
    options.appPath = "/nonexistent";
    StartSuite(runtime, options);
    SnapshotTaker taker;
    std::vector<InputEvent> sent;
    Renderer renderer([&sent](const InputEvent& e) { sent.push_back(e); });
    renderer.apply(taker.take(runtime));
    QWidget* window = renderer.visibleWindows().at("frmSelect");
    EXPECT_EQ(window->windowTitle(), "Quillmark's Card Haven");
    for (QPushButton* button : window->findChildren<QPushButton*>()) {
        const bool isGame = button->text() == "&Sumfall!" || button->text() == "&Blackrush";
        if (isGame) {
            const char* name = button->text() == "&Sumfall!" ? "cmdSumfall" : "cmdBlackrush";
            EXPECT_EQ(button->isVisible(), runtime.loaded("frmSelect")->c(name).visible());
        }
        if (button->text() == "&Close") {
            EXPECT_TRUE(button->isVisible());
            button->click();
            ASSERT_FALSE(sent.empty());
            EXPECT_EQ(sent.back().control, "cmdClose");
        }
    }
}

// The dial's pies are in screen degrees, clockwise from start to end: the
// first quarter of a round fills the top right of the dial.
TEST(Renderer, APieFromTwelveToThreeOclockFillsTheTopRightQuarter) {
    HeadlessPlatform headless;
    Runtime runtime(headless);
    runtime.registerForm("frmDial", [](Runtime& rt) {
        auto form = std::make_unique<Form>(rt, "frmDial");
        static const ControlSpec kLayout[] = {{ControlKind::PictureBox, "Surface", -1, 150, 150, 1500, 1500}};
        form->add(kLayout);
        Control& surface = form->c("Surface");
        surface.setBackColor(0);
        surface.drawPie(750, 750, 600, -90, 0, 0x00FF00, 0x00FF00);
        return form;
    });
    runtime.show("frmDial");
    SnapshotTaker taker;
    Renderer renderer([](const InputEvent&) {});
    renderer.apply(taker.take(runtime));
    QWidget* window = renderer.visibleWindows().at("frmDial");
    const QImage image = window->grab().toImage();
    // The surface's centre lies at 10 + 50 pixels; look 20 pixels out.
    auto green = [&](int dx, int dy) { return image.pixelColor(60 + dx, 60 + dy).green() > 200; };
    EXPECT_TRUE(green(20, -20)) << "top right";
    EXPECT_FALSE(green(-20, -20)) << "top left";
    EXPECT_FALSE(green(20, 20)) << "bottom right";
    EXPECT_FALSE(green(-20, 20)) << "bottom left";
}

// A tall text box shows its lines, a short one is a line to type into whose
// edits go to the logic.
TEST(Renderer, TextBoxesTallAndShort) {
    HeadlessPlatform headless;
    Runtime runtime(headless);
    runtime.registerForm("frmText", [](Runtime& rt) {
        auto form = std::make_unique<Form>(rt, "frmText");
        static const ControlSpec kLayout[] = {
            {ControlKind::TextBox, "txtRules", -1, 150, 150, 4000, 3000, "First\r\nSecond"},
            {ControlKind::TextBox, "txtName", -1, 150, 3300, 2000, 300, "Ann"},
        };
        form->add(kLayout);
        return form;
    });
    runtime.show("frmText");
    SnapshotTaker taker;
    std::vector<InputEvent> sent;
    Renderer renderer([&sent](const InputEvent& e) { sent.push_back(e); });
    renderer.apply(taker.take(runtime));
    QWidget* window = renderer.visibleWindows().at("frmText");
    auto* rules = window->findChild<QPlainTextEdit*>();
    ASSERT_NE(rules, nullptr);
    EXPECT_EQ(rules->toPlainText(), "First\nSecond");
    auto* name = window->findChild<QLineEdit*>();
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->text(), "Ann");
    name->setFocus();
    name->end(false);
    name->insert("a");  // as typed: textEdited follows
    Q_EMIT name->textEdited(name->text());
    ASSERT_FALSE(sent.empty());
    EXPECT_EQ(sent.back().kind, InputKind::SetText);
    EXPECT_EQ(sent.back().text, "Anna");
    // A snapshot taken before the logic saw the edit does not undo it.
    Control& model = runtime.loaded("frmText")->c("txtName");
    model.setToolTipText("Your name");
    renderer.apply(taker.take(runtime));
    EXPECT_EQ(name->text(), "Anna");
    runtime.dispatch(sent.back());
    renderer.apply(taker.take(runtime));
    EXPECT_EQ(name->text(), "Anna");
    // Then the logic's own text shows.
    model.setText("Bob");
    renderer.apply(taker.take(runtime));
    EXPECT_EQ(name->text(), "Bob");

    // A selection the logic makes shows, and shows again after the player
    // moved the cursor, even when it is the same selection.
    model.selectAll();
    renderer.apply(taker.take(runtime));
    EXPECT_EQ(name->selectedText(), "Bob");
    name->deselect();
    model.selectAll();
    renderer.apply(taker.take(runtime));
    EXPECT_EQ(name->selectedText(), "Bob");
    // A click in the box goes to the logic.
    sent.clear();
    const QPointF at(5, 5);
    QMouseEvent press(QEvent::MouseButtonPress, at, name->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(name, &press);
    ASSERT_FALSE(sent.empty());
    EXPECT_EQ(sent.back().kind, InputKind::Click);
    EXPECT_EQ(sent.back().control, "txtName");
}

// A mouse double click on a card: its first click goes out at once, and the
// double click then tells the logic that the first half was sent already.
TEST(Renderer, ADoubleClickOnACardSendsAClickThenItsSecondHalf) {
    HeadlessPlatform headless;
    Runtime runtime(headless);
    runtime.registerForm("frmCard", [](Runtime& rt) {
        auto form = std::make_unique<Form>(rt, "frmCard");
        static const ControlSpec kLayout[] = {{ControlKind::Image, "Card", 3, 150, 150, 1065, 1455}};
        form->add(kLayout);
        form->c("Card", 3).setPicture(14);
        return form;
    });
    runtime.show("frmCard");
    SnapshotTaker taker;
    std::vector<InputEvent> sent;
    Renderer renderer([&sent](const InputEvent& e) { sent.push_back(e); });
    renderer.apply(taker.take(runtime));
    QWidget* card = renderer.visibleWindows().at("frmCard")->findChild<QWidget*>("Card(3)");
    ASSERT_NE(card, nullptr);
    const QPointF at(10, 10);
    auto mouse = [&](QEvent::Type type) {
        QMouseEvent e(type, at, card->mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(card, &e);
    };
    mouse(QEvent::MouseButtonPress);
    mouse(QEvent::MouseButtonRelease);
    mouse(QEvent::MouseButtonDblClick);
    mouse(QEvent::MouseButtonRelease);
    std::vector<std::pair<InputKind, int>> got;
    for (const InputEvent& e : sent)
        if (e.kind != InputKind::MouseMove) got.emplace_back(e.kind, e.value);
    EXPECT_EQ(got, (std::vector<std::pair<InputKind, int>>{{InputKind::Click, 0}, {InputKind::DblClick, 1}}));
    ASSERT_FALSE(sent.empty());
    EXPECT_EQ(sent.back().control, "Card");
    EXPECT_EQ(sent.back().index, 3);
}

// ---- the platform between the threads -------------------------------------------

TEST(QtPlatform, WaitTimesOutWithoutInputAndServesInputInOrder) {
    Renderer renderer([](const InputEvent&) {});
    SoundSystem sound(QStringLiteral("/nonexistent"));
    QtPlatform platform(renderer, sound);
    InputEvent e;
    const int64_t t0 = platform.now();
    EXPECT_EQ(platform.wait(e, t0 + 30, false), WaitResult::Timeout);
    EXPECT_GE(platform.now() - t0, 29);

    InputEvent a, b;
    a.control = "a";
    b.control = "b";
    platform.post(a);
    platform.post(b);
    ASSERT_EQ(platform.wait(e, platform.now(), true), WaitResult::Input);
    EXPECT_EQ(e.control, "a");
    ASSERT_EQ(platform.wait(e, platform.now() + 1000, false), WaitResult::Input);
    EXPECT_EQ(e.control, "b");
    EXPECT_EQ(platform.wait(e, platform.now(), true), WaitResult::Timeout);
}

TEST(QtPlatform, MouseMovesOverOneControlCountOnceWhileTheLogicIsBusy) {
    Renderer renderer([](const InputEvent&) {});
    SoundSystem sound(QStringLiteral("/nonexistent"));
    QtPlatform platform(renderer, sound);
    InputEvent move;
    move.kind = InputKind::MouseMove;
    move.control = "card";
    platform.post(move);
    platform.post(move);
    InputEvent click;
    click.control = "card";
    platform.post(click);
    platform.post(move);
    InputEvent e;
    std::vector<InputKind> kinds;
    while (platform.wait(e, platform.now(), true) == WaitResult::Input) kinds.push_back(e.kind);
    EXPECT_EQ(kinds, (std::vector<InputKind>{InputKind::MouseMove, InputKind::Click, InputKind::MouseMove}));
}

TEST(QtPlatform, InputDuringASleepIsServedAfterItAndStopEndsAWait) {
    Renderer renderer([](const InputEvent&) {});
    SoundSystem sound(QStringLiteral("/nonexistent"));
    QtPlatform platform(renderer, sound);
    std::thread user([&platform] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        InputEvent click;
        click.control = "late";
        platform.post(click);
    });
    const int64_t t0 = platform.now();
    platform.sleep(80);  // the click arrives in the middle and must not cut it short
    EXPECT_GE(platform.now() - t0, 79);
    user.join();
    InputEvent e;
    ASSERT_EQ(platform.wait(e, platform.now(), true), WaitResult::Input);
    EXPECT_EQ(e.control, "late");

    std::thread stopper([&platform] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        platform.requestStop();
    });
    EXPECT_THROW(platform.wait(e, platform.now() + 60000, false), StopRun);
    stopper.join();
}

}  // namespace ch
