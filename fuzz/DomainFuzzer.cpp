#include "WaitingJobs.h"
#include "platform/linux/store/PropertyList.h"
#include "platform/linux/store/SettingsFolder.h"
#include "platform/linux/store/Store.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <unistd.h>
#include <vector>

// Two programs, one of them with two handles, and strangers who do not know the lock, all at one settings file; and
// beside them a model of what each must see.

namespace {

using LinuxDesktop::Domain;
using LinuxDesktop::Store;
using Dictionary = NS::Value::Dictionary;
namespace fs = std::filesystem;

constexpr std::string_view domainName = "settings";

void require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

/// The fuzzer's input as choices; zeros once it has ended.
class Choices {
public:
    explicit Choices(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool hasEnded() const { return m_bytes.empty(); }
    [[nodiscard]] std::size_t below(std::size_t count)
    {
        if (m_bytes.empty())
            return 0;
        const std::size_t chosen = m_bytes.front() % count;
        m_bytes = m_bytes.subspan(1);
        return chosen;
    }

    [[nodiscard]] std::string key()
    {
        constexpr std::array names{"a", "b", "c", "showmenuicon"};
        return names.at(below(names.size()));
    }

    [[nodiscard]] NS::Value value()
    {
        switch (below(6)) {
        case 0:
            return static_cast<int>(below(256));
        case 1:
            return below(2) == 1;
        case 2:
            return std::string(below(256), '<');
        case 3:
            return NS::Value::Array{static_cast<int>(below(256)), "text"};
        case 4:
            return Dictionary{{"state", below(2) == 1}};
        default:
            return static_cast<double>(below(256)) / 2;
        }
    }

    [[nodiscard]] Dictionary dictionary()
    {
        Dictionary values;
        for (std::size_t i = below(4); i > 0; --i) {
            const auto key = this->key();
            values.insert_or_assign(key, value());
        }
        return values;
    }

private:
    std::span<const std::uint8_t> m_bytes;
};

std::string readFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// In place.
void writeFile(const std::string& path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

/// What a file holds that may be damaged.
std::optional<Dictionary> contentsOf(const std::string& path)
{
    const auto root = LinuxDesktop::PropertyList::parse(readFile(path));
    return root && root->dictionary() ? std::optional(*root->dictionary()) : std::nullopt;
}

bool same(const std::optional<Dictionary>& one, const std::optional<Dictionary>& other)
{
    return one.has_value() == other.has_value() && (!one || LinuxDesktop::PropertyList::identical(*one, *other));
}

/// A program with the domain open, and what it has written and not saved.
struct Program {
    explicit Program(const std::string& folder)
        : store(std::make_unique<Store>(folder)), handles{store->open(domainName), store->open(domainName)}
    {
        require(handles[0] && handles[1], "the domain can be opened");
    }

    [[nodiscard]] std::optional<Dictionary> over(const std::optional<Dictionary>& file) const
    {
        if (!file && !replaced && unsaved.empty())
            return std::nullopt;
        Dictionary values = file && !replaced ? *file : Dictionary();
        for (const auto& [key, value] : unsaved) {
            if (value)
                values.insert_or_assign(key, *value);
            else
                values.erase(key);
        }
        return values;
    }

    std::unique_ptr<Store> store;
    std::array<std::shared_ptr<Domain>, 2> handles;
    std::map<std::string, std::optional<NS::Value>> unsaved;
    bool replaced = false;
};

class World {
public:
    explicit World(const std::string& folder)
        : m_folder(folder),
          m_path(LinuxDesktop::settingsPath(folder, domainName)), m_programs{Program(folder), Program(folder)}
    {}

    void step(Choices& choices)
    {
        const std::size_t which = choices.below(m_programs.size());
        postJobsFor(which);
        Program& program = m_programs.at(which);
        Domain& handle = *program.handles.at(choices.below(2));
        switch (choices.below(12)) {
        case 0:
        case 1: {
            const auto key = choices.key();
            auto value = choices.value();
            handle.setObject_forKey(value, key);
            program.unsaved.insert_or_assign(key, std::move(value));
            break;
        }
        case 2: {
            // Of what is there now, and at once: nobody changes in between what was meant.
            const auto key = choices.key();
            check(program, handle, key);
            handle.removeObjectForKey(key);
            program.unsaved.insert_or_assign(key, std::nullopt);
            save(program, handle);
            break;
        }
        case 3: {
            const auto values = choices.dictionary();
            handle.replaceContents(values);
            program.replaced = true;
            program.unsaved.clear();
            for (const auto& [key, value] : values)
                program.unsaved.insert_or_assign(key, value);
            break;
        }
        case 4:
        case 5:
            save(program, handle);
            break;
        case 6:
            check(program, handle, choices.key());
            break;
        case 7:
            runJobsOf(which);
            saved(program);
            break;
        case 8:
            restart(program);
            break;
        case 9:
            replaceFile(choices);
            break;
        case 10:
            fs::remove(m_path);
            becomes(std::nullopt);
            break;
        default:
            damage(choices, program, handle);
        }
        noteCopy();
    }

    /// Whatever was written in the end is on disk.
    void end()
    {
        for (Program& program : m_programs)
            restart(program);
    }

private:
    void becomes(std::optional<Dictionary> contents)
    {
        m_file = std::move(contents);
        m_past.push_back(m_file);
    }

    /// Looks whether a copy was made, of what the file has held last.
    void noteCopy()
    {
        auto copy = contentsOf(m_path + ".bak");
        if (same(copy, m_copy))
            return;
        m_copy = std::move(copy);
        const auto copied = std::find_if(m_past.rbegin(), m_past.rend(),
                                         [&](const auto& contents) { return same(contents, m_copy); });
        require(copied != m_past.rend(), "the copy is of what the file has held");
        m_copied = std::distance(copied, m_past.rend()) - 1;
    }

    void save(Program& program, Domain& handle)
    {
        require(handle.synchronize(), "the settings can be saved");
        saved(program);
    }

    void saved(Program& program)
    {
        auto contents = program.over(m_file);
        // Removing keys that are not there makes no file.
        if (!m_file && !program.replaced && contents && contents->empty())
            contents = std::nullopt;
        program.unsaved.clear();
        program.replaced = false;
        require(same(fs::exists(m_path) ? contentsOf(m_path) : std::nullopt, contents),
                "the file holds what was saved");
        becomes(std::move(contents));
    }

    void check(const Program& program, Domain& handle, const std::string& key)
    {
        const auto expected = program.over(m_file);
        const auto value = handle.objectForKey(key);
        require(value.has_value() == (expected && expected->contains(key)), "a key is there when it was set");
        require(!value || LinuxDesktop::PropertyList::identical(*value, expected->at(key)),
                "a key has the value that was set");
        require(same(handle.contents(), expected), "the domain has the contents that were set");
    }

    void restart(Program& program)
    {
        for (auto& handle : program.handles)
            handle.reset();
        program.store.reset();
        saved(program);
        program = Program(m_folder);
    }

    /// As an editor does, in place or by a new file, and without the lock.
    void replaceFile(Choices& choices)
    {
        const auto values = choices.dictionary();
        const auto bytes = LinuxDesktop::PropertyList::serialise(values);
        if (choices.below(2) == 0) {
            writeFile(m_path, *bytes);
        } else {
            writeFile(m_folder + "/new", *bytes);
            fs::rename(m_folder + "/new", m_path);
        }
        becomes(values);
    }

    void damage(Choices& choices, const Program& program, Domain& handle)
    {
        constexpr std::array<std::string_view, 4> garbage{"", "<plist><dict>", "bplist00",
                                                          "<plist><string>root</string></plist>"};
        writeFile(m_path, garbage.at(choices.below(garbage.size())));
        // By somebody who is gone, so that nobody waits for the rest.
        fs::last_write_time(m_path, fs::file_time_type::clock::now() - std::chrono::seconds(10));
        static_cast<void>(handle.contents());

        const auto repaired = fs::exists(m_path) ? contentsOf(m_path) : std::nullopt;
        require(!fs::exists(m_path) || repaired, "a damaged file does not stay");
        require(!repaired || !m_copy ||
                    std::any_of(m_past.begin() + m_copied, m_past.end(),
                                [&](const auto& contents) { return same(contents, repaired); }),
                "the last good copy or something newer comes back");
        require(repaired || !m_copy, "the last good copy comes back");
        becomes(repaired);
        require(same(handle.contents(), program.over(m_file)), "what was not saved outlives a repair");
    }

    std::string m_folder;
    std::string m_path;
    std::array<Program, 2> m_programs;
    std::optional<Dictionary> m_file;
    /// All that the file has held, in order.
    std::vector<std::optional<Dictionary>> m_past;
    std::optional<Dictionary> m_copy;
    /// The place of that in the past.
    std::ptrdiff_t m_copied = 0;
};

/// Goes with the program.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        if (!::mkdtemp(m_path.data()))
            std::abort();
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    void clear() const
    {
        for (const auto& entry : fs::directory_iterator(m_path))
            fs::remove(entry);
    }
    [[nodiscard]] const std::string& path() const { return m_path; }

private:
    // Where there is no disk to wait for.
    std::string m_path = "/dev/shm/orvik-fuzz-XXXXXX";
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryFolder folder;
    folder.clear();
    World world(folder.path());
    for (Choices choices({data, size}); !choices.hasEnded();)
        world.step(choices);
    world.end();
    return 0;
}
