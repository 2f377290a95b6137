#pragma once

#include "platform/OpenPanel.h"
#include "platform/linux/chooser/FileChooserDialog.h"
#include "platform/linux/system/ModalState.h"

#include <string>
#include <vector>

namespace LinuxDesktop {

/// The open panel as a window of this program. Needs a QApplication. Main thread.
class FileChooser : public NS::OpenPanel {
public:
    /// `modalState` must outlive the panel.
    explicit FileChooser(ModalState& modalState) : m_modalState(modalState) {}

    /// Items that are refused, each time with the answer's words; an empty answer lets an item through.
    void setRefusal(FileChooserSettings::Refusal refusal) { m_settings.refusal = std::move(refusal); }

    void setMessage(std::string_view message) override;
    void setCanChooseFiles(bool flag) override;
    void setCanChooseDirectories(bool flag) override;
    void setTreatsFilePackagesAsDirectories(bool) override {}
    void setAllowsMultipleSelection(bool flag) override;
    void setShowsHiddenFiles(bool flag) override;
    void setDirectoryURL(const NS::URL& url) override;
    // Files alone have types, and whoever names types here lets no file be chosen.
    void setAllowedFileTypes(const std::vector<std::string>&) override {}
    void setAllowsOtherFileTypes(bool) override {}
    void setPrompt(std::string_view prompt) override;

    int runModal() override;
    void beginSheetModalForWindow_completionHandler(NS::Window& parent, std::function<void(int)> handler) override;
    [[nodiscard]] std::optional<NS::URL> URL() const override;
    [[nodiscard]] std::vector<NS::URL> URLs() const override { return m_urls; }

private:
    void take(const FileChooserDialog& dialog);

    ModalState& m_modalState;
    FileChooserSettings m_settings;
    std::vector<NS::URL> m_urls;
};

} // namespace LinuxDesktop
