// SPDX-License-Identifier: GPL-3.0-or-later
// The renderer shows model snapshots and sends input back as events; the platform carries both across threads.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QMenuBar>
#include <QPushButton>
#include <functional>
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

// One window, built by `build`, shown through a renderer that keeps what it sends.
struct Shown {
    HeadlessPlatform headless;
    Runtime runtime{headless};
    SnapshotTaker taker;
    std::vector<InputEvent> sent;
    Renderer renderer{[this](const InputEvent& e) { sent.push_back(e); }};
    std::string name;

    // Without `build` the window is one that something else shows.
    explicit Shown(const char* formName, std::function<void(Form&)> build = nullptr) : name(formName) {
        if (!build) return;
        runtime.registerForm(name, [this, build](Runtime& rt) {
            auto form = std::make_unique<Form>(rt, name);
            build(*form);
            return form;
        });
        runtime.show(name);
        apply();
    }
    void apply() { renderer.apply(taker.take(runtime)); }
    Form& form() { return *runtime.loaded(name); }
    QWidget* window() { return renderer.visibleWindows().at(name); }
    template <typename T>
    T* find(const QString& text) {
        for (T* w : window()->findChildren<T*>())
            if (w->text() == text) return w;
        return nullptr;
    }
    static void Mouse(QWidget* widget, QEvent::Type type) {
        const QPointF at(5, 5);
        QMouseEvent e(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &e);
    }
};

// A small window with a menu, a frame, buttons and a status bar.
Shown Probe() {
    return Shown("frmProbe", [](Form& f) {
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
        f.add(kLayout);
        f.setSize(9540, 7200);
        f.c("cmdHidden").setVisible(false);
        f.c("mnuTime30").setChecked(true);
        f.c("mnuPlay").setEnabled(false);
        f.c("StatusBar1").setPanel(1, "Welcome");
    });
}

}  // namespace

TEST(Renderer, TwipsBecomePixelsAtFifteenToOne) {
    for (const auto& [twips, pixels] : {std::pair{0, 0}, {15, 1}, {1065, 71}, {22, 1}, {23, 2}, {-15, -1}})
        EXPECT_EQ(Px(twips), pixels) << twips;
}

TEST(Renderer, AFormsOuterSizeCountsItsFrameTitleAndMenuAndControlsSitInIt) {
    Shown probe = Probe();
    QWidget* window = probe.window();
    EXPECT_EQ(window->windowTitle(), QString());
    QMenuBar* menu = window->findChild<QMenuBar*>();
    ASSERT_NE(menu, nullptr);
    // 9540 x 7200 twips = 636 x 480 pixels outside; the client area below the
    // menu is 628 wide and 480 - 8 - 19 - 19 high.
    EXPECT_EQ(window->width(), 628);
    EXPECT_EQ(window->height() - menu->sizeHint().height(), 434);

    // Controls appear where the model puts them, and only when it shows them.
    QPushButton* inside = probe.find<QPushButton>("&Inside");
    ASSERT_NE(inside, nullptr);
    EXPECT_EQ(inside->geometry(), QRect(10, 20, 80, 25)) << "relative to its frame";
    EXPECT_TRUE(inside->isVisible());
    QPushButton* hidden = probe.find<QPushButton>("Hidden");
    ASSERT_NE(hidden, nullptr);
    EXPECT_FALSE(hidden->isVisible());
}

TEST(Renderer, MenusCarryCaptionsTicksAndEnabledState) {
    Shown probe = Probe();
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
    probe.form().c("mnuTime30").setChecked(false);
    probe.form().c("mnuPlay").setEnabled(true);
    probe.apply();
    EXPECT_FALSE(thirty->isChecked());
    EXPECT_TRUE(entries[0]->isEnabled());

    // Choosing an entry asks the logic; the tick stays the model's.
    thirty->trigger();
    ASSERT_EQ(probe.sent.size(), 1u);
    EXPECT_EQ(probe.sent[0].control, "mnuTime30");
    EXPECT_EQ(probe.sent[0].kind, InputKind::Click);
    EXPECT_FALSE(thirty->isChecked());
}

TEST(Renderer, ClicksAndClosingGoToTheLogicAndAReloadedFormGetsAFreshWindow) {
    Shown probe = Probe();
    probe.find<QPushButton>("&Inside")->click();
    ASSERT_EQ(probe.sent.size(), 1u);
    EXPECT_EQ(probe.sent[0].form, "frmProbe");
    EXPECT_EQ(probe.sent[0].control, "cmdInside");
    EXPECT_EQ(probe.sent[0].index, -1);

    QPointer<QWidget> window = probe.window();
    window->close();
    ASSERT_EQ(probe.sent.size(), 2u);
    EXPECT_EQ(probe.sent[1].kind, InputKind::Close);
    EXPECT_TRUE(window->isVisible()) << "the window stays until the logic unloads it";

    probe.runtime.unload(probe.form());
    probe.apply();
    EXPECT_TRUE(probe.renderer.visibleWindows().empty());
    probe.runtime.show("frmProbe");
    probe.apply();
    EXPECT_TRUE(window.isNull());
    EXPECT_NE(probe.renderer.visibleWindows().count("frmProbe"), 0u);
}

TEST(Renderer, TheSelectorShowsOnlyTheGamesOfThisBuild) {
    Shown suite("frmSelect");
    SuiteOptions options;
    options.appPath = "/nonexistent";
    StartSuite(suite.runtime, options);
    suite.apply();
    QWidget* window = suite.window();
    EXPECT_EQ(window->windowTitle(), "Quillmark's Card Haven");
    for (QPushButton* button : window->findChildren<QPushButton*>()) {
        if (button->text() == "&Sumfall!" || button->text() == "&Blackrush") {
            const char* name = button->text() == "&Sumfall!" ? "cmdSumfall" : "cmdBlackrush";
            EXPECT_EQ(button->isVisible(), suite.form().c(name).visible());
        }
        if (button->text() == "&Close") {
            EXPECT_TRUE(button->isVisible());
            button->click();
            ASSERT_FALSE(suite.sent.empty());
            EXPECT_EQ(suite.sent.back().control, "cmdClose");
        }
    }
}

// The dial's pies are in screen degrees, clockwise: a round's first quarter fills the dial's top right.
TEST(Renderer, APieFromTwelveToThreeOclockFillsTheTopRightQuarter) {
    Shown dial("frmDial", [](Form& f) {
        static const ControlSpec kLayout[] = {{ControlKind::PictureBox, "Surface", -1, 150, 150, 1500, 1500}};
        f.add(kLayout);
        f.c("Surface").setBackColor(0);
        f.c("Surface").drawPie(750, 750, 600, -90, 0, 0x00FF00, 0x00FF00);
    });
    const QImage image = dial.window()->grab().toImage();
    // The surface's centre lies at 10 + 50 pixels; look 20 pixels out.
    auto green = [&](int dx, int dy) { return image.pixelColor(60 + dx, 60 + dy).green() > 200; };
    EXPECT_TRUE(green(20, -20)) << "top right";
    EXPECT_FALSE(green(-20, -20)) << "top left";
    EXPECT_FALSE(green(20, 20)) << "bottom right";
    EXPECT_FALSE(green(-20, 20)) << "bottom left";
}

// A tall text box shows its lines; a short one is a line to type into, its edits sent to the logic.
TEST(Renderer, TextBoxesTallAndShort) {
    Shown text("frmText", [](Form& f) {
        static const ControlSpec kLayout[] = {
            {ControlKind::TextBox, "txtRules", -1, 150, 150, 4000, 3000, "First\r\nSecond"},
            {ControlKind::TextBox, "txtName", -1, 150, 3300, 2000, 300, "Ann"},
        };
        f.add(kLayout);
    });
    auto* rules = text.window()->findChild<QPlainTextEdit*>();
    ASSERT_NE(rules, nullptr);
    EXPECT_EQ(rules->toPlainText(), "First\nSecond");
    auto* name = text.window()->findChild<QLineEdit*>();
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->text(), "Ann");
    name->setFocus();
    name->end(false);
    name->insert("a");  // as typed: textEdited follows
    Q_EMIT name->textEdited(name->text());
    ASSERT_FALSE(text.sent.empty());
    EXPECT_EQ(text.sent.back().kind, InputKind::SetText);
    EXPECT_EQ(text.sent.back().text, "Anna");
    // A snapshot taken before the logic saw the edit does not undo it.
    Control& model = text.form().c("txtName");
    model.setToolTipText("Your name");
    text.apply();
    EXPECT_EQ(name->text(), "Anna");
    text.runtime.dispatch(text.sent.back());
    text.apply();
    EXPECT_EQ(name->text(), "Anna");
    // Then the logic's own text shows.
    model.setText("Bob");
    text.apply();
    EXPECT_EQ(name->text(), "Bob");

    // A selection the logic makes shows, again after the player moved the cursor, even the same one.
    model.selectAll();
    text.apply();
    EXPECT_EQ(name->selectedText(), "Bob");
    name->deselect();
    model.selectAll();
    text.apply();
    EXPECT_EQ(name->selectedText(), "Bob");
    text.sent.clear();
    Shown::Mouse(name, QEvent::MouseButtonPress);
    ASSERT_FALSE(text.sent.empty());
    EXPECT_EQ(text.sent.back().kind, InputKind::Click);
    EXPECT_EQ(text.sent.back().control, "txtName");
}

TEST(Renderer, ADoubleClickOnACardSendsAClickThenItsSecondHalf) {
    Shown shown("frmCard", [](Form& f) {
        static const ControlSpec kLayout[] = {{ControlKind::Image, "Card", 3, 150, 150, 1065, 1455}};
        f.add(kLayout);
        f.c("Card", 3).setPicture(14);
    });
    QWidget* card = shown.window()->findChild<QWidget*>("Card(3)");
    ASSERT_NE(card, nullptr);
    for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                              QEvent::MouseButtonRelease})
        Shown::Mouse(card, type);
    std::vector<std::pair<InputKind, int>> got;
    for (const InputEvent& e : shown.sent)
        if (e.kind != InputKind::MouseMove) got.emplace_back(e.kind, e.value);
    EXPECT_EQ(got, (std::vector<std::pair<InputKind, int>>{{InputKind::Click, 0}, {InputKind::DblClick, 1}}));
    EXPECT_EQ(shown.sent.back().control, "Card");
    EXPECT_EQ(shown.sent.back().index, 3);
}

// ---- the platform between the threads -------------------------------------------

namespace {
// A platform between a renderer and the logic, with no sound to play.
struct Between {
    Renderer renderer{[](const InputEvent&) {}};
    SoundSystem sound{QStringLiteral("/nonexistent")};
    QtPlatform platform{renderer, sound};

    void post(InputKind kind, const char* control) {
        InputEvent e;
        e.kind = kind;
        e.control = control;
        platform.post(e);
    }
    // The controls of the input waiting now, in order, a mouse move marked "~".
    std::vector<std::string> drain() {
        std::vector<std::string> got;
        InputEvent e;
        while (platform.wait(e, platform.now(), true) == WaitResult::Input)
            got.push_back(e.kind == InputKind::MouseMove ? e.control + "~" : e.control);
        return got;
    }
};
}  // namespace

TEST(QtPlatform, WaitTimesOutAndServesInputInOrderWithRepeatedMovesAsOne) {
    Between p;
    InputEvent e;
    const int64_t t0 = p.platform.now();
    EXPECT_EQ(p.platform.wait(e, t0 + 30, false), WaitResult::Timeout);
    EXPECT_GE(p.platform.now() - t0, 29);

    p.post(InputKind::Click, "a");
    p.post(InputKind::Click, "b");
    ASSERT_EQ(p.platform.wait(e, p.platform.now() + 1000, false), WaitResult::Input);
    EXPECT_EQ(e.control, "a");
    EXPECT_EQ(p.drain(), (std::vector<std::string>{"b"}));

    p.post(InputKind::MouseMove, "card");
    p.post(InputKind::MouseMove, "card");
    p.post(InputKind::Click, "card");
    p.post(InputKind::MouseMove, "card");
    EXPECT_EQ(p.drain(), (std::vector<std::string>{"card~", "card", "card~"}));
}

TEST(QtPlatform, InputDuringASleepIsServedAfterItAndStopEndsAWait) {
    Between p;
    std::thread user([&p] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        p.post(InputKind::Click, "late");
    });
    const int64_t t0 = p.platform.now();
    p.platform.sleep(80);  // the click arrives in the middle and must not cut it short
    EXPECT_GE(p.platform.now() - t0, 79);
    user.join();
    EXPECT_EQ(p.drain(), (std::vector<std::string>{"late"}));

    std::thread stopper([&p] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        p.platform.requestStop();
    });
    InputEvent e;
    EXPECT_THROW(p.platform.wait(e, p.platform.now() + 60000, false), StopRun);
    stopper.join();
}

}  // namespace ch
