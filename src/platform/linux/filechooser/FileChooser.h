#pragma once

#include "platform/OpenPanel.h"
#include "platform/linux/ModalState.h"
#include "platform/linux/filechooser/FileChooserDialog.h"

namespace LinuxDesktop {

/// runModal's answer when the program ended its event loop while the panel was shown.
inline constexpr int ModalResponseAborted = -1001;

/// The open panel as a window of this program. Needs a QApplication; where several items are chosen, URL() is
/// the first. Main thread.
class FileChooser : public NS::OpenPanel {
public:
    /// `modalState` must outlive the panel.
    explicit FileChooser(ModalState& modalState) : m_modalState(modalState) {}

    void setMessage(std::string_view message) override;
    void setCanChooseDirectories(bool flag) override;
    void setAllowsMultipleSelection(bool flag) override;
    void setShowsHiddenFiles(bool flag) override;
    void setDirectoryURL(const NS::URL& url) override;
    void setPrompt(std::string_view prompt) override;

    int runModal() override;
    [[nodiscard]] std::optional<NS::URL> URL() const override { return m_url; }

private:
    ModalState& m_modalState;
    FileChooserSettings m_settings;
    std::optional<NS::URL> m_url;
};

} // namespace LinuxDesktop
