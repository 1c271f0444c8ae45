// SPDX-License-Identifier: GPL-3.0-or-later
// A value as the driver reads it: a flag, a whole number, a fraction or a text.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace ch {

using Value = std::variant<bool, long long, double, std::string>;

// Booleans "True"/"False", numbers in decimal, texts as they are.
std::string ValueText(const Value& value);

// Reads a variable, or an element of an array variable (index >= 0).
// Returns false when the index is out of range or an index is given to a
// plain variable.
using VariableGetter = std::function<bool(int index, Value& out)>;

VariableGetter Expose(const bool& v);
VariableGetter Expose(const int16_t& v);
VariableGetter Expose(const int32_t& v);
VariableGetter Expose(const int64_t& v);
VariableGetter Expose(const double& v);
VariableGetter Expose(const std::string& v);
VariableGetter Expose(const std::vector<std::string>& v);
VariableGetter Expose(const std::vector<int16_t>& v);
VariableGetter Expose(const std::vector<int32_t>& v);
VariableGetter Expose(const std::vector<bool>& v);

}  // namespace ch
