#pragma once

#include "platform/Value.h"
#include "platform/linux/store/Complaints.h"
#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/SettingsFile.h"

#include <optional>
#include <string>

namespace MenuExtension {

/// Reads the shared suite and never changes it: what is damaged is left for the panel to mend.
class SuiteReader {
public:
    explicit SuiteReader(std::string settingsFolder);

    /// The values of a file that is there and whole. Nothing otherwise, which may pass: there are programs that save
    /// in steps, and empty or remove the file first.
    [[nodiscard]] std::optional<NS::Value::Dictionary> readWhole();
    /// The values that the panel finds when it reads now: none where there is no file, those of the last good copy
    /// where the file is damaged. Nothing where it cannot be read at all. What is wrong gets one line on standard
    /// error.
    [[nodiscard]] std::optional<NS::Value::Dictionary> read();

    [[nodiscard]] const std::string& path() const { return m_file.path(); }

private:
    LinuxDesktop::FileOperations m_operations;
    LinuxDesktop::SettingsFile m_file;
    LinuxDesktop::Complaints m_complaints;
};

} // namespace MenuExtension
