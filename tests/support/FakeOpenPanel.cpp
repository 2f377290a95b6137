#include "support/FakeOpenPanel.h"

#include "support/FakeWindow.h"

void FakeOpenPanel::setMessage(std::string_view message)
{
    m_calls.record(m_name, "setMessage", message);
}

void FakeOpenPanel::setCanChooseDirectories(bool flag)
{
    m_calls.record(m_name, "setCanChooseDirectories", flag);
}

void FakeOpenPanel::setCanChooseFiles(bool flag)
{
    m_calls.record(m_name, "setCanChooseFiles", flag);
}

void FakeOpenPanel::setTreatsFilePackagesAsDirectories(bool flag)
{
    m_calls.record(m_name, "setTreatsFilePackagesAsDirectories", flag);
}

void FakeOpenPanel::setAllowedFileTypes(const std::vector<std::string>& types)
{
    m_calls.record(m_name, "setAllowedFileTypes", types);
}

void FakeOpenPanel::setAllowsOtherFileTypes(bool flag)
{
    m_calls.record(m_name, "setAllowsOtherFileTypes", flag);
}

void FakeOpenPanel::setAllowsMultipleSelection(bool flag)
{
    m_calls.record(m_name, "setAllowsMultipleSelection", flag);
}

void FakeOpenPanel::setShowsHiddenFiles(bool flag)
{
    m_calls.record(m_name, "setShowsHiddenFiles", flag);
}

void FakeOpenPanel::setDirectoryURL(const NS::URL& url)
{
    m_calls.record(m_name, "setDirectoryURL", url);
}

void FakeOpenPanel::setPrompt(std::string_view prompt)
{
    m_calls.record(m_name, "setPrompt", prompt);
}

int FakeOpenPanel::runModal()
{
    m_calls.record(m_name, "runModal");
    if (m_script.whileOpen) {
        m_center.hold();
        m_script.whileOpen();
        m_center.release();
    }
    return m_script.response;
}

void FakeOpenPanel::beginSheetModalForWindow_completionHandler(NS::Window& parent, std::function<void(int)> handler)
{
    m_calls.record(m_name, "beginSheetModalForWindow_completionHandler", dynamic_cast<FakeWindow&>(parent).name());
    m_script.m_sheetHandler = std::move(handler);
}

std::vector<NS::URL> FakeOpenPanel::URLs() const
{
    m_calls.record(m_name, "URLs");
    return m_script.urls;
}

std::optional<NS::URL> FakeOpenPanel::URL() const
{
    m_calls.record(m_name, "URL");
    return m_script.url;
}
