#include "Painting.h"
#include "extension/actions/find-duplicate-photos/DuplicatePhotoFinder.h"
#include "platform/chooser/TemporaryFolder.h"
#include "platform/duplicatefiles/Heard.h"

#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vips/vips.h>

namespace {

using namespace MenuExtension;
using namespace MenuExtension::SimilarPhotos;
using LinuxDesktop::FileDescriptor;
using Groups = std::set<Heard::Paths>;
using namespace std::chrono_literals;

class DuplicatePhotoFinderTest : public testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_EQ(VIPS_INIT("test"), 0); }

    std::string write(const Painting& painting, const std::string& name, int orientation = 1) const
    {
        return write(painting.bytes(), painting, name, VIPS_META_ORIENTATION, orientation);
    }
    /// A file of two pictures, the painting first.
    std::string writeTwo(const Painting& painting, const std::string& name) const
    {
        std::vector<std::uint8_t> bytes = painting.bytes();
        const auto second = Painting::of(90, painting.width(), painting.height()).bytes();
        bytes.insert(bytes.end(), second.begin(), second.end());
        return write(bytes, painting, name, VIPS_META_PAGE_HEIGHT, painting.height());
    }
    /// The name may have the library's options behind it.
    std::string write(const std::vector<std::uint8_t>& bytes, const Painting& painting, const std::string& name,
                      const char* field, int value) const
    {
        const int height = static_cast<int>(bytes.size()) / painting.width() / 3;
        VipsImage* plain = vips_image_new_from_memory_copy(bytes.data(), bytes.size(), painting.width(), height, 3,
                                                           VIPS_FORMAT_UCHAR);
        VipsImage* image = nullptr;
        EXPECT_EQ(vips_copy(plain, &image, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr), 0);
        if (value != 1)
            vips_image_set_int(image, field, value);
        EXPECT_EQ(vips_image_write_to_file(image, m_folder.path(name).c_str(), nullptr), 0) << vips_error_buffer();
        g_object_unref(image);
        g_object_unref(plain);
        return m_folder.path(name.substr(0, name.find('[')));
    }
    std::string writeBytes(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(m_folder.path(name), std::ios::binary) << bytes;
        return m_folder.path(name);
    }
    static std::string bytesOfFile(const std::string& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    DuplicatePhotoFinder::Means means()
    {
        return {.openItem = [](const std::string& path,
                               int flags) { return FileDescriptor(::open(path.c_str(), flags | O_CLOEXEC)); },
                .openFile =
                    [this](const std::string& path) {
                        ++m_opened;
                        const FileDescriptor found(::open(path.c_str(), O_PATH | O_CLOEXEC));
                        struct stat status = {};
                        if (::fstat(found.get(), &status) != 0 || !S_ISREG(status.st_mode))
                            return FileDescriptor();
                        return FileDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
                    },
                .worker = ORVIK_WORKER};
    }
    DuplicatePhotoFinder finder() { return DuplicatePhotoFinder({m_folder.path()}, means()); }

    /// As the window does it: again while the finder wishes it.
    static std::unique_ptr<Heard> heardFrom(DuplicatePhotoFinder& finder)
    {
        std::atomic<bool> isOutdated = true;
        finder.whenOutdated([&] { isOutdated = true; });
        std::unique_ptr<Heard> heard;
        for (int round = 0; isOutdated && round < 5; ++round) {
            isOutdated = false;
            heard = std::make_unique<Heard>();
            finder.find(*heard, {});
        }
        EXPECT_FALSE(isOutdated);
        return heard;
    }

    TemporaryFolder m_folder;
    std::atomic<int> m_opened = 0;
};

TEST_F(DuplicatePhotoFinderTest, FindsWhatWasMadeOfAPicture)
{
    const Painting painting = Painting::of(1);
    m_folder.folder("sub");
    const Heard::Paths same{
        write(painting, "photo.jpg"),           write(painting, "converted.png"),
        write(painting, "sub/converted.webp"),  write(painting.resized(160, 120), "sub/small.jpg"),
        write(painting.turned(), "turned.jpg"), write(painting.mirrored(), "mirrored.tif"),
        write(painting, "by-number.jpg", 6),    write(painting.brightened(1.2, 4), "bright.jpg"),
    };
    const Heard::Paths others{write(Painting::of(2), "two.jpg"), write(Painting::of(2).noisy(4), "two-again.jpg")};
    write(Painting::of(3), "alone.jpg");
    auto search = finder();
    const auto heard = heardFrom(search);
    EXPECT_EQ(heard->groups(), (Groups{same, others}));
    EXPECT_TRUE(heard->troubles().empty());
    EXPECT_FALSE(heard->isRepeated());
    ASSERT_FALSE(heard->progresses().empty());
    EXPECT_EQ(heard->progresses().back().total, 11U);
}

TEST_F(DuplicatePhotoFinderTest, ItemsTellTheirSizeAsTheyAreShown)
{
    write(Painting::of(1), "photo.jpg");
    write(Painting::of(1).turned(), "turned.jpg", 6);
    struct Sizes : Heard {
        void found(std::uint64_t group, std::vector<Duplicates::Item> items) override
        {
            for (const auto& item : items)
                sizes.insert({Size::of(item).width, Size::of(item).height});
            Heard::found(group, std::move(items));
        }
        std::set<std::pair<std::uint32_t, std::uint32_t>> sizes;
    } heard;
    auto search = finder();
    search.find(heard, {});
    EXPECT_EQ(heard.sizes, (decltype(heard.sizes){{320, 240}}));
}

TEST_F(DuplicatePhotoFinderTest, WhatCannotBeReadIsToldAndTheOthersGoOn)
{
    const Heard::Paths same{write(Painting::of(1), "a.jpg"), write(Painting::of(1), "b.png")};
    const std::string whole = bytesOfFile(write(Painting::of(2), "whole.jpg"));
    const std::string truncated = writeBytes("truncated.jpg", whole.substr(0, whole.size() / 2));
    const std::string garbage = writeBytes("garbage.jpg", "\xff\xd8\xff" + std::string(4000, '\x5a'));
    const std::string text = writeBytes("text.jpg", "no picture");
    const std::string empty = writeBytes("empty.png", "");
    writeBytes("notes.txt", "no picture, and not named like one");
    ASSERT_EQ(::mkfifo(m_folder.path("pipe.jpg").c_str(), 0600), 0);
    m_folder.link("link.jpg", m_folder.path("a.jpg"));
    m_folder.link("loop", m_folder.path());

    auto search = finder();
    const auto heard = heardFrom(search);
    EXPECT_EQ(heard->groups(), Groups{same});
    auto troubles = heard->troubles();
    EXPECT_EQ(troubles[truncated], "cannot be read: it is damaged or ends too early");
    EXPECT_EQ(troubles[garbage], "cannot be read: it is damaged or ends too early");
    EXPECT_EQ(troubles[text], "is no picture, though it is named like one");
    EXPECT_EQ(troubles.size(), 3U) << "and none for " << empty;
}

/// What the others show would go with the one that was compared.
TEST_F(DuplicatePhotoFinderTest, AFileOfSeveralPicturesIsNoneOfThem)
{
    const Heard::Paths same{write(Painting::of(1), "a.jpg"), write(Painting::of(1), "b.png")};
    std::vector<std::string> several;
    for (const char* name : {"pages.tif", "moving.webp", "moving.gif"})
        several.push_back(writeTwo(Painting::of(1), name));
    constexpr std::size_t endOfHeader = 33;
    const std::string frames("\0\0\0\x08"
                             "acTL"
                             "\0\0\0\x02\0\0\0\0\xf3\x8d\x93\x70",
                             20);
    several.push_back(writeBytes("moving.png", bytesOfFile(m_folder.path("b.png")).insert(endOfHeader, frames)));
    auto search = finder();
    const auto heard = heardFrom(search);
    EXPECT_EQ(heard->groups(), Groups{same});
    auto troubles = heard->troubles();
    for (const std::string& path : several)
        EXPECT_EQ(troubles[path], "holds several pictures, and only one would be compared");
}

TEST_F(DuplicatePhotoFinderTest, AFileOfOnePictureInSeveralSizesIsFound)
{
    const Heard::Paths same{write(Painting::of(1), "a.jpg"), write(Painting::of(1), "one.heic"),
                            write(Painting::of(1), "sizes.jp2"),
                            write(Painting::of(1, 1280, 960), "sizes.tif[tile,pyramid,subifd]"),
                            write(Painting::of(1, 1280, 960), "more sizes.tif[tile,pyramid]")};
    auto search = finder();
    const auto heard = heardFrom(search);
    EXPECT_EQ(heard->groups(), Groups{same});
    EXPECT_TRUE(heard->troubles().empty());
}

TEST_F(DuplicatePhotoFinderTest, AWorkerThatCannotBeStartedIsToldOfEveryPhoto)
{
    const std::string photo = write(Painting::of(1), "a.jpg");
    auto broken = means();
    broken.worker = "/nonexistent/worker";
    DuplicatePhotoFinder search({m_folder.path()}, broken);
    auto troubles = heardFrom(search)->troubles();
    EXPECT_NE(troubles[photo].find("could not be started"), std::string::npos);
}

TEST_F(DuplicatePhotoFinderTest, NamesAreBytes)
{
    const Heard::Paths same{write(Painting::of(1), "\xff\xfe.jpg"),
                            write(Painting::of(1), "line\nend \"quote\".jpg")};
    auto search = finder();
    EXPECT_EQ(heardFrom(search)->groups(), Groups{same});
}

TEST_F(DuplicatePhotoFinderTest, OneFileUnderTwoNamesIsOne)
{
    const std::string photo = write(Painting::of(1), "a.jpg");
    ASSERT_EQ(::link(photo.c_str(), m_folder.path("b.jpg").c_str()), 0);
    DuplicatePhotoFinder search({m_folder.path(), photo}, means());
    EXPECT_TRUE(heardFrom(search)->groups().empty());
}

TEST_F(DuplicatePhotoFinderTest, AnotherLimitRegroupsWithoutReadingAgain)
{
    const std::string whole = write(Painting::of(1), "whole.jpg");
    const std::string cut = write(Painting::of(1).cut(16, 12, 16, 12), "cut.jpg");
    const std::string next = write(Painting::of(1, 320, 240, 0.012), "next.jpg");
    auto search = finder();
    EXPECT_EQ(heardFrom(search)->groups(), (Groups{{whole, cut}}));
    const int opened = m_opened;
    search.setLimit(0.03F);
    EXPECT_TRUE(heardFrom(search)->groups().empty());
    search.setLimit(widestLimit);
    EXPECT_EQ(heardFrom(search)->groups(), (Groups{{whole, cut, next}}));
    search.setLimit(usualLimit);
    EXPECT_EQ(heardFrom(search)->groups(), (Groups{{whole, cut}}));
    EXPECT_EQ(m_opened, opened);
}

TEST_F(DuplicatePhotoFinderTest, WhatHasGoneOrChangedIsNotToldAgain)
{
    write(Painting::of(1), "a.jpg");
    write(Painting::of(1), "b.jpg");
    const Heard::Paths others{write(Painting::of(2), "c.jpg"), write(Painting::of(2), "d.png")};
    auto search = finder();
    EXPECT_EQ(heardFrom(search)->groups().size(), 2U);
    m_folder.remove("b.jpg");
    EXPECT_EQ(heardFrom(search)->groups(), Groups{others});
    writeBytes("c.jpg", "another file by now");
    EXPECT_TRUE(heardFrom(search)->groups().empty());
}

TEST_F(DuplicatePhotoFinderTest, AStoppedSearchGoesOnWhereItWas)
{
    constexpr std::uint32_t count = 24;
    for (std::uint32_t number = 0; number < count; ++number)
        write(Painting::of(number / 2, 160, 120), "photo" + std::to_string(number) + ".jpg");
    auto search = finder();
    std::stop_source stop;
    Heard stopped;
    stopped.whenFound = [&] { stop.request_stop(); };
    search.find(stopped, stop.get_token());
    EXPECT_LT(stopped.groups().size(), count / 2);
    const auto heard = heardFrom(search);
    EXPECT_EQ(heard->groups().size(), count / 2);
    EXPECT_FALSE(heard->isRepeated());
    // Beside those that the stop came upon.
    EXPECT_LE(m_opened, static_cast<int>(count + std::max(1U, std::thread::hardware_concurrency())));
}

TEST_F(DuplicatePhotoFinderTest, EndsWhileItWalks)
{
    write(Painting::of(1), "a.jpg");
    std::stop_source stop;
    stop.request_stop();
    Heard heard;
    auto search = finder();
    search.find(heard, stop.get_token());
    EXPECT_TRUE(heard.groups().empty());
}

} // namespace
