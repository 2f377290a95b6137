#pragma once

#include "platform/URL.h"

#include <optional>
#include <string_view>

namespace NS {

/// Answers of modal panels.
inline constexpr int ModalResponseCancel = 0;
inline constexpr int ModalResponseOK = 1;

class OpenPanel;

/// Asked by a panel which items can be chosen.
class OpenSavePanelDelegate {
public:
    virtual ~OpenSavePanelDelegate() = default;

    [[nodiscard]] virtual bool panel_shouldEnableURL(OpenPanel& panel, const URL& url) = 0;
};

/// A chooser of existing files. Made by Platform::makeOpenPanel, set up, then run once. Files can be chosen
/// unless told otherwise. Main thread.
class OpenPanel {
public:
    virtual ~OpenPanel() = default;

    /// A sentence shown above the list.
    virtual void setMessage(std::string_view message) = 0;
    virtual void setCanChooseDirectories(bool flag) = 0;
    virtual void setAllowsMultipleSelection(bool flag) = 0;
    virtual void setShowsHiddenFiles(bool flag) = 0;
    /// Where the panel opens. For an item that is not a folder the panel opens the folder it lies in, with the
    /// item selected; when directories can be chosen, a folder is shown that way too.
    virtual void setDirectoryURL(const NS::URL& url) = 0;
    /// The confirm button's title.
    virtual void setPrompt(std::string_view prompt) = 0;

    /// Shows the panel and blocks until the user answers: ModalResponseOK, ModalResponseCancel, or another
    /// number when the panel ended in a way that is neither.
    virtual int runModal() = 0;
    /// What the user confirmed; nothing before that.
    [[nodiscard]] virtual std::optional<NS::URL> URL() const = 0;
};

} // namespace NS
