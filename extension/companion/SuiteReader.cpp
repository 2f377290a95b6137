#include "extension/companion/SuiteReader.h"

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
    m_complaints.allIsWell();
    return found.values();
}

std::optional<NS::Value::Dictionary> SuiteReader::read()
{
    const Snapshot found = m_file.read();
    switch (found.state()) {
    case Snapshot::State::Absent:
    case Snapshot::State::Readable:
        m_complaints.allIsWell();
        return found.values();
    case Snapshot::State::Damaged:
        m_complaints.complain(path() + " is not a readable property list (" + found.why() +
                              "); the last good copy is used where there is one");
        if (const Snapshot copy = m_file.readBackup(); copy.state() != Snapshot::State::Inaccessible)
            return copy.values();
        break;
    case Snapshot::State::Inaccessible:
        m_complaints.complain("could not read " + path() + ": " + found.why());
        break;
    }
    return std::nullopt;
}

} // namespace MenuExtension
