#pragma once

#include "extension/actions/duplicates/Finder.h"

#include <algorithm>
#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <vector>

/// Writes down what a finder tells.
class Heard : public MenuExtension::Duplicates::Findings {
public:
    using Paths = std::set<std::string>;

    void found(std::uint64_t group, std::vector<MenuExtension::Duplicates::Item> items) override
    {
        const std::scoped_lock lock(m_mutex);
        Paths& paths = group == 0 ? m_whole.emplace_back() : m_growing[group];
        for (auto& item : items) {
            m_isRepeated = m_isRepeated || !m_all.insert(item.path).second;
            paths.insert(item.path);
        }
        if (whenFound)
            whenFound();
    }
    void progress(const MenuExtension::Duplicates::Progress& progress) override
    {
        const std::scoped_lock lock(m_mutex);
        m_progress.push_back(progress);
    }
    void trouble(const std::string& path, const std::string& why) override
    {
        const std::scoped_lock lock(m_mutex);
        m_isRepeated = !m_troubles.insert_or_assign(path, why).second || m_isRepeated;
    }

    /// All groups.
    [[nodiscard]] std::set<Paths> groups() const
    {
        std::set<Paths> groups(m_whole.begin(), m_whole.end());
        for (const auto& [key, paths] : m_growing)
            groups.insert(paths);
        return groups;
    }
    [[nodiscard]] const std::map<std::string, std::string>& troubles() const { return m_troubles; }
    [[nodiscard]] const std::vector<MenuExtension::Duplicates::Progress>& progresses() const { return m_progress; }
    /// Whether an item, or a trouble with one, was told twice.
    [[nodiscard]] bool isRepeated() const { return m_isRepeated; }

    std::function<void()> whenFound;

private:
    std::mutex m_mutex;
    std::vector<Paths> m_whole;
    std::map<std::uint64_t, Paths> m_growing;
    Paths m_all;
    bool m_isRepeated = false;
    std::map<std::string, std::string> m_troubles;
    std::vector<MenuExtension::Duplicates::Progress> m_progress;
};
