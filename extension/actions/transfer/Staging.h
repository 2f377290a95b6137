#pragma once

#include "extension/actions/transfer/Folder.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace MenuExtension::Transfers {

/// What a killed process leaves is found again by the record that it kept of its hidden folders. The record's file is
/// locked while its process runs. One thread.
class StagingRecord {
public:
    /// `places` are folders to keep records in, best first; they are made where they are missing.
    StagingRecord(SystemCalls& calls, std::vector<std::string> places) : m_calls(calls), m_places(std::move(places))
    {}
    ~StagingRecord();
    StagingRecord(const StagingRecord&) = delete;
    StagingRecord& operator=(const StagingRecord&) = delete;

    /// Notes a path before there is a hidden folder at it. Where nothing can be noted the folder is made all the
    /// same: a full disk must not keep anybody from moving things off it.
    void add(const std::string& path);

    /// The record outlives its process: not all that it names could be removed.
    void keep() { m_isKept = true; }

    /// Removes the hidden folders of killed processes, and the records of them. Those of processes that run are left
    /// alone.
    void removeLeftovers();

private:
    [[nodiscard]] bool open();
    [[nodiscard]] bool removeRecorded(const LinuxDesktop::FileDescriptor& record);

    SystemCalls& m_calls;
    const std::vector<std::string> m_places;
    std::string m_path;
    LinuxDesktop::FileDescriptor m_file;
    bool m_isKept = false;
};

/// A hidden folder in a target's, for what is not whole yet and for what was replaced. Its end removes
/// it. The record must outlive it.
class Staging {
public:
    /// Nothing, with errno, where it cannot be made.
    [[nodiscard]] static std::optional<Staging> make(SystemCalls& calls, const SharedFolder& target,
                                                     StagingRecord& record);
    ~Staging();
    Staging(Staging&& other) noexcept;
    Staging& operator=(Staging&&) = delete;

    [[nodiscard]] int get() const { return m_folder.get(); }
    /// The folder that it is in.
    [[nodiscard]] int parent() const { return m_target->get(); }
    [[nodiscard]] dev_t device() const { return m_target->identity.device; }
    /// Whether what is in it can be put there.
    [[nodiscard]] bool reaches(const Folder& folder) const { return canRenameBetween(*m_target, folder); }
    /// One that nothing in it has.
    [[nodiscard]] std::string newName() { return std::to_string(++m_names); }

private:
    Staging(SystemCalls& calls, StagingRecord& record, SharedFolder target, std::string name,
            LinuxDesktop::FileDescriptor folder)
        : m_calls(calls), m_record(record), m_target(std::move(target)), m_name(std::move(name)),
          m_folder(std::move(folder))
    {}

    SystemCalls& m_calls;
    StagingRecord& m_record;
    SharedFolder m_target;
    std::string m_name;
    LinuxDesktop::FileDescriptor m_folder;
    unsigned long m_names = 0;
};

/// Whether a folder of that name is such a hidden one. Its owner removes it: nobody else copies or offers what it
/// holds.
[[nodiscard]] bool isStagingName(std::string_view name);

/// Where the records of this user's transfers are kept.
[[nodiscard]] std::vector<std::string> recordPlaces();

} // namespace MenuExtension::Transfers
