#pragma once

#include "platform/Bundle.h"

#include <string>

namespace LinuxDesktop {

/// The program's installed files: a folder with its Info.plist. Main thread.
class InformationBundle : public NS::Bundle {
public:
    explicit InformationBundle(std::string folder) : m_folder(std::move(folder)) {}

    const std::optional<NS::Value::Dictionary>& infoDictionary() override;

private:
    std::string m_folder;
    bool m_read = false;
    std::optional<NS::Value::Dictionary> m_information;
};

} // namespace LinuxDesktop
