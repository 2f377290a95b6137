#pragma once

#include "platform/OpenPanel.h"
#include "support/CallLog.h"
#include "support/FakeDistributedNotificationCenter.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What the user does with an open panel.
struct OpenPanelScript {
    int response = NS::ModalResponseOK;
    std::optional<NS::URL> url = NS::URL::fileURLWithPath("/home/user/chosen.txt");
    /// All of them, where several can be chosen.
    std::vector<NS::URL> urls;
    /// Called while the panel is open.
    std::function<void()> whileOpen;

    /// Gives the user's answer to the panel that is up as a sheet.
    void answerSheet(int answer) { std::exchange(m_sheetHandler, nullptr)(answer); }
    [[nodiscard]] bool sheetIsUp() const { return m_sheetHandler != nullptr; }

private:
    friend class FakeOpenPanel;

    std::function<void(int)> m_sheetHandler;
};

/// An open panel that answers by a script.
class FakeOpenPanel : public NS::OpenPanel {
public:
    FakeOpenPanel(CallLog& calls, std::string name, FakeDistributedNotificationCenter& center,
                  OpenPanelScript& script)
        : m_calls(calls), m_name(std::move(name)), m_center(center), m_script(script)
    {}

    void setMessage(std::string_view message) override;
    void setCanChooseFiles(bool flag) override;
    void setCanChooseDirectories(bool flag) override;
    void setTreatsFilePackagesAsDirectories(bool flag) override;
    void setAllowsMultipleSelection(bool flag) override;
    void setShowsHiddenFiles(bool flag) override;
    void setDirectoryURL(const NS::URL& url) override;
    void setAllowedFileTypes(const std::vector<std::string>& types) override;
    void setAllowsOtherFileTypes(bool flag) override;
    void setPrompt(std::string_view prompt) override;

    /// Holds back the postings that are made meanwhile.
    int runModal() override;
    void beginSheetModalForWindow_completionHandler(NS::Window& parent, std::function<void(int)> handler) override;
    std::optional<NS::URL> URL() const override;
    std::vector<NS::URL> URLs() const override;

private:
    CallLog& m_calls;
    std::string m_name;
    FakeDistributedNotificationCenter& m_center;
    OpenPanelScript& m_script;
};
