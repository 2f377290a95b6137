#pragma once

#include "platform/OpenPanel.h"
#include "support/CallLog.h"
#include "support/FakeDistributedNotificationCenter.h"

#include <functional>
#include <optional>
#include <string>

/// What the user does with an open panel.
struct OpenPanelScript {
    int response = NS::ModalResponseOK;
    std::optional<NS::URL> url = NS::URL::fileURLWithPath("/home/user/chosen.txt");
    /// Called while the panel is open.
    std::function<void()> whileOpen;
};

/// An open panel that answers by a script.
class FakeOpenPanel : public NS::OpenPanel {
public:
    FakeOpenPanel(CallLog& calls, std::string name, FakeDistributedNotificationCenter& center,
                  const OpenPanelScript& script)
        : m_calls(calls), m_name(std::move(name)), m_center(center), m_script(script)
    {}

    void setMessage(std::string_view message) override;
    void setCanChooseDirectories(bool flag) override;
    void setAllowsMultipleSelection(bool flag) override;
    void setShowsHiddenFiles(bool flag) override;
    void setDirectoryURL(const NS::URL& url) override;
    void setPrompt(std::string_view prompt) override;

    /// Holds back the postings that are made meanwhile.
    int runModal() override;
    std::optional<NS::URL> URL() const override;

private:
    CallLog& m_calls;
    std::string m_name;
    FakeDistributedNotificationCenter& m_center;
    const OpenPanelScript& m_script;
};
