// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/snapjson.h"

#include <cmath>
#include <cstdio>

namespace ch {

std::string JsonString(const std::string& text) {
    std::string out = "\"";
    for (unsigned char c : text) {
        switch (c) {
            case '"': out += "\\\""; break;
            case '\\': out += "\\\\"; break;
            case '\n': out += "\\n"; break;
            case '\r': out += "\\r"; break;
            case '\t': out += "\\t"; break;
            default:
                if (c < 0x20) {
                    char buf[8];
                    std::snprintf(buf, sizeof buf, "\\u%04x", c);
                    out += buf;
                } else {
                    out += static_cast<char>(c);
                }
        }
    }
    return out + "\"";
}

namespace {

class Object {
public:
    explicit Object(std::string& out) : out_(out) { out_ += '{'; }
    ~Object() { out_ += '}'; }
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    void raw(const char* key, const std::string& value) {
        if (!first_) out_ += ',';
        first_ = false;
        out_ += '"';
        out_ += key;
        out_ += "\":";
        out_ += value;
    }
    void str(const char* key, const std::string& value) { raw(key, JsonString(value)); }
    void num(const char* key, long long value) { raw(key, std::to_string(value)); }
    void real(const char* key, double value) { raw(key, Number(value)); }
    void flag(const char* key, bool value) { raw(key, value ? "true" : "false"); }

    static std::string Number(double value) {
        if (!std::isfinite(value)) return "0";
        char buf[32];
        std::snprintf(buf, sizeof buf, "%.10g", value);
        return buf;
    }

private:
    std::string& out_;
    bool first_ = true;
};

std::string Drawing(const std::vector<DrawItem>& items) {
    std::string out = "[";
    for (const DrawItem& d : items) {
        if (out.size() > 1) out += ',';
        out += '[' + std::to_string(static_cast<int>(d.kind));
        for (double v : {d.x1, d.y1, d.x2, d.y2, d.radius, d.startAngle, d.endAngle})
            out += ',' + Object::Number(v);
        out += ',' + std::to_string(d.color) + ',' + std::to_string(d.fillColor) + ']';
    }
    return out + ']';
}

template <typename List>
std::string Strings(const List& list) {
    std::string out = "[";
    for (const std::string& s : list) {
        if (out.size() > 1) out += ',';
        out += JsonString(s);
    }
    return out + ']';
}

void WriteControl(std::string& out, const ControlSnap& s) {
    Object o(out);
    o.str("key", s.key());
    o.num("rev", static_cast<long long>(s.revision));
    o.str("kind", KindName(s.kind));
    o.str("name", s.name);
    o.num("index", s.index);
    o.str("container", s.container);
    o.num("order", s.order);
    o.str("text", s.text);
    o.flag("visible", s.visible);
    o.flag("enabled", s.enabled);
    o.num("fore", s.foreColor);
    o.num("back", s.backColor);
    o.num("borderColor", s.borderColor);
    o.num("border", s.borderStyle);
    o.num("fill", s.fillColor);
    o.num("backStyle", s.backStyle);
    o.num("picture", s.picture);
    o.num("left", s.left);
    o.num("top", s.top);
    o.num("width", s.width);
    o.num("height", s.height);
    o.str("tip", s.toolTip);
    o.flag("checked", s.checked);
    o.num("value", s.value);
    o.num("min", s.minValue);
    o.num("max", s.maxValue);
    o.str("font", s.fontName);
    o.real("size", s.fontSize);
    o.flag("bold", s.fontBold);
    o.num("align", s.alignment);
    o.num("pointer", s.mousePointer);
    o.num("icon", s.mouseIcon);
    o.num("z", s.z);
    o.flag("isDefault", s.isDefault);
    o.flag("isCancel", s.isCancel);
    o.raw("panels", Strings(s.panels));
    o.raw("drawing", Drawing(s.drawing));
    o.raw("items", Strings(s.items));
    o.num("selStart", s.selStart);
    o.num("selLength", s.selLength);
    o.num("selSerial", static_cast<long long>(s.selectionSerial));
}

}  // namespace

std::string SnapshotJson::write(const Snapshot& snapshot) {
    std::string out = "[";
    for (const FormSnap& f : snapshot.forms) {
        if (out.size() > 1) out += ',';
        Object o(out);
        o.str("name", f.name);
        o.num("instance", static_cast<long long>(f.instance));
        if (!f.changed) {
            o.flag("same", true);
            continue;
        }
        o.str("caption", f.caption);
        o.num("left", f.left);
        o.num("top", f.top);
        o.num("width", f.width);
        o.num("height", f.height);
        o.num("state", f.windowState);
        o.num("pointer", f.mousePointer);
        o.num("icon", f.mouseIcon);
        o.num("back", f.backColor);
        o.flag("visible", f.visible);
        o.flag("enabled", f.enabled);
        o.flag("modal", f.modal);
        o.str("focus", f.focus);
        o.num("focusSerial", static_cast<long long>(f.focusSerial));
        std::string controls = "[";
        for (const ControlSnap& c : f.controls) {
            if (controls.size() > 1) controls += ',';
            WriteControl(controls, c);
        }
        o.raw("controls", controls + ']');
    }
    return out + ']';
}

}  // namespace ch
