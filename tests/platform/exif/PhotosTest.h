#pragma once

#include "extension/actions/view-or-edit-exif-data/Batch.h"
#include "support/Files.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// Photos in a folder that is listed.
class PhotosTest : public testing::Test {
protected:
    using Path = std::filesystem::path;

    PhotosTest()
    {
        std::string pattern = "/tmp/orvik-exif-XXXXXX";
        m_root = ::mkdtemp(pattern.data());
        std::filesystem::create_directories(listed());
        std::filesystem::create_directories(outside());
        m_request.scope = MenuExtension::Scope({{listed(), true}});
    }
    ~PhotosTest() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_root, ignored);
    }

    [[nodiscard]] Path listed() const { return m_root / "listed"; }
    [[nodiscard]] Path outside() const { return m_root / "outside"; }
    [[nodiscard]] const MenuExtension::Request& request() const { return m_request; }

    /// A copy of a photo of that kind; "jpg" for example.
    [[nodiscard]] Path photo(const std::string& kind, const std::string& name) const
    {
        Files::write(listed() / name, Files::read(Path(ORVIK_EXIF_PHOTOS) / ("photo." + kind)));
        return listed() / name;
    }
    [[nodiscard]] Path photo(const std::string& kind) const { return photo(kind, "photo." + kind); }

    [[nodiscard]] MenuExtension::Exif::Reading read(const Path& path) const
    {
        MenuExtension::Exif::Reading found;
        MenuExtension::Exif::readPhotos(m_request, {path},
                                        [&](std::size_t, auto reading) { found = std::move(reading); }, {});
        return found;
    }
    [[nodiscard]] std::string text(MenuExtension::Exif::Field field, const Path& path) const
    {
        return MenuExtension::Exif::textOf(field, read(path).tags);
    }
    [[nodiscard]] MenuExtension::Exif::Trouble::Kind save(const Path& path, const MenuExtension::Exif::Edits& edits,
                                                          const MenuExtension::Exif::SaveOptions& options = {}) const
    {
        MenuExtension::Exif::Trouble found;
        MenuExtension::Exif::savePhotos(m_request, {path}, edits, options,
                                        [&](std::size_t, auto trouble) { found = std::move(trouble); }, {});
        m_lastWords = found.words;
        return found.kind;
    }
    /// ExifTool's, of the last save().
    [[nodiscard]] const std::string& lastWords() const { return m_lastWords; }

    /// The names in the listed folder, sorted.
    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(listed()))
            found.push_back(entry.path().filename());
        std::ranges::sort(found);
        return found;
    }

private:
    Path m_root;
    MenuExtension::Request m_request;
    mutable std::string m_lastWords;
};
