#include "PhotosTest.h"

#include "extension/actions/photos/ExifTool.h"
#include "extension/actions/view-or-edit-exif-data/Merged.h"
#include "support/ProgramPath.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace MenuExtension::Exif;
using namespace std::chrono_literals;
using Kind = Trouble::Kind;

namespace {

/// Programs in the place of ExifTool.
class ExifToolTest : public PhotosTest {
protected:
    void replaceExifTool(const std::string& script)
    {
        fs::create_directories(outside() / "bin");
        Files::write(outside() / "bin/exiftool", "#!/bin/sh\n" + script);
        fs::permissions(outside() / "bin/exiftool", fs::perms::owner_all);
        programs.set((outside() / "bin").native() + ':' + programs.before());
    }

    ProgramPath programs;
};

} // namespace

TEST_F(ExifToolTest, OneProcessAnswersOneAfterTheOther)
{
    ExifTool tool;
    EXPECT_EQ(tool.run({"-ver"}, {}).end, ExifTool::End::Done);
    const auto answer = tool.run({"-echo", "one", "-ver"}, {});
    EXPECT_TRUE(answer.output.starts_with("one\n")) << answer.output;
    const auto failure = tool.run({"/nowhere/x.jpg"}, {});
    EXPECT_EQ(failure.output, "");
    EXPECT_TRUE(failure.complaints.starts_with("Error: File not found")) << failure.complaints;
}

TEST_F(ExifToolTest, DoesNotOutliveAnActionThatIsKilled)
{
    // What the action leaves behind becomes a child of this one.
    ASSERT_EQ(::prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    const pid_t action = ::fork();
    if (action == 0) {
        ExifTool tool;
        if (tool.run({"-ver"}, {}).end == ExifTool::End::Done)
            ::raise(SIGKILL);
        ::_exit(1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(action, &status, 0), action);
    ASSERT_TRUE(WIFSIGNALED(status));
    pid_t left = 0;
    for (int tries = 0; tries < 500 && left == 0; ++tries) {
        left = ::waitpid(-1, &status, WNOHANG);
        std::this_thread::sleep_for(10ms);
    }
    ::prctl(PR_SET_CHILD_SUBREAPER, 0);
    EXPECT_GT(left, 0);
}

TEST_F(ExifToolTest, WithoutTheProgramItSaysSo)
{
    programs.set("/nowhere");
    EXPECT_FALSE(ExifTool::isInstalled());
    EXPECT_EQ(read(photo("jpg")).trouble.kind, Kind::NoExifTool);
}

TEST_F(ExifToolTest, AProcessThatHangsIsEndedInTimeAndStartedAgain)
{
    replaceExifTool("PATH='" + programs.before() + "'\nif [ -e '" + (outside() / "again").native() +
                    "' ]; then exec exiftool \"$@\"; fi\n: > '" + (outside() / "again").native() +
                    "'\nexec sleep 100\n");
    ExifTool tool({.time = 500ms});
    EXPECT_EQ(tool.run({"-ver"}, {}).end, ExifTool::End::TooLong);
    // A loaded machine needs its time.
    constexpr int tries = 100;
    auto end = ExifTool::End::TooLong;
    for (int count = 0; count < tries && end == ExifTool::End::TooLong; ++count)
        end = tool.run({"-ver"}, {}).end;
    EXPECT_EQ(end, ExifTool::End::Done);
}

TEST_F(ExifToolTest, AProcessThatCrashesIsToldOfAndStartedAgain)
{
    ExifTool tool({.memory = std::size_t{1} << 20U});
    EXPECT_EQ(tool.run({"-ver"}, {}).end, ExifTool::End::Crashed);
    replaceExifTool("exit 3\n");
    ExifTool ending;
    EXPECT_EQ(ending.run({"-ver"}, {}).end, ExifTool::End::Crashed);
    replaceExifTool("kill -SEGV $$\n");
    EXPECT_EQ(ending.run({"-ver"}, {}).end, ExifTool::End::Crashed);
}

TEST_F(ExifToolTest, OutputWithoutAnEndIsEnded)
{
    replaceExifTool("exec yes\n");
    ExifTool tool({.output = 100'000});
    EXPECT_EQ(tool.run({"-ver"}, {}).end, ExifTool::End::TooMuch);
}

TEST_F(ExifToolTest, AWishToStopIsHeededAtOnce)
{
    replaceExifTool("exec sleep 100\n");
    std::stop_source stop;
    const std::jthread wish([&] {
        std::this_thread::sleep_for(100ms);
        stop.request_stop();
    });
    ExifTool tool;
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(tool.run({"-ver"}, stop.get_token()).end, ExifTool::End::Cancelled);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 30s);
}

TEST_F(ExifToolTest, AFileThatIsNotReadDoesNoHarmToTheOthers)
{
    std::vector<std::string> paths;
    for (int number = 0; number < 40; ++number)
        paths.push_back(photo("jpg", std::to_string(number) + ".jpg"));
    Files::write(paths[3], "no picture");
    Files::write(paths[4], "");
    fs::remove(paths[5]);
    std::map<std::size_t, Kind> found;
    readPhotos(request(), paths,
               [&](std::size_t index, const Reading& reading) { found[index] = reading.trouble.kind; }, {});
    ASSERT_EQ(found.size(), paths.size());
    for (const auto& [index, kind] : found)
        EXPECT_EQ(kind != Kind::None, index >= 3 && index <= 5) << index;
}

TEST_F(ExifToolTest, APhotoThatItDoesNotComeBackFromDoesNoHarmToThoseWrittenWithIt)
{
    // It ends over one of them when that is half written.
    replaceExifTool("PATH='" + programs.before() + "'\nall='" + (outside() / "all").native() +
                    "'$$\n: > \"$all\"\nwhile IFS= read -r line; do case $line in\n-execute*)\n"
                    "  exiftool -config '' -@ \"$all\"\n"
                    "  if grep -qx -e -o \"$all\"; then for one in $(grep '[.]jpg$' \"$all\"); do\n"
                    "    grep -q evil \"$one\" || continue\n"
                    "    made=$(grep -A 1 -x -e -o \"$all\" | tail -n 1)\n"
                    "    for file in \"$made\".orvik*; do : > \"$file\"; done; exit 3\n"
                    "  done; fi\n"
                    "  : > \"$all\"; echo \"{ready${line#-execute}}\";;\n"
                    "*) printf '%s\\n' \"$line\" >> \"$all\";;\nesac; done\n");
    std::vector<std::string> paths;
    for (int number = 0; number < 10; ++number)
        paths.push_back(photo("jpg", std::to_string(number) + ".jpg"));
    Files::write(paths[4], Files::read(paths[4]) + "evil");
    Edits edits;
    edits.texts = {{Field::Title, "title"}};
    std::map<std::size_t, Kind> found;
    savePhotos(request(), paths, edits, {}, [&](std::size_t place, auto trouble) { found[place] = trouble.kind; },
               {});
    ASSERT_EQ(found.size(), paths.size());
    for (const auto& [place, kind] : found)
        EXPECT_EQ(kind, place == 4 ? Kind::ExifToolCrashed : Kind::None) << place;
    EXPECT_EQ(names().size(), paths.size()) << "nothing is left beside them";
}

TEST_F(ExifToolTest, WhatIsNoJsonIsAFailureOfThatFile)
{
    replaceExifTool(
        "while read -r line; do case $line in -execute*) n=${line#-execute}; echo '[{\"SourceFile\": tr'; "
        "echo \"{ready$n}\"; echo \"{ready$n}\" >&2;; esac; done\n");
    EXPECT_EQ(read(photo("jpg")).trouble.kind, Kind::CannotBeRead);
}

TEST_F(ExifToolTest, ManyPhotosAreMergedIntoWhatTheyHaveInCommon)
{
    Merged merged;
    merged.add(
        Tags({{"EXIF", "IFD0", "Make", "A"}, {"EXIF", "IFD0", "Model", "B"}, {"XMP", "XMP-dc", "Title", "x"}}));
    merged.add(Tags({{"EXIF", "IFD0", "Make", "A"}, {"EXIF", "IFD0", "Model", "C"}}));
    ASSERT_EQ(merged.lines().size(), 3U);
    EXPECT_FALSE(merged.differs(merged.lines()[0].value));
    EXPECT_TRUE(merged.differs(merged.lines()[1].value));
    EXPECT_TRUE(merged.differs(merged.lines()[2].value)) << "not all have it";
    EXPECT_TRUE(merged.differs(merged.field(Field::Title)));
    EXPECT_FALSE(merged.differs(merged.field(Field::Author)));
    EXPECT_EQ(merged.photos(), 2U);
}
