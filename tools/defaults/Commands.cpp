#include "defaults/Commands.h"

#include "defaults/ReadableText.h"
#include "defaults/TypedValue.h"
#include "platform/linux/store/PropertyList.h"
#include "platform/linux/store/ReplaceFile.h"
#include "platform/linux/store/Snapshot.h"
#include "repair/RepairDomain.h"
#include "settings/Deployment.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <limits>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace DefaultsTool {

namespace PropertyList = LinuxDesktop::PropertyList;
using LinuxDesktop::Domain;
using LinuxDesktop::FileDescriptor;
using LinuxDesktop::Result;
using LinuxDesktop::Snapshot;
using LinuxDesktop::Store;

namespace {

using Arguments = std::span<const std::string>;

constexpr std::string_view usage = R"(Usage: orvik-defaults COMMAND [ARGUMENT]...
Reads and writes the settings files of Orvik Menu.

  domains                          list the domains that have a file
  read [DOMAIN [KEY]]              print everything, a domain or one value
  write DOMAIN KEY TYPE VALUE...   store a value; TYPE is one of
      -bool true|false|yes|no|1|0
      -int NUMBER                  64 bits, signed; 0x for hexadecimal
      -float NUMBER
      -string TEXT
      -date YYYY-MM-DDTHH:MM:SSZ   or as `read` prints it
      -data HEXADECIMAL
      -array [TEXT]...
      -dict [KEY TEXT]...
      -xml FRAGMENT                any value as property-list XML
  delete DOMAIN KEY                remove a value
  export DOMAIN FILE|-             write a domain as an XML property list
  import DOMAIN FILE|-             replace a domain by a property list
  path DOMAIN                      print where a domain's file lies
  repair [DOMAIN]                  mend what keeps the panel from working with
                                   a domain, else with the suite
  --help                           print this text
  --version                        print the version

DOMAIN is a domain's name, or `suite` or `app` for the two of Orvik Menu.
Exit status: 0 done; 1 no such domain or key, or not read or stored;
2 wrong usage or bad value.
)";

Outcome success(std::string output = {})
{
    return {ExitStatus::Success, std::move(output), {}};
}

Outcome failed(std::string message)
{
    return {ExitStatus::Failed, {}, std::move(message)};
}

Outcome badUsage(const std::string& message)
{
    return {ExitStatus::Usage, {}, message};
}

std::string domainNamed(const std::string& name)
{
    if (name == "suite")
        return std::string(Deployment::suiteName);
    if (name == "app")
        return std::string(Deployment::applicationIdentifier);
    return name;
}

Outcome noHome()
{
    return failed("no home folder is known");
}

Outcome noSuchDomain(const std::string& name)
{
    return failed("no such domain: " + name);
}

Outcome noSuchKey(const std::string& name, const std::string& key)
{
    return failed("no such key in " + name + ": " + key);
}

Outcome cannotRead(const Store& store, const std::string& name)
{
    return failed("cannot read " + LinuxDesktop::settingsPath(*store.folder(), name));
}

/// What `use` makes of a domain that can be read.
Outcome withDomain(Store& store, const std::string& name, const std::function<Outcome(Domain&)>& use)
{
    const auto domain = store.open(name);
    return domain ? use(*domain) : cannotRead(store, name);
}

/// What `use` makes of a domain and everything in it.
Outcome withContents(Store& store, const std::string& name,
                     const std::function<Outcome(Domain&, const NS::Value::Dictionary&)>& use)
{
    return withDomain(store, name, [&](Domain& domain) {
        const auto contents = domain.contents();
        return contents ? use(domain, *contents) : noSuchDomain(name);
    });
}

Outcome stored(Domain& domain)
{
    if (domain.finish())
        return success();
    return failed("could not store in " + domain.path());
}

Outcome domains(Store& store, Arguments)
{
    const auto names = LinuxDesktop::domainsIn(*store.folder());
    if (!names)
        return failed(names.error());
    std::string output;
    for (const std::string& name : *names)
        output += name + "\n";
    return success(output);
}

Outcome readAll(Store& store)
{
    const auto names = LinuxDesktop::domainsIn(*store.folder());
    if (!names)
        return failed(names.error());
    Outcome outcome;
    NS::Value::Dictionary all;
    for (const std::string& name : *names) {
        const auto domain = store.open(name);
        if (!domain)
            outcome = cannotRead(store, name);
        else if (auto contents = domain->contents())
            all.emplace(name, std::move(*contents));
    }
    outcome.output = readableText(std::move(all)) + "\n";
    return outcome;
}

Outcome read(Store& store, Arguments arguments)
{
    if (arguments.empty())
        return readAll(store);
    const std::string name = domainNamed(arguments[0]);
    return withContents(store, name, [&](Domain&, const NS::Value::Dictionary& contents) {
        if (arguments.size() == 1)
            return success(readableText(contents) + "\n");
        const auto found = contents.find(arguments[1]);
        if (found == contents.end())
            return noSuchKey(name, arguments[1]);
        return success(readableText(found->second) + "\n");
    });
}

Outcome write(Store& store, Arguments arguments)
{
    const std::string& key = arguments[1];
    if (const auto reason = PropertyList::unstorableKeyReason(key))
        return badUsage("a key cannot hold " + *reason);
    auto value = typedValue(arguments[2], arguments.subspan(3));
    if (!value)
        return badUsage(value.error());
    if (const auto reason = PropertyList::unstorableReason(*value))
        return badUsage("a value cannot hold " + *reason);
    return withDomain(store, domainNamed(arguments[0]), [&](Domain& domain) {
        domain.setObject_forKey(std::move(*value), key);
        return stored(domain);
    });
}

Outcome remove(Store& store, Arguments arguments)
{
    const std::string name = domainNamed(arguments[0]);
    return withContents(store, name, [&](Domain& domain, const NS::Value::Dictionary& contents) {
        if (!contents.contains(arguments[1]))
            return noSuchKey(name, arguments[1]);
        domain.removeObjectForKey(arguments[1]);
        return stored(domain);
    });
}

Outcome exportTo(const std::string& path, std::string bytes)
{
    if (path == "-")
        return success(std::move(bytes));
    LinuxDesktop::FileOperations files;
    struct stat status = {};
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        // A pipe or a device, which must stay what it is.
        FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
        if (!file || !LinuxDesktop::writeAll(files, file.get(), bytes) || !file.close())
            return failed(LinuxDesktop::systemFailure("could not write", path).what);
        return success();
    }
    std::error_code error;
    const auto target = LinuxDesktop::linkTarget(std::filesystem::absolute(path, error).native());
    if (!target)
        return failed(target.error());
    const auto written = LinuxDesktop::replaceFile(files, {bytes, *target, ".orvik-defaults-"});
    return written ? success() : failed(written.error());
}

Outcome exportDomain(Store& store, Arguments arguments)
{
    const std::string name = domainNamed(arguments[0]);
    return withContents(store, name, [&](Domain&, const NS::Value::Dictionary& contents) {
        auto bytes = PropertyList::serialise(contents);
        if (!bytes)
            return failed("cannot export " + name + ": " + bytes.error());
        return exportTo(arguments[1], std::move(*bytes));
    });
}

/// As much as a settings file may hold, and one byte more where there is more.
Result<std::string> bytesOf(const std::string& path)
{
    const FileDescriptor file(path == "-" ? ::dup(STDIN_FILENO) : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file)
        return LinuxDesktop::systemFailure("could not read", path);
    std::string bytes;
    std::array<char, 65536> buffer{};
    while (bytes.size() <= PropertyList::maximumBytes) {
        const ssize_t count = ::read(file.get(), buffer.data(), buffer.size());
        if (count == 0)
            break;
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return LinuxDesktop::systemFailure("could not read", path);
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return bytes;
}

Outcome importDomain(Store& store, Arguments arguments)
{
    const auto bytes = bytesOf(arguments[1]);
    if (!bytes)
        return badUsage(bytes.error());
    const auto root = PropertyList::parse(*bytes);
    if (!root)
        return badUsage(arguments[1] + " is not a readable property list: " + root.error());
    if (!root->dictionary())
        return badUsage("the root of " + arguments[1] + " is not a dictionary");
    return withDomain(store, domainNamed(arguments[0]), [&](Domain& domain) {
        domain.replaceContents(*root->dictionary());
        return stored(domain);
    });
}

Outcome path(Store& store, Arguments arguments)
{
    return success(LinuxDesktop::settingsPath(*store.folder(), domainNamed(arguments[0])) + "\n");
}

/// What opening a domain has done about a file that was no property list; the store itself says more of it.
Outcome salvaged(const Domain& domain, const std::optional<NS::Value::Dictionary>& contents)
{
    LinuxDesktop::FileOperations files;
    if (Snapshot::read(files, domain.path()).state() == Snapshot::State::Damaged)
        return failed("could not set aside " + domain.path());
    return success(std::string("The file could not be read and was set aside. ") +
                   (contents ? "The last good copy took its place.\n"
                             : "There is no last good copy, so the settings start empty.\n"));
}

/// Only the panel's own suite has settings that need to match each other.
Outcome mend(Domain& domain)
{
    const auto repair = RepairTool::repairSuite(domain);
    if (!repair)
        return failed(repair.error());
    if (repair->mends.empty())
        return success();
    std::string output;
    for (const Mend& mend : repair->mends)
        output += mend.wrong + ' ' + mend.remedy + '\n';
    return success(output + "The settings before that are kept as " + repair->keptFile + ".\n");
}

Outcome repair(Store& store, Arguments arguments)
{
    const std::string name = domainNamed(arguments.empty() ? "suite" : arguments[0]);
    LinuxDesktop::FileOperations files;
    const bool wasDamaged =
        Snapshot::read(files, LinuxDesktop::settingsPath(*store.folder(), name)).state() == Snapshot::State::Damaged;
    return withDomain(store, name, [&](Domain& domain) {
        const auto contents = domain.contents();
        if (!contents && !wasDamaged)
            return noSuchDomain(name);
        Outcome outcome = wasDamaged ? salvaged(domain, contents) : success();
        if (outcome.status != ExitStatus::Success || name != Deployment::suiteName)
            return outcome;
        Outcome mended = mend(domain);
        mended.output.insert(0, outcome.output);
        return mended;
    });
}

Outcome repairAndTell(Store& store, Arguments arguments)
{
    Outcome outcome = repair(store, arguments);
    if (outcome.status == ExitStatus::Success && outcome.output.empty())
        outcome.output = "Nothing to repair.\n";
    return outcome;
}

struct Command {
    std::string_view name;
    std::size_t fewest;
    std::size_t most;
    Outcome (*run)(Store&, Arguments);
};

constexpr std::array<Command, 8> commands{{
    {"domains", 0, 0, domains},
    {"read", 0, 2, read},
    {"write", 3, std::numeric_limits<std::size_t>::max(), write},
    {"delete", 2, 2, remove},
    {"export", 2, 2, exportDomain},
    {"import", 2, 2, importDomain},
    {"path", 1, 1, path},
    {"repair", 0, 1, repairAndTell},
}};

} // namespace

Outcome run(Store& store, Arguments arguments)
{
    if (arguments.size() == 1 && arguments[0] == "--help")
        return success(std::string(usage));
    if (arguments.size() == 1 && arguments[0] == "--version")
        return success("orvik-defaults " ORVIK_VERSION "\n");
    if (arguments.empty())
        return badUsage("a command is missing; see --help");
    const auto* const command = std::ranges::find(commands, arguments[0], &Command::name);
    if (command == commands.end())
        return badUsage("unknown command " + arguments[0] + "; see --help");
    const Arguments rest = arguments.subspan(1);
    if (rest.size() < command->fewest || rest.size() > command->most)
        return badUsage("wrong number of arguments for " + arguments[0] + "; see --help");
    if (!rest.empty() && !LinuxDesktop::isDomainName(rest[0]))
        return badUsage("not a domain name: " + rest[0]);
    if (!store.folder())
        return noHome();
    return command->run(store, rest);
}

} // namespace DefaultsTool
