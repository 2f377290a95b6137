#include "TransferTest.h"

#include "platform/linux/system/ParentFolder.h"
#include "support/Files.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace MenuExtension::Transfers;
namespace fs = std::filesystem;

namespace {

std::string attributesOf(const fs::path& path)
{
    std::array<char, 4096> names{};
    const ssize_t length = ::llistxattr(path.c_str(), names.data(), names.size());
    std::vector<std::string> attributes;
    for (ssize_t at = 0; at < length;) {
        const std::string name = names.data() + at;
        std::array<char, 4096> value{};
        const ssize_t size = ::lgetxattr(path.c_str(), name.c_str(), value.data(), value.size());
        attributes.push_back(name + '=' +
                             std::string(value.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0))));
        at += static_cast<ssize_t>(name.size()) + 1;
    }
    std::ranges::sort(attributes);
    std::string text;
    for (const std::string& attribute : attributes)
        text += ' ' + attribute;
    return text;
}

std::string described(const fs::path& path, bool withFolderTimes)
{
    struct stat status = {};
    if (::lstat(path.c_str(), &status) != 0)
        return "gone";
    std::ostringstream text;
    text << std::oct << status.st_mode << std::dec << ' ' << status.st_uid << ':' << status.st_gid;
    if (!S_ISDIR(status.st_mode))
        text << " x" << status.st_nlink;
    if (!S_ISDIR(status.st_mode) || withFolderTimes)
        text << ' ' << status.st_mtim.tv_sec << '.' << status.st_mtim.tv_nsec;
    text << attributesOf(path) << ' ';
    if (S_ISLNK(status.st_mode))
        text << fs::read_symlink(path).native();
    else if (S_ISREG(status.st_mode))
        text << status.st_size << ' ' << std::hash<std::string>()(contentOf(path));
    return text.str();
}

} // namespace

bool haveAttributes()
{
    std::string path = "/dev/shm/orvik-transfer-XXXXXX";
    const LinuxDesktop::FileDescriptor file(::mkstemp(path.data()));
    ::unlink(path.c_str());
    return ::fsetxattr(file.get(), "user.orvik", "a", 1, 0) == 0;
}

std::string contentOf(const fs::path& path)
{
    std::string content(fs::file_size(path), '\0');
    const LinuxDesktop::FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(::read(file.get(), content.data(), content.size()), static_cast<ssize_t>(content.size()));
    return content;
}

Tree treeOf(const fs::path& item, bool withFolderTimes)
{
    Tree tree{{"", described(item, withFolderTimes)}};
    std::error_code error;
    if (fs::is_directory(fs::symlink_status(item, error))) {
        for (const auto& entry : fs::recursive_directory_iterator(item))
            tree.emplace(entry.path().native().substr(item.native().size()),
                         described(entry.path(), withFolderTimes));
    }
    return tree;
}

std::vector<std::string> namesIn(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

OrdinaryUser::OrdinaryUser(const std::vector<fs::path>& folders)
{
    if (::geteuid() != 0)
        return;
    constexpr uid_t nobody = 65534;
    const auto give = [](const fs::path& item) {
        struct stat status = {};
        EXPECT_EQ(::lstat(item.c_str(), &status), 0) << item;
        if (status.st_uid == 0) {
            EXPECT_EQ(::lchown(item.c_str(), nobody, nobody), 0) << item;
        }
    };
    for (const fs::path& folder : folders) {
        if (folder.empty())
            continue;
        give(folder);
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            give(entry.path());
    }
    EXPECT_EQ(::setegid(nobody), 0);
    EXPECT_EQ(::seteuid(nobody), 0);
}

OrdinaryUser::~OrdinaryUser()
{
    EXPECT_EQ(::seteuid(::getuid()), 0);
    EXPECT_EQ(::setegid(::getgid()), 0);
}

Decision Answers::decide(const Conflict& conflict)
{
    asked.push_back(conflict);
    return each ? each(conflict) : always;
}

bool Answers::goesOnWithout(const Problems& problems)
{
    told = problems.kept();
    return goesOn;
}

TransferTest::TransferTest(Disks disks, bool isInMemory)
{
    const auto make = [](const fs::path& place) {
        std::string path = place / "orvik-transfer-XXXXXX";
        if (!::mkdtemp(path.data()))
            std::abort();
        return path;
    };
    const fs::path memory = "/dev/shm";
    m_root = make(isInMemory && disks == Disks::One ? memory : fs::temp_directory_path());
    m_source = m_root / "source";
    fs::create_directory(m_source);
    if (disks == Disks::Two)
        m_otherRoot = make(memory);
    m_target = (disks == Disks::Two ? m_otherRoot : m_root) / "target";
    fs::create_directory(m_target);
    m_records = m_target.parent_path() / "state" / "records";
}

TransferTest::~TransferTest()
{
    forget();
    std::error_code ignored;
    fs::remove_all(m_root, ignored);
    fs::remove_all(m_otherRoot, ignored);
}

fs::path TransferTest::file(const fs::path& path, const std::string& content)
{
    fs::create_directories(path.parent_path());
    Files::write(path, content);
    return path;
}

fs::path TransferTest::folder(const fs::path& path)
{
    fs::create_directories(path);
    return path;
}

void TransferTest::makeEveryKind(const fs::path& path)
{
    file(path / "text", "some text");
    file(path / "empty", "");
    file(path / "large", Files::noise(700'000));
    file(path / "not \xff utf-8 \xed\xa0\x80", "bytes");
    file(path / "new\nline", "line");
    file(path / std::string(255, 'x'), "long");
    file(path / "executable", "#!/bin/sh");
    fs::permissions(path / "executable", fs::perms(06755));
    file(path / "secret", "secret");
    fs::permissions(path / "secret", fs::perms(0400));
    file(path / "one name", "of two");
    fs::create_hard_link(path / "one name", path / "other name");
    folder(path / "below/further/down");
    fs::create_hard_link(path / "one name", path / "below/further/third name");
    folder(path / "empty folder");
    file(path / "closed/inside", "inside");
    fs::create_symlink("text", path / "link");
    fs::create_symlink("nowhere/at all", path / "link to nothing");
    fs::create_symlink("../..", path / "below/link to a folder");
    fs::create_symlink("/", path / "below/link to everything");
    ::mkfifo((path / "pipe").c_str(), 0640);
    file(path / "attributes", "attributes");
    if (haveAttributes()) {
        EXPECT_EQ(::setxattr((path / "attributes").c_str(), "user.orvik", "a value", 7, 0), 0);
        EXPECT_EQ(::setxattr((path / "attributes").c_str(), "user.empty", "", 0, 0), 0);
    }
    {
        const LinuxDesktop::FileDescriptor sparse(
            ::open((path / "sparse").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644));
        EXPECT_EQ(::pwrite(sparse.get(), "begin", 5, 0), 5);
        EXPECT_EQ(::pwrite(sparse.get(), "middle", 6, off_t{1} << 20U), 6);
        EXPECT_EQ(::ftruncate(sparse.get(), off_t{2} << 20U), 0);
    }
    const timespec old{1'000'000'000, 123'456'789};
    for (const auto& entry : fs::recursive_directory_iterator(path))
        ::utimensat(AT_FDCWD, entry.path().c_str(), std::array{old, old}.data(), AT_SYMLINK_NOFOLLOW);
    fs::permissions(path / "closed", fs::perms(0555));
    ::utimensat(AT_FDCWD, path.c_str(), std::array{old, old}.data(), 0);
}

Result TransferTest::run(What what, const std::vector<fs::path>& items, const std::optional<fs::path>& to)
{
    forget();
    m_record = std::make_unique<StagingRecord>(*calls, std::vector{records().native()});
    const auto openFolderOf = [this](const std::string& item) {
        return calls->open(AT_FDCWD, LinuxDesktop::parentFolder(item).c_str(), O_PATH | O_DIRECTORY);
    };
    m_transfer = std::make_unique<Transfer>(*calls, *m_record, openFolderOf, progress, answers);
    Order order{.isMove = what == What::Move, .items = {}, .target = to.value_or(target())};
    for (const fs::path& item : items)
        order.items.push_back({item});
    return m_transfer->run(order);
}

Result TransferTest::undo()
{
    const auto moveToTrash = [this](const std::string& path) -> std::optional<std::string> {
        if (trashTrouble)
            return trashTrouble;
        const fs::path place = folder(trash()) / std::to_string(trashed.size());
        std::error_code error;
        fs::remove_all(place);
        fs::rename(path, place, error);
        if (error)
            return error.message();
        trashed.push_back(path);
        return std::nullopt;
    };
    return m_transfer->undo(moveToTrash);
}

std::vector<TransferTest::Kind> TransferTest::kindsOf(const Result& result)
{
    std::vector<Kind> kinds;
    for (const Problem& problem : result.problems.kept())
        kinds.push_back(problem.kind);
    return kinds;
}

void TransferTest::startAnew()
{
    forget();
    StagingRecord(systemCalls, {records()}).removeLeftovers();
}

void TransferTest::forget()
{
    m_transfer.reset();
    m_record.reset();
}

void TransferTest::expectNoLeftovers() const
{
    for (const fs::path& place : {m_source, m_target}) {
        for (const auto& entry : fs::recursive_directory_iterator(place))
            EXPECT_FALSE(entry.path().filename().native().starts_with(".orvik-menu-")) << entry.path();
    }
    if (fs::exists(records())) {
        EXPECT_TRUE(fs::is_empty(records()));
    }
}
