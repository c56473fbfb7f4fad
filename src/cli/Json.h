// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

// A small JSON value for the command-line tool's output. Unlike QJsonValue it
// keeps 32-bit floats as such, so that 0.1f prints as 0.1 and not as
// 0.10000000149011612, and it keeps the order in which keys were added.
class Json
{
public:
    using Array = std::vector<Json>;
    using Object = std::vector<std::pair<std::string, Json>>;

    Json() = default;
    Json(bool b) : m_value(b) {}
    Json(int i) : m_value(int64_t(i)) {}
    Json(long i) : m_value(int64_t(i)) {}
    Json(long long i) : m_value(int64_t(i)) {}
    Json(unsigned long i) : m_value(int64_t(i)) {}
    Json(float f) : m_value(f) {}
    Json(double d) : m_value(d) {}
    Json(const char* s) : m_value(std::string(s)) {}
    Json(const QString& s) : m_value(s.toStdString()) {}
    Json(Array a) : m_value(std::make_shared<Array>(std::move(a))) {}
    Json(Object o) : m_value(std::make_shared<Object>(std::move(o))) {}

    // Objects print one key per line and arrays of containers one element per
    // line; arrays of plain values stay on one line.
    std::string dump() const;

private:
    void write(std::string& out, int indent) const;

    std::variant<std::monostate, bool, int64_t, float, double, std::string, std::shared_ptr<Array>,
                 std::shared_ptr<Object>>
        m_value;
};
