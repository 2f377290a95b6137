#include "support/FakeOpenPanel.h"

void FakeOpenPanel::setMessage(std::string_view message)
{
    m_calls.record(m_name, "setMessage", message);
}

void FakeOpenPanel::setCanChooseDirectories(bool flag)
{
    m_calls.record(m_name, "setCanChooseDirectories", flag);
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

std::optional<NS::URL> FakeOpenPanel::URL() const
{
    m_calls.record(m_name, "URL");
    return m_script.url;
}
