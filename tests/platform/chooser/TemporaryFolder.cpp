#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

TemporaryFolder::TemporaryFolder(const std::filesystem::path& parent)
    : m_path((parent / "filechooser-test-").native() + std::string(6, 'X'))
{
    EXPECT_TRUE(::mkdtemp(m_path.data()));
    EXPECT_EQ(::chmod(m_path.c_str(), 0755), 0);
}

TemporaryFolder::~TemporaryFolder()
{
    for (const std::string& changed : m_changedModes)
        ::chmod(changed.c_str(), 0755);
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
    EXPECT_FALSE(error) << error.message();
}

std::string TemporaryFolder::file(std::string_view name, std::size_t size) const
{
    std::ofstream stream(path(name), std::ios::binary);
    stream << std::string(size, 'x');
    EXPECT_TRUE(stream.flush()) << path(name);
    return path(name);
}

std::string TemporaryFolder::folder(std::string_view name) const
{
    EXPECT_TRUE(std::filesystem::create_directory(path(name)));
    return path(name);
}

std::string TemporaryFolder::link(std::string_view name, const std::string& target) const
{
    EXPECT_EQ(::symlink(target.c_str(), path(name).c_str()), 0);
    return path(name);
}

void TemporaryFolder::remove(std::string_view name) const
{
    EXPECT_GT(std::filesystem::remove_all(path(name)), 0U);
}

void TemporaryFolder::setMode(std::string_view name, mode_t mode)
{
    EXPECT_EQ(::chmod(path(name).c_str(), mode), 0);
    m_changedModes.push_back(path(name));
}

OrdinaryUser::OrdinaryUser() : m_changed(::geteuid() == 0)
{
    constexpr uid_t nobody = 65534;
    EXPECT_TRUE(!m_changed || ::seteuid(nobody) == 0);
}

OrdinaryUser::~OrdinaryUser()
{
    EXPECT_TRUE(!m_changed || ::seteuid(0) == 0);
}
