// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/value.h"

#include <cmath>
#include <cstdio>

namespace ch {

std::string ValueText(const Value& value) {
    if (const bool* b = std::get_if<bool>(&value)) return *b ? "True" : "False";
    if (const long long* n = std::get_if<long long>(&value)) return std::to_string(*n);
    if (const double* d = std::get_if<double>(&value)) {
        if (std::floor(*d) == *d && std::fabs(*d) < 1e15) return std::to_string(static_cast<long long>(*d));
        char buf[40];
        std::snprintf(buf, sizeof buf, "%.15g", *d);
        return buf;
    }
    return std::get<std::string>(value);
}

namespace {
template <typename T, typename As>
VariableGetter ScalarGetter(const T& v) {
    const T* p = &v;
    return [p](int index, Value& out) {
        if (index >= 0) return false;
        out = static_cast<As>(*p);
        return true;
    };
}

template <typename T, typename As>
VariableGetter ArrayGetter(const std::vector<T>& v) {
    const std::vector<T>* p = &v;
    return [p](int index, Value& out) {
        if (index < 0 || static_cast<size_t>(index) >= p->size()) return false;
        out = static_cast<As>((*p)[static_cast<size_t>(index)]);
        return true;
    };
}
}  // namespace

VariableGetter Expose(const bool& v) { return ScalarGetter<bool, bool>(v); }
VariableGetter Expose(const int16_t& v) { return ScalarGetter<int16_t, long long>(v); }
VariableGetter Expose(const int32_t& v) { return ScalarGetter<int32_t, long long>(v); }
VariableGetter Expose(const int64_t& v) { return ScalarGetter<int64_t, long long>(v); }
VariableGetter Expose(const double& v) { return ScalarGetter<double, double>(v); }
VariableGetter Expose(const std::string& v) { return ScalarGetter<std::string, std::string>(v); }
VariableGetter Expose(const std::vector<std::string>& v) { return ArrayGetter<std::string, std::string>(v); }
VariableGetter Expose(const std::vector<int16_t>& v) { return ArrayGetter<int16_t, long long>(v); }
VariableGetter Expose(const std::vector<int32_t>& v) { return ArrayGetter<int32_t, long long>(v); }
VariableGetter Expose(const std::vector<bool>& v) { return ArrayGetter<bool, bool>(v); }

}  // namespace ch
