#include "extension/actions/find-duplicate-files/DuplicateFileFinder.h"

#include "extension/actions/find-duplicate-files/FileSearch.h"

#include <utility>

namespace MenuExtension {

DuplicateFileFinder::DuplicateFileFinder(std::vector<std::string> paths, OpenItem openItem, Choices choices)
    : m_paths(std::move(paths)), m_openItem(std::move(openItem)), m_choices(choices)
{}

void DuplicateFileFinder::setChoices(Choices choices)
{
    const std::scoped_lock lock(m_mutex);
    m_choices = choices;
}

void DuplicateFileFinder::find(Duplicates::Findings& findings, std::stop_token stop)
{
    Choices choices;
    {
        const std::scoped_lock lock(m_mutex);
        choices = m_choices;
    }
    FileSearch(findings, choices, std::move(stop)).run(m_paths, m_openItem);
}

} // namespace MenuExtension
