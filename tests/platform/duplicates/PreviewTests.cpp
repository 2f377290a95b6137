#include "extension/actions/duplicates/Preview.h"

#include "../chooser/TemporaryFolder.h"
#include "extension/actions/window/PictureReading.h"
#include "support/Files.h"

#include <QBuffer>
#include <QImageWriter>
#include <QProcess>

#include <chrono>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <thread>

namespace MenuExtension::Duplicates {

namespace {

namespace fs = std::filesystem;

constexpr QSize room(320, 200);

/// What this process has had in memory at most, in bytes, since forgetPeak().
std::int64_t peak()
{
    std::istringstream status(Files::read("/proc/self/status"));
    for (std::string word; status >> word;) {
        std::int64_t kilobytes = 0;
        if (word == "VmHWM:" && status >> kilobytes)
            return kilobytes * 1024;
    }
    return 0;
}
void forgetPeak()
{
    Files::write("/proc/self/clear_refs", "5");
}

/// A drawing that is short as long as it is compressed.
void writeDrawing(const std::string& path, const char* size)
{
    const QString command =
        QStringLiteral(R"((echo '<svg>'; head -c "$0" /dev/zero | tr '\0' ' ') | gzip -1 > "$1")");
    EXPECT_EQ(QProcess::execute("sh", {"-c", command, size, QString::fromStdString(path)}), 0);
}

/// A JPEG picture of a few pixels that says it has this many each way, all of which have to be kept until its end.
std::string boastingJpeg(std::uint16_t extent)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::red);
    EXPECT_TRUE(writer.write(image));
    const qsizetype frame = bytes.indexOf("\xff\xc2");
    EXPECT_GT(frame, 0);
    for (const qsizetype place : {frame + 5, frame + 7}) {
        bytes[place] = static_cast<char>(extent >> 8U);
        bytes[place + 1] = static_cast<char>(extent & 0xffU);
    }
    return bytes.toStdString();
}

class PreviewTest : public testing::Test {
protected:
    [[nodiscard]] std::string path(const std::string& name) const { return folder.path(name); }
    [[nodiscard]] Preview previewOf(const std::string& name) const { return readPreview(path(name), room, {}); }
    /// Of a file that is no picture, as far as anyone can read it.
    void expectLittle(const std::string& name) const
    {
        constexpr std::int64_t most = std::int64_t{64} << 20U;
        forgetPeak();
        const std::int64_t before = peak();
        const Preview preview = previewOf(name);
        EXPECT_LT(peak() - before, most) << name;
        EXPECT_TRUE(preview.picture.isNull()) << name;
        EXPECT_TRUE(preview.text.isEmpty()) << name;
    }

    TemporaryFolder folder;
};

TEST_F(PreviewTest, ShowsAPictureInTheRoomThatThereIs)
{
    QImage image(1200, 600, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (const char* name : {"a.png", "B.JPG", "new\nline %20#?.bmp", "-s.png", "not \xff utf-8.png"}) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        ASSERT_TRUE(image.save(&buffer, fs::path(name).extension().c_str() + 1));
        Files::write(path(name), bytes.toStdString());
        const QImage picture = previewOf(name).picture;
        EXPECT_EQ(picture.size(), QSize(320, 160)) << name;
        EXPECT_GT(qRed(picture.pixel(100, 100)), 250) << name;
    }
}

TEST_F(PreviewTest, ShowsTheBeginningOfATextWhateverItsName)
{
    Files::write(path("a.txt"), "words");
    EXPECT_EQ(previewOf("a.txt").text, QStringLiteral("words"));
    Files::write(path("a.png"), "words");
    EXPECT_EQ(previewOf("a.png").text, QStringLiteral("words"));
}

TEST_F(PreviewTest, TakesLittleMemoryWhateverAFileSays)
{
    for (const char* name : {"archive.gz", "drawing.svgz"}) {
        writeDrawing(path(name), "1M");
        fs::resize_file(path(name), std::uintmax_t{512} << 20U);
        expectLittle(name);
    }
    writeDrawing(path("inflated.svgz"), "512M");
    expectLittle("inflated.svgz");
    Files::write(path("photo.jpg"), boastingJpeg(30'000));
    expectLittle("photo.jpg");
}

TEST_F(PreviewTest, EndsWithWhatReadsThePictureWhenItIsToldToStop)
{
    const std::string program = path("gdk-pixbuf-thumbnailer");
    Files::write(program, "#!/bin/sh\necho $$ > " + path("id.new") + "; /bin/mv " + path("id.new") + " " +
                              path("id") + "\nexec /bin/sleep 600\n");
    fs::permissions(program, fs::perms::owner_all);
    const QByteArray programs = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(folder.path()));
    Files::write(path("a.png"), "\x89PNG");

    std::stop_source stop;
    const std::jthread other([&] {
        while (!fs::exists(path("id")))
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        stop.request_stop();
    });
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(readPreview(path("a.png"), room, stop.get_token()).picture.isNull());
    EXPECT_LT(std::chrono::steady_clock::now() - begin, PictureReading::patience);
    qputenv("PATH", programs);
    EXPECT_NE(::kill(std::stoi(Files::read(path("id"))), 0), 0);
}

} // namespace

} // namespace MenuExtension::Duplicates
