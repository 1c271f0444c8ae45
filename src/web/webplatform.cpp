// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/webplatform.h"

#include <cmath>
#include <cstdlib>
#include <map>
#include <sstream>
#include <vector>

#include "suite/cards.h"
#include "web/snapjson.h"
#include "window/runtime.h"

// The JavaScript half, in src/web/bridge.js.
extern "C" {
double ch_now();
void ch_wall(int* fields);
char* ch_take_input();
int ch_wait_input(int ms);
int ch_sleep(int ms);
void ch_post(const char* type, const char* body);
void ch_post_snapshot(const char* body, double linesTaken);
int ch_request(const char* type, const char* body);
double ch_text_width(const char* text, int pixelSize, int bold);
int ch_screen(int which);
}

namespace ch {

namespace {

std::vector<std::string> Split(const std::string& text, char sep) {
    std::vector<std::string> out;
    std::string field;
    for (char c : text) {
        if (c == sep) {
            out.push_back(field);
            field.clear();
        } else {
            field += c;
        }
    }
    out.push_back(field);
    return out;
}

int Int(const std::string& text) { return std::atoi(text.c_str()); }

const std::map<std::string, InputKind>& Kinds() {
    static const std::map<std::string, InputKind> kinds = {
        {"click", InputKind::Click},   {"dblclick", InputKind::DblClick},  {"move", InputKind::MouseMove},
        {"key", InputKind::Key},       {"text", InputKind::SetText},       {"focus", InputKind::Focus},
        {"check", InputKind::Check},   {"choose", InputKind::Choose},      {"close", InputKind::Close},
        {"resize", InputKind::Resize}, {"state", InputKind::WindowState},  {"select", InputKind::ListSelect},
        {"answer", InputKind::MessageBoxAnswer},
    };
    return kinds;
}

}  // namespace

bool ParseInputLine(const std::string& line, InputEvent& event) {
    const std::vector<std::string> f = Split(line, '\x1f');
    if (f.size() < 9) return false;
    auto kind = Kinds().find(f[0]);
    if (kind == Kinds().end()) return false;
    event = InputEvent{};
    event.kind = kind->second;
    event.form = f[1];
    event.control = f[2];
    event.index = f[3].empty() ? -1 : Int(f[3]);
    event.text = f[4];
    event.key = Int(f[5]);
    event.value = Int(f[6]);
    event.width = Int(f[7]);
    event.height = Int(f[8]);
    if (event.kind == InputKind::MessageBoxAnswer) {
        static const MsgAnswer answers[] = {MsgAnswer::OK, MsgAnswer::Cancel, MsgAnswer::Yes, MsgAnswer::No};
        event.answer = event.value >= 0 && event.value < 4 ? answers[event.value] : MsgAnswer::OK;
    }
    return true;
}

int64_t WebPlatform::now() { return static_cast<int64_t>(ch_now()); }

void WebPlatform::sleep(int ms) {
    // Nothing is served meanwhile: the page's input waits in the shared queue.
    if (ch_sleep(ms > 0 ? ms : 0)) throw StopRun{};
}

int64_t WebPlatform::wallClock() {
    int f[7] = {};
    ch_wall(f);
    DateTime t;
    t.year = f[0];
    t.month = f[1];
    t.day = f[2];
    t.hour = f[3];
    t.minute = f[4];
    t.second = f[5];
    t.millisecond = f[6];
    return ToMillis(t);
}

void WebPlatform::drain() {
    char* taken = ch_take_input();
    if (!taken) return;
    const std::string lines(taken);
    std::free(taken);
    for (const std::string& line : Split(lines, '\x1e')) {
        if (line.empty()) continue;
        ++linesRead_;
        // The test page stacks the next deal as the driver's `stack` does.
        if (line.rfind("stack\x1f", 0) == 0) {
            if (testHooks_) {
                std::istringstream cards(line.substr(6));
                std::vector<std::string> order;
                for (std::string card; cards >> card;) order.push_back(card);
                randomness::StackNextShuffle(order);
            }
            linesTaken_ = linesRead_;
            continue;
        }
        InputEvent event;
        if (ParseInputLine(line, event)) pending_.emplace_back(std::move(event), linesRead_);
    }
}

WaitResult WebPlatform::wait(InputEvent& event, int64_t deadline, bool pollOnly) {
    // The suite ends when its last window has gone.
    if (loadedForms_ == 0) throw StopRun{};
    drain();
    while (pending_.empty() && !pollOnly) {
        const int64_t left = deadline - now();
        if (left <= 0) break;
        // Woken by the page's next input, or by its request to stop.
        if (ch_wait_input(static_cast<int>(std::min<int64_t>(left, 1 << 30)))) throw StopRun{};
        drain();
    }
    if (pending_.empty()) return WaitResult::Timeout;
    event = std::move(pending_.front().first);
    linesTaken_ = pending_.front().second;
    pending_.pop_front();
    return WaitResult::Input;
}

void WebPlatform::openMessageBox(const MessageBox& box) {
    const std::string body = "{\"text\":" + JsonString(box.text) + ",\"title\":" + JsonString(box.title) +
                             ",\"icon\":" + std::to_string(static_cast<int>(box.icon)) +
                             ",\"buttons\":" + std::to_string(static_cast<int>(box.buttons)) + "}";
    ch_post("msgbox", body.c_str());
}

void WebPlatform::present(Runtime& runtime) {
    loadedForms_ = static_cast<int>(runtime.loadedForms().size());
    if (runtime.revision() == presented_) return;
    presented_ = runtime.revision();
    const std::string body = json_.write(*taker_.take(runtime));
    ch_post_snapshot(body.c_str(), static_cast<double>(linesTaken_));
}

void WebPlatform::playWave(const std::string& name) { ch_post("wave", JsonString(name).c_str()); }
void WebPlatform::startMusic() { ch_post("music", "true"); }
void WebPlatform::stopMusic() { ch_post("music", "false"); }

int WebPlatform::textWidth(const std::string& text, double fontSize, bool bold) {
    // The desktop's font rule: points at 96 to the inch, DejaVu a tenth smaller.
    const int pixels = std::max(1, static_cast<int>(std::lround(fontSize * 96.0 / 72.0 * 0.9)));
    return static_cast<int>(std::lround(ch_text_width(text.c_str(), pixels, bold ? 1 : 0) * 15));
}

int WebPlatform::screenWidth() { return ch_screen(0) * 15; }
int WebPlatform::screenHeight() { return ch_screen(1) * 15; }

Platform::WebResult WebPlatform::openWebPage(const std::string& url) {
    return ch_request("open", JsonString(url).c_str()) ? WebResult::Opened : WebResult::Failed;
}

}  // namespace ch
