#pragma once

#include "extension/actions/duplicates/Finder.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

namespace MenuExtension::Duplicates {

/// What a finder has told and nobody has taken in yet. Any thread.
class FindingsQueue : public Findings {
public:
    struct Batch {
        /// By their keys.
        std::vector<std::pair<std::uint64_t, std::vector<Item>>> groups;
        std::optional<Progress> progress;
        std::vector<std::pair<std::string, std::string>> troubles;
        /// Nothing comes any more.
        bool hasEnded = false;
    };

    /// `wake` is called when there is something to take where there was nothing. Who is told to wait waits no longer
    /// than until `stop`.
    FindingsQueue(std::function<void()> wake, std::stop_token stop);

    void found(std::uint64_t group, std::vector<Item> items) override;
    void progress(const Progress& progress) override;
    void trouble(const std::string& path, const std::string& why) override;
    void end();

    [[nodiscard]] Batch take();

private:
    template<typename Change>
    void tell(const Change& change);

    const std::function<void()> m_wake;
    const std::stop_token m_stop;
    std::mutex m_mutex;
    std::condition_variable_any m_taken;
    Batch m_batch;
    std::size_t m_items = 0;
    bool m_hasNews = false;
};

} // namespace MenuExtension::Duplicates
