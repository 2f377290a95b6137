#pragma once

#include "platform/URL.h"
#include "platform/Window.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace NS {

/// Answers of modal panels.
inline constexpr int ModalResponseCancel = 0;
inline constexpr int ModalResponseOK = 1;

/// Which items a panel hands out.
enum class ChosenPaths {
    /// Whatever the file system has.
    Any,
    /// Those whose paths can be stored as text. For another the panel says why, and stays.
    Storable,
};

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
    virtual void setCanChooseFiles(bool flag) = 0;
    virtual void setCanChooseDirectories(bool flag) = 0;
    /// Whether folders that the desktop shows as one file are opened like others. No desktop of this program has
    /// such.
    virtual void setTreatsFilePackagesAsDirectories(bool flag) = 0;
    virtual void setAllowsMultipleSelection(bool flag) = 0;
    virtual void setShowsHiddenFiles(bool flag) = 0;
    /// Where the panel opens. For an item that is not a folder the panel opens the folder it lies in, with the
    /// item selected; when directories can be chosen, a folder is shown that way too.
    virtual void setDirectoryURL(const NS::URL& url) = 0;
    /// Extensions of the files that can be chosen; they restrict no folder.
    virtual void setAllowedFileTypes(const std::vector<std::string>& types) = 0;
    /// Whether files of other types can be chosen as well.
    virtual void setAllowsOtherFileTypes(bool flag) = 0;
    /// The confirm button's title.
    virtual void setPrompt(std::string_view prompt) = 0;

    /// Shows the panel and blocks until the user answers: ModalResponseOK, ModalResponseCancel, or another
    /// number when the panel ended in a way that is neither.
    virtual int runModal() = 0;
    /// Shows the panel attached to `parent` and returns; `handler` is called once with the answer. Never called when
    /// the program ends first.
    virtual void beginSheetModalForWindow_completionHandler(Window& parent, std::function<void(int)> handler) = 0;

    /// The first item that the user confirmed; nothing before that.
    [[nodiscard]] virtual std::optional<NS::URL> URL() const = 0;
    /// Every item that the user confirmed, in the panel's order.
    [[nodiscard]] virtual std::vector<NS::URL> URLs() const = 0;
};

} // namespace NS
