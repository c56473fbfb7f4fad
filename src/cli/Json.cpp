// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Json.h"

#include <charconv>
#include <cmath>

namespace {

template <typename T> void writeNumber(std::string& out, T value)
{
    if (!std::isfinite(value)) {
        out += "null"; // JSON has no NaN or infinity
        return;
    }
    char text[64];
    const auto result = std::to_chars(text, text + sizeof text, value);
    out.append(text, result.ptr);
}

void writeString(std::string& out, const std::string& s)
{
    out += '"';
    for (const char c : s) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20) {
                char escaped[8];
                std::snprintf(escaped, sizeof escaped, "\\u%04x", c);
                out += escaped;
            } else {
                out += c;
            }
        }
    }
    out += '"';
}

void newline(std::string& out, int indent)
{
    out += '\n';
    out.append(static_cast<std::size_t>(indent) * 2, ' ');
}

} // namespace

std::string Json::dump() const
{
    std::string out;
    write(out, 0);
    out += '\n';
    return out;
}

void Json::write(std::string& out, int indent) const
{
    std::visit(
        [&](const auto& v) {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::monostate>) {
                out += "null";
            } else if constexpr (std::is_same_v<T, bool>) {
                out += v ? "true" : "false";
            } else if constexpr (std::is_same_v<T, int64_t> || std::is_same_v<T, float> ||
                                 std::is_same_v<T, double>) {
                writeNumber(out, v);
            } else if constexpr (std::is_same_v<T, std::string>) {
                writeString(out, v);
            } else if constexpr (std::is_same_v<T, std::shared_ptr<Array>>) {
                bool nested = false;
                for (const Json& element : *v) {
                    nested = nested ||
                             std::holds_alternative<std::shared_ptr<Array>>(element.m_value) ||
                             std::holds_alternative<std::shared_ptr<Object>>(element.m_value);
                }
                out += '[';
                for (std::size_t i = 0; i < v->size(); ++i) {
                    if (i > 0)
                        out += nested ? "," : ", ";
                    if (nested)
                        newline(out, indent + 1);
                    (*v)[i].write(out, indent + 1);
                }
                if (nested && !v->empty())
                    newline(out, indent);
                out += ']';
            } else {
                out += '{';
                for (std::size_t i = 0; i < v->size(); ++i) {
                    out += i > 0 ? "," : "";
                    if (indent == 0)
                        newline(out, 1);
                    else if (i > 0)
                        out += ' ';
                    writeString(out, (*v)[i].first);
                    out += ": ";
                    (*v)[i].second.write(out, indent + 1);
                }
                if (indent == 0 && !v->empty())
                    newline(out, 0);
                out += '}';
            }
        },
        m_value);
}
