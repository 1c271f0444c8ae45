// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/sumfall/frmSave.h"

#include "games/sumfall/frmSumfall.h"
#include "games/sumfall/modSumfall.h"
#include "suite/common.h"
#include "suite/files.h"
#include "suite/gamewindow.h"
#include "window/runtime.h"

namespace ch {

namespace {
using K = ControlKind;

// The two dialogs share one layout; the info label is lblSaveInfo in one and
// lblOpenInfo in the other, and only Save asks for a name.
std::vector<ControlSpec> Layout(const char* infoLabel, bool withUserName) {
    std::vector<ControlSpec> specs = {
        {K::Label, infoLabel, -1, 120, 120, 5700, 660, ""},
        {K::Label, "lblGameName", -1, 120, 900, 2700, 255, "File &name:"},
        {K::TextBox, "txtGameName", -1, 120, 1140, 2700, 315, "*.sfl"},
        {K::FileList, "File1", -1, 120, 1500, 2700, 1680, ""},
        {K::Label, "lblFolders", -1, 3000, 900, 2820, 255, "&Folders:"},
        {K::DirList, "Dir1", -1, 3000, 1140, 2820, 2040, ""},
        {K::DriveList, "Drive1", -1, 3000, 3240, 2820, 315, ""},
        {K::Button, "cmdOK", -1, 3000, 3720, 1335, 400, "&OK"},
        {K::Button, "cmdCancel", -1, 4485, 3720, 1335, 400, "&Cancel"},
    };
    if (withUserName) {
        specs.push_back({K::Label, "lblUserName", -1, 120, 3300, 2700, 255, "Your n&ame:"});
        specs.push_back({K::TextBox, "txtUserName", -1, 120, 3540, 2700, 315, ""});
    }
    return specs;
}

// Handlers both dialogs bind the same way: the lists and the name box.
template <typename Dialog>
void BindBrowser(Dialog& dialog, sumfall::SavedGameBrowser& browser, std::function<void()> ok) {
    dialog.on("Dir1", Ev::DblClick, [&dialog, &browser](EventArgs&) {
        browser.openFolder(dialog, dialog.c("Dir1").listIndex());
    });
    dialog.on("File1", Ev::Click, [&dialog, &browser](EventArgs&) {
        browser.pickFile(dialog, dialog.c("File1").listIndex());
    });
    dialog.on("File1", Ev::DblClick, [ok](EventArgs&) { ok(); });
    dialog.on("txtGameName", Ev::Click, [&dialog](EventArgs&) { dialog.c("txtGameName").selectAll(); });
    dialog.on("txtGameName", Ev::KeyPress, [&dialog, &browser](EventArgs& e) {
        if (e.key == 13) browser.setPattern(dialog, dialog.c("txtGameName").text());
    });
}
}  // namespace

frmSave::frmSave(Runtime& runtime) : Form(runtime, "frmSave") {
    setSize(6060, 4650);
    add(Layout("lblSaveInfo", true));
    c("cmdCancel").setCancel(true);
    on(Ev::Load, [this](EventArgs&) { Form_Load(); });
    on("cmdOK", Ev::Click, [this](EventArgs&) { cmdOK_Click(); });
    on("cmdCancel", Ev::Click, [this](EventArgs&) { cmdCancel_Click(); });
    BindBrowser(*this, browser_, [this] { cmdOK_Click(); });
}

void frmSave::Form_Load() {
    CentreOnScreen(*this);
    setCaption("Save Last Game");
    c("lblSaveInfo").setCaption(std::string("Use this dialog to save the last game played. ") +
                                "You may load a saved game later to replay it. This cannot be used to save a game "
                                "in progress.");
    c("txtGameName").setToolTipText("Enter the filename to be used for the saved game");
    c("txtUserName").setToolTipText("Enter your name if you want it to be saved with this game");
    c("cmdOK").setToolTipText("Saves the game to the specified filename");
    c("cmdCancel").setToolTipText("Cancels the save");
    browser_.start(*this, AppPath);
}

void frmSave::cmdOK_Click() {
    frmSumfall& game = runtime().form<frmSumfall>("frmSumfall");
    sumfall::SavedGame saved;
    saved.cardGoal = game.DecksCardGoal;
    saved.timeLimit = TimeLimit;
    saved.score = PreviousScore;
    saved.custom = CustomScoringInUse;
    saved.userName = c("txtUserName").text();
    saved.round1 = game.Round1Deck;
    saved.round2 = game.Round2Deck;
    saved.round3 = game.Round3Deck;
    const std::string path = browser_.targetPath(*this);
    if (!sumfall::SavedGameBrowser::IsFileName(path) || !WriteFileAtomic(path, sumfall::SavedGameText(saved))) {
        MsgBox("Unable to save the file. Please verify that you have entered a valid path and file name.",
               MsgButtons::OK, MsgIcon::Critical, AppTitle);
        return;
    }
    runtime().unload(*this);
}

void frmSave::cmdCancel_Click() { runtime().unload(*this); }

frmOpen::frmOpen(Runtime& runtime) : Form(runtime, "frmOpen") {
    setSize(6060, 4650);
    add(Layout("lblOpenInfo", false));
    c("cmdCancel").setCancel(true);
    on(Ev::Load, [this](EventArgs&) { Form_Load(); });
    on("cmdOK", Ev::Click, [this](EventArgs&) { cmdOK_Click(); });
    on("cmdCancel", Ev::Click, [this](EventArgs&) { cmdCancel_Click(); });
    BindBrowser(*this, browser_, [this] { cmdOK_Click(); });
}

void frmOpen::Form_Load() {
    CentreOnScreen(*this);
    setCaption("Open Saved Game");
    c("lblOpenInfo").setCaption(std::string("Use this dialog to open a previously saved game. If you want to use ") +
                                "customized scoring you must set that option before opening a saved game.");
    c("txtGameName").setToolTipText("Enter the name of the saved game to open");
    c("cmdOK").setToolTipText("Opens the specified saved game");
    c("cmdCancel").setToolTipText("Cancels opening a saved game");
    browser_.start(*this, AppPath);
}

void frmOpen::cmdOK_Click() {
    const std::string path = browser_.targetPath(*this);
    if (runtime().form<frmSumfall>("frmSumfall").LoadSavedGame(path)) runtime().unload(*this);
}

void frmOpen::cmdCancel_Click() { runtime().unload(*this); }

}  // namespace ch
