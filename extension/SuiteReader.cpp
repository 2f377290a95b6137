#include "extension/SuiteReader.h"

#include "extension/Complaint.h"
#include "settings/Deployment.h"

#include <utility>

namespace MenuExtension {

using LinuxDesktop::Snapshot;

SuiteReader::SuiteReader(std::string settingsFolder)
    : m_file(m_operations, std::move(settingsFolder), Deployment::suiteName)
{}

std::optional<NS::Value::Dictionary> SuiteReader::readWhole()
{
    const Snapshot found = m_file.read();
    if (found.state() != Snapshot::State::Readable)
        return std::nullopt;
    m_complaint.clear();
    return found.values();
}

std::optional<NS::Value::Dictionary> SuiteReader::read()
{
    const Snapshot found = m_file.read();
    switch (found.state()) {
    case Snapshot::State::Absent:
    case Snapshot::State::Readable:
        m_complaint.clear();
        return found.values();
    case Snapshot::State::Damaged:
        say(path() + " is not a readable property list (" + found.why() +
            "); the last good copy is used where there is one");
        return m_file.readBackup().values();
    case Snapshot::State::Inaccessible:
        say("could not read " + path() + ": " + found.why());
        break;
    }
    return std::nullopt;
}

void SuiteReader::say(const std::string& complaint)
{
    if (complaint != m_complaint)
        complain(complaint);
    m_complaint = complaint;
}

} // namespace MenuExtension
