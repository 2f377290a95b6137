#pragma once

#include "support/Described.h"

#include <string>
#include <string_view>
#include <vector>

/// What reached the platform: one readable line a call, in order, such as `suite#1.objectForKey("firstRun")`.
class CallLog {
public:
    template<class... Arguments>
    void record(std::string_view receiver, std::string_view method, const Arguments&... arguments)
    {
        std::string text;
        ((text += (text.empty() ? "" : ", ") + described(arguments)), ...);
        add(std::string(receiver) + '.' + std::string(method) + (text.empty() ? "" : '(' + text + ')'));
    }

    [[nodiscard]] const std::vector<std::string>& lines() const { return m_lines; }
    /// The lines that start with one of `prefixes`, in order.
    [[nodiscard]] std::vector<std::string> startingWithAnyOf(const std::vector<std::string_view>& prefixes) const;
    [[nodiscard]] std::vector<std::string> startingWith(std::string_view prefix) const;
    /// The lines in which `text` occurs, in order.
    [[nodiscard]] std::vector<std::string> containing(std::string_view text) const;

    /// Forgets the calls so far, so that a test looks only at those that it causes.
    void clear() { m_lines.clear(); }

    /// For the statement of a death test: from now on each line is printed on standard error too.
    void echoOnStandardError() { m_echoes = true; }

private:
    void add(std::string line);

    std::vector<std::string> m_lines;
    bool m_echoes = false;
};
