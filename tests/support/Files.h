#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

/// Files by their names as bytes.
namespace Files {

inline void write(const std::filesystem::path& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

[[nodiscard]] inline std::string read(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Bytes that no compression makes shorter, the same for the same size.
[[nodiscard]] inline std::string noise(std::size_t size)
{
    std::mt19937 generator(static_cast<std::mt19937::result_type>(size));
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(generator());
    return bytes;
}

} // namespace Files
