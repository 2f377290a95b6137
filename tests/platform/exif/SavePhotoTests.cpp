#include "PhotosTest.h"

#include "extension/actions/photos/ImageData.h"
#include "extension/actions/view-or-edit-exif-data/PersonalData.h"

#include <chrono>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <linux/capability.h>
#include <random>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace MenuExtension::Exif;
using namespace std::chrono_literals;
using Kind = Trouble::Kind;

namespace {

class SavePhotoTest : public PhotosTest {
protected:
    /// What a person could write everywhere at once.
    static Edits everything()
    {
        Edits edits;
        edits.texts = {{Field::Title, "Ein Hügel — \"quoted\" <x> &amp; $5 @home \\ 100%"},
                       {Field::Description, " two\nlines and an end "},
                       {Field::Author, "Ada Müller; Bo"},
                       {Field::Copyright, "© 2026 Ada"},
                       {Field::Date, "2024:02:29 23:59:58"}};
        edits.place = {.place = Place{-33.856784, 151.215297}};
        return edits;
    }

    /// The troubles by the paths' places.
    [[nodiscard]] std::map<std::size_t, Trouble> saveAll(const std::vector<std::string>& paths,
                                                         const Edits& edits) const
    {
        std::map<std::size_t, Trouble> found;
        savePhotos(request(), paths, edits, {},
                   [&](std::size_t place, auto trouble) { found[place] = std::move(trouble); }, {});
        return found;
    }

    /// Saves in a process that has done something to itself before.
    [[nodiscard]] Kind inChild(const Path& path, const std::function<void()>& before,
                               const SaveOptions& options = {}) const
    {
        const pid_t child = ::fork();
        if (child == 0) {
            before();
            ::_exit(static_cast<int>(save(path, everything(), options)));
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return static_cast<Kind>(WEXITSTATUS(status));
    }

    /// The superuser may write everywhere otherwise, and so may what it starts.
    static void loseRights()
    {
        __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
        std::array<__user_cap_data_struct, 2> none{};
        ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
        ::syscall(SYS_capset, &header, none.data());
    }

    /// Has ExifTool itself write tags, "NAME=VALUE" each.
    static void write(const Path& path, const std::vector<std::string>& tags, const std::string& options = {})
    {
        std::string command = "exiftool -q -overwrite_original " + options;
        for (const std::string& tag : tags)
            command += " '-" + tag + '\'';
        ASSERT_EQ(std::system((command + " '" + path.native() + '\'').c_str()), 0);
    }

    /// Of a tag that is not there, nothing.
    static std::string valueOf(const Tags& tags, const std::string& key)
    {
        const std::string* const value = tags.find(key);
        return value ? *value : "";
    }
    [[nodiscard]] std::string tag(const Path& path, const std::string& key) const
    {
        return valueOf(read(path).tags, key);
    }

    [[nodiscard]] Kind saveText(const Path& path, Field field, const std::string& value) const
    {
        return save(path, {.texts = {{field, value}}, .orientation = {}, .place = {}});
    }
    [[nodiscard]] Kind move(const Path& path, std::chrono::seconds shift) const
    {
        return save(path, {.texts = {}, .shift = shift, .orientation = {}, .place = {}});
    }

    static std::string withoutSpacesAround(const std::string& text)
    {
        const std::size_t begin = text.find_first_not_of(' ');
        return text.substr(begin, text.find_last_not_of(' ') - begin + 1);
    }

    void expectEverything(const Path& path) const
    {
        const Edits edits = everything();
        const Tags tags = read(path).tags;
        for (const auto& [field, value] : edits.texts)
            EXPECT_EQ(withoutSpacesAround(textOf(field, tags)), withoutSpacesAround(value)) << path;
        EXPECT_TRUE(isSame(placeOf(tags), edits.place->place)) << path << textOf(Field::Place, tags);
    }
};

} // namespace

TEST_F(SavePhotoTest, WritesEveryFieldInEveryKindOfFileThatExifToolWrites)
{
    for (const std::string kind : {"jpg", "png", "tif", "heic", "avif", "gif"}) {
        const Path path = photo(kind);
        ASSERT_EQ(save(path, everything()), Kind::None) << kind << ": " << lastWords();
        expectEverything(path);
    }
    EXPECT_EQ(names().size(), 6U) << "nothing is left beside them";
}

TEST_F(SavePhotoTest, APlaceIsWrittenAndReadWhereNumbersHaveAComma)
{
    Files::write(outside() / "source", "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \"\"\ngrouping -1\n"
                                       "END LC_NUMERIC\n");
    // It warns of what else a locale has, and says so at its end.
    const std::string make = "cd '" + outside().native() + "' && localedef -c -i source ./comma >/dev/null 2>&1";
    static_cast<void>(std::system(make.c_str()));
    ::setenv("LOCPATH", outside().c_str(), 1);
    const bool isThere = std::setlocale(LC_NUMERIC, "comma") != nullptr;
    ::unsetenv("LOCPATH");
    ASSERT_TRUE(isThere);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");

    for (const std::string kind : {"jpg", "gif"}) {
        const Path path = photo(kind);
        EXPECT_EQ(save(path, everything()), Kind::None) << kind << ": " << lastWords();
        EXPECT_EQ(text(Field::Place, path), "-33.856784, 151.215297");
        EXPECT_EQ(save(path, {.texts = {{Field::Title, "1.50"}}, .orientation = {}, .place = {}}), Kind::None)
            << kind;
        EXPECT_EQ(text(Field::Title, path), "1.50");
    }
    std::setlocale(LC_NUMERIC, "C");
}

TEST_F(SavePhotoTest, KeepsTheTextThatIsThereInEveryPlaceInStep)
{
    const Path path = photo("jpg");
    Edits edits;
    edits.texts = {{Field::Description, "first"}};
    ASSERT_EQ(save(path, edits), Kind::None);
    edits.texts = {{Field::Description, "second"}};
    ASSERT_EQ(save(path, edits), Kind::None);

    const Tags tags = read(path).tags;
    EXPECT_EQ(*tags.find("IFD0:ImageDescription"), "second");
    EXPECT_EQ(*tags.find("XMP-dc:Description"), "second");
    EXPECT_EQ(tags.find("IPTC:Caption-Abstract"), nullptr);
}

TEST_F(SavePhotoTest, AuthorsAreWrittenOneByOneHoweverTheyAreSeparated)
{
    for (const std::string authors : {"Ada;Bo", "Ada ;Bo", "Ada;  Bo", "Ada; Bo;", "; Ada; ; Bo"}) {
        const Path path = photo("jpg");
        write(path, {"IPTC:By-line=before", "IPTC:Keywords=one; two"});
        EXPECT_EQ(saveText(path, Field::Author, authors), Kind::None) << authors;
        const Tags tags = read(path).tags;
        for (const char* key : {"XMP-dc:Creator", "IFD0:Artist", "IPTC:By-line"})
            EXPECT_EQ(valueOf(tags, key), "Ada; Bo") << authors << key;
    }
}

TEST_F(SavePhotoTest, IptcTextsInAnotherEncodingStayWhatTheyAre)
{
    for (const std::string title : {"Neu", "Müller", "Жук"}) {
        const Path path = photo("jpg");
        write(path, {"IPTC:City=Köln", "IPTC:Keywords=Grün; x", "IPTC:Keywords=y", "IPTC:ObjectName=alt",
                     "IPTC:By-line=Zoë", "IPTC:TimeCreated=01:30:00+02:00"});
        ASSERT_NE(Files::read(path).find("K\xf6ln"), std::string::npos);
        ASSERT_EQ(
            save(path,
                 {.texts = {{Field::Title, title}, {Field::Author, "Émile; Bo"}}, .orientation = {}, .place = {}}),
            Kind::None)
            << lastWords();
        EXPECT_EQ(tag(path, "IPTC:ObjectName"), title);
        EXPECT_EQ(tag(path, "IPTC:By-line"), "Émile; Bo") << title;
        EXPECT_EQ(tag(path, "IPTC:City"), "Köln") << title;
        EXPECT_EQ(tag(path, "IPTC:Keywords"), "Grün; x; y") << title;
        EXPECT_EQ(tag(path, "IPTC:TimeCreated"), "01:30:00+02:00") << title;
        const bool isLatin = title != "Жук";
        EXPECT_NE(Files::read(path).find(isLatin ? "Gr\xfcn; x" : "Grün; x"), std::string::npos) << "is one keyword";
        EXPECT_EQ(tag(path, "IPTC:CodedCharacterSet"), isLatin ? "" : "UTF8");
    }
}

TEST_F(SavePhotoTest, IptcTextsInUtf8ThatDoNotSaySoStayWhatTheyAre)
{
    // Some of its bytes are no letters elsewhere.
    const std::string city = "Köln, Ýstad Ö–Жя";
    for (const std::string title : {"Neu", "Müller", "Жук"}) {
        for (const bool hasTitle : {false, true}) {
            const Path path = photo("jpg");
            write(path,
                  {"IPTC:City=" + city, "IPTC:Keywords=Grün",
                   std::string("IPTC:ObjectName=") + (hasTitle ? "früher" : "alt")},
                  "-charset iptc=UTF8");
            ASSERT_NE(Files::read(path).find(city), std::string::npos);
            ASSERT_EQ(saveText(path, Field::Title, title), Kind::None) << title << lastWords();
            EXPECT_NE(Files::read(path).find(city), std::string::npos) << title;
            const bool isMarked = title != "Neu";
            EXPECT_EQ(tag(path, "IPTC:CodedCharacterSet"), isMarked ? "UTF8" : "");
            EXPECT_EQ(tag(path, "IPTC:ObjectName"), title);
            if (isMarked) {
                EXPECT_EQ(tag(path, "IPTC:City"), city);
                EXPECT_EQ(tag(path, "IPTC:Keywords"), "Grün");
            }
        }
    }
}

TEST_F(SavePhotoTest, IptcTextsInAnotherEncodingStayWhatTheyAreWhereOthersGo)
{
    const Path path = photo("jpg");
    const std::vector<std::string> tags{"IPTC:City=Köln", "IPTC:Keywords=Grün", "IPTC:By-line=Zoë",
                                        "EXIF:DateTimeOriginal=2024:01:31 01:30:00", "IPTC:DateCreated=2024:01:31"};
    write(path, tags);
    ASSERT_EQ(move(path, 1h), Kind::None) << lastWords();
    EXPECT_EQ(tag(path, "IPTC:City"), "Köln");
    for (const std::string author : {"", "Жук"}) {
        write(path, tags);
        Edits edits;
        edits.removesPersonalData = true;
        if (!author.empty())
            edits.texts = {{Field::Author, author}, {Field::Title, "Neu"}};
        ASSERT_EQ(save(path, edits), Kind::None) << lastWords();
        EXPECT_EQ(tag(path, "IPTC:Keywords"), "Grün");
        EXPECT_EQ(tag(path, "IPTC:City"), "");
        EXPECT_EQ(tag(path, "IPTC:By-line"), author);
    }
}

TEST_F(SavePhotoTest, ATextKeepsItsTranslations)
{
    for (const auto& [field, key] :
         {std::pair(Field::Title, "XMP-dc:Title"), std::pair(Field::Description, "XMP-dc:Description"),
          std::pair(Field::Copyright, "XMP-dc:Rights")}) {
        for (const bool hasDefault : {true, false}) {
            const Path path = photo("jpg");
            const std::string german = std::string(key) + "-de";
            write(path,
                  {german + "=deutsch", hasDefault ? std::string(key) + "-x-default=english" : german + "=deutsch"});
            ASSERT_EQ(saveText(path, field, "new"), Kind::None) << lastWords();
            EXPECT_EQ(tag(path, key), "new");
            EXPECT_EQ(tag(path, german), "deutsch") << hasDefault;
            ASSERT_EQ(saveText(path, field, ""), Kind::None) << lastWords();
            EXPECT_EQ(text(field, path), "");
            EXPECT_EQ(tag(path, german), "deutsch") << hasDefault;
        }
    }
}

TEST_F(SavePhotoTest, WordsThatExifToolPrintsAsNoTextAreWritten)
{
    const Path path = photo("jpg");
    for (const std::string value : {"True", "FALSE", "-0", "0", "-1"}) {
        for (const Field field : {Field::Title, Field::Description, Field::Author, Field::Copyright})
            EXPECT_EQ(saveText(path, field, value), Kind::None) << value;
        EXPECT_NE(Files::read(path).find('>' + value + '<'), std::string::npos) << value;
    }
    EXPECT_EQ(saveText(path, Field::Author, "True; Ada"), Kind::None);
}

TEST_F(SavePhotoTest, RemovesATextFromEveryPlace)
{
    const Path path = photo("jpg");
    ASSERT_EQ(save(path, everything()), Kind::None);
    Edits edits;
    edits.texts = {{Field::Title, ""}, {Field::Author, ""}, {Field::Date, ""}};
    edits.place = Edits::NewPlace{};
    ASSERT_EQ(save(path, edits), Kind::None) << lastWords();

    const Tags tags = read(path).tags;
    for (const Field field : {Field::Title, Field::Author, Field::Date, Field::Place})
        EXPECT_EQ(textOf(field, tags), "");
    EXPECT_EQ(textOf(Field::Copyright, tags), "© 2026 Ada");
    EXPECT_FALSE(tags.hasGroup("GPS"));
}

TEST_F(SavePhotoTest, ThePictureStaysTheSameByteByByte)
{
    for (const std::string kind : {"jpg", "png", "tif", "heic", "avif", "gif"}) {
        const Path path = photo(kind);
        const std::string before = Files::read(path);
        ASSERT_EQ(save(path, everything()), Kind::None) << kind;
        const std::string after = Files::read(path);
        ASSERT_NE(after, before);
        ByteSource one(before);
        ByteSource other(after);
        EXPECT_EQ(haveSameImage(one, other), true) << kind;
    }
}

TEST_F(SavePhotoTest, EveryOrientationIsWrittenAndReadBack)
{
    const Path path = photo("jpg");
    for (int orientation = 1; orientation <= 8; ++orientation) {
        Edits edits;
        edits.orientation = orientation;
        ASSERT_EQ(save(path, edits), Kind::None) << orientation;
        EXPECT_EQ(orientationOf(read(path).tags), orientation);
    }
}

TEST_F(SavePhotoTest, SaysWhereTheOrientationIsPartOfThePicture)
{
    const Path path = photo("heic");
    const std::string before = Files::read(path);
    Edits edits;
    edits.orientation = 6;
    EXPECT_EQ(save(path, edits), Kind::OrientationInPicture);
    EXPECT_EQ(Files::read(path), before);
}

TEST_F(SavePhotoTest, MovesEveryDateByADurationInBothDirections)
{
    const Path path = photo("jpg");
    Edits edits;
    edits.texts = {{Field::Date, "2023:12:31 23:30:00"}};
    ASSERT_EQ(save(path, edits), Kind::None);
    edits = {};
    edits.shift = 45min;
    ASSERT_EQ(save(path, edits), Kind::None) << lastWords();
    Tags tags = read(path).tags;
    EXPECT_EQ(*tags.find("ExifIFD:DateTimeOriginal"), "2024:01:01 00:15:00");
    EXPECT_EQ(*tags.find("XMP-photoshop:DateCreated"), "2024:01:01 00:15:00");

    edits.shift = -(24h * 400 + 1s);
    ASSERT_EQ(save(path, edits), Kind::None) << lastWords();
    tags = read(path).tags;
    EXPECT_EQ(*tags.find("ExifIFD:DateTimeOriginal"), "2022:11:27 00:14:59");
}

TEST_F(SavePhotoTest, ADayWithoutATimeMovesToo)
{
    const Path path = photo("jpg");
    const std::string key = "XMP-photoshop:DateCreated";
    write(path, {"EXIF:DateTimeOriginal=2024:01:31 23:30:00", key + "=2024:01:31"});
    ASSERT_EQ(move(path, 1h), Kind::None) << lastWords();
    EXPECT_EQ(tag(path, "ExifIFD:DateTimeOriginal"), "2024:02:01 00:30:00");
    EXPECT_EQ(tag(path, key), "2024:02:01");

    const Path alone = photo("jpg", "alone.jpg");
    write(alone, {key + "=2024:01:31"});
    ASSERT_EQ(move(alone, 24h), Kind::None) << lastWords();
    EXPECT_EQ(tag(alone, key), "2024:02:01");
    ASSERT_EQ(move(alone, -1h), Kind::None) << lastWords();
    EXPECT_EQ(tag(alone, key), "2024:01:31 23:00:00");
}

TEST_F(SavePhotoTest, AnotherDayMovesByItselfAlone)
{
    const Path path = photo("jpg");
    const std::string first = "EXIF:DateTimeOriginal=2024:01:31 23:30:00";
    write(path, {first, "XMP-photoshop:DateCreated=1950:06:01", "XMP-xmp:CreateDate=1951:06:01",
                 "IPTC:DateCreated=1952:06:01"});
    ASSERT_EQ(move(path, 1h), Kind::None) << lastWords();
    EXPECT_EQ(tag(path, "ExifIFD:DateTimeOriginal"), "2024:02:01 00:30:00");
    EXPECT_EQ(tag(path, "XMP-photoshop:DateCreated"), "1950:06:01");
    EXPECT_EQ(tag(path, "XMP-xmp:CreateDate"), "1951:06:01");
    EXPECT_EQ(tag(path, "IPTC:DateCreated"), "1952:06:01");
    ASSERT_EQ(move(path, -25h), Kind::None) << lastWords();
    EXPECT_EQ(tag(path, "ExifIFD:DateTimeOriginal"), "2024:01:30 23:30:00");
    EXPECT_EQ(tag(path, "XMP-photoshop:DateCreated"), "1950:05:31");
    EXPECT_EQ(tag(path, "XMP-xmp:CreateDate"), "1951:05:31");
    EXPECT_EQ(tag(path, "IPTC:DateCreated"), "1952:05:31");

    write(path, {first, "IPTC:DateCreated=1952:06:01", "IPTC:TimeCreated=00:10:00+02:00"});
    ASSERT_EQ(move(path, -1h), Kind::None) << lastWords();
    EXPECT_EQ(tag(path, "IPTC:DateCreated"), "1952:05:31");
    EXPECT_EQ(tag(path, "IPTC:TimeCreated"), "23:10:00+02:00");
    write(path, {first, "IPTC:DateCreated=", "IPTC:TimeCreated=00:10:00+02:00"});
    ASSERT_EQ(move(path, 1h), Kind::None) << lastWords();
    EXPECT_EQ(tag(path, "IPTC:TimeCreated"), "01:10:00+02:00");

    const Path days = photo("jpg", "days.jpg");
    write(days, {"XMP-photoshop:DateCreated=2024:01:31", "XMP-xmp:CreateDate=1951:06:01"});
    ASSERT_EQ(move(days, 24h), Kind::None) << lastWords();
    EXPECT_EQ(tag(days, "XMP-photoshop:DateCreated"), "2024:02:01");
    EXPECT_EQ(tag(days, "XMP-xmp:CreateDate"), "1951:06:02");
}

TEST_F(SavePhotoTest, ADateKeepsItsTimeZone)
{
    for (const bool isAlone : {false, true}) {
        const Path path = photo("jpg");
        write(path, {"IPTC:DateCreated=2024:01:31", "IPTC:TimeCreated=23:30:00-03:30"});
        if (!isAlone)
            write(path, {"EXIF:DateTimeOriginal=2024:01:31 23:30:00",
                         "XMP-photoshop:DateCreated=2024:01:31 23:30:00.25-03:30"});
        ASSERT_EQ(move(path, 1h), Kind::None) << lastWords();
        EXPECT_EQ(tag(path, "IPTC:DateCreated"), "2024:02:01");
        EXPECT_EQ(tag(path, "IPTC:TimeCreated"), "00:30:00-03:30");
        EXPECT_EQ(tag(path, "XMP-photoshop:DateCreated"), isAlone ? "" : "2024:02:01 00:30:00.25-03:30");
        ASSERT_EQ(saveText(path, Field::Date, "2025:06:07 08:09:10"), Kind::None) << lastWords();
        EXPECT_EQ(tag(path, "IPTC:DateCreated"), "2025:06:07");
        EXPECT_EQ(tag(path, "IPTC:TimeCreated"), "08:09:10-03:30");
        EXPECT_EQ(tag(path, "XMP-photoshop:DateCreated"),
                  isAlone ? "2025:06:07 08:09:10" : "2025:06:07 08:09:10-03:30");
    }
}

TEST_F(SavePhotoTest, WhatBelongsToADateGoesWithIt)
{
    const Path path = photo("jpg");
    write(path, {"EXIF:DateTimeOriginal=2024:01:31 23:30:00", "EXIF:SubSecTimeOriginal=25",
                 "EXIF:OffsetTimeOriginal=+02:00", "EXIF:CreateDate=2024:01:31 23:30:00",
                 "EXIF:SubSecTimeDigitized=25", "EXIF:OffsetTimeDigitized=+02:00"});
    ASSERT_EQ(move(path, 1h), Kind::None) << lastWords();
    EXPECT_EQ(tag(path, "ExifIFD:SubSecTimeOriginal"), "25");
    ASSERT_EQ(saveText(path, Field::Date, "2025:06:07 08:09:10"), Kind::None) << lastWords();
    for (const std::string which : {"Original", "Digitized"}) {
        EXPECT_EQ(tag(path, "ExifIFD:SubSecTime" + which), "");
        EXPECT_EQ(tag(path, "ExifIFD:OffsetTime" + which), "+02:00");
    }
    ASSERT_EQ(saveText(path, Field::Date, ""), Kind::None) << lastWords();
    for (const std::string which : {"Original", "Digitized"})
        EXPECT_EQ(tag(path, "ExifIFD:OffsetTime" + which), "");
}

TEST_F(SavePhotoTest, ADateThatIsNotThereCannotBeMoved)
{
    Edits edits;
    edits.shift = 1h;
    EXPECT_EQ(save(photo("jpg"), edits), Kind::NoDate);
}

TEST_F(SavePhotoTest, RemovesLocationAndPersonalData)
{
    const Path path = photo("jpg");
    Edits edits = everything();
    ASSERT_EQ(save(path, edits), Kind::None);
    edits = {};
    edits.removesPersonalData = true;
    ASSERT_EQ(save(path, edits), Kind::None) << lastWords();

    const Tags tags = read(path).tags;
    EXPECT_TRUE(PersonalData::entriesIn(tags).empty());
    EXPECT_EQ(textOf(Field::Author, tags), "");
    EXPECT_EQ(textOf(Field::Copyright, tags), "© 2026 Ada") << "is for whoever gets the photo";
    EXPECT_EQ(save(path, edits), Kind::None) << "there is nothing more to do";
}

TEST_F(SavePhotoTest, LooksForMoreThanThePictureInAFewPhotosAlone)
{
    std::vector<std::string> paths;
    const auto thoseWithMore = [&] {
        std::size_t count = 0;
        readPhotos(request(), paths, [&](std::size_t, const Reading& reading) { count += reading.holdsMore ? 1 : 0; },
                   {});
        return count;
    };
    for (int number = 0; number < 8; ++number) {
        paths.push_back(photo("jpg", std::to_string(number) + ".jpg"));
        Files::write(paths.back(), Files::read(paths.back()) + Files::read(paths.back()));
    }
    EXPECT_EQ(thoseWithMore(), 8);
    paths.push_back(photo("jpg"));
    EXPECT_EQ(thoseWithMore(), 0) << "it goes through all of each file";
}

TEST_F(SavePhotoTest, SaysWhereMoreThanThePictureMayHoldPersonalData)
{
    const Path path = photo("jpg");
    Edits edits = everything();
    ASSERT_EQ(save(path, edits), Kind::None);
    EXPECT_FALSE(read(path).holdsMore);
    // A second picture that has all of it.
    Files::write(path, Files::read(path) + Files::read(path));
    EXPECT_TRUE(read(path).holdsMore);
    EXPECT_EQ(save(path, {.texts = {{Field::Title, "again"}}, .orientation = {}, .place = {}}), Kind::None);
    edits = {};
    edits.removesPersonalData = true;
    EXPECT_EQ(save(path, edits), Kind::HoldsMore);
    EXPECT_EQ(text(Field::Place, path), "");
    EXPECT_EQ(save(path, edits), Kind::HoldsMore) << "there is nothing more to do";
}

TEST_F(SavePhotoTest, WhatOtherProgramsAndDronesNoteOfPlacesAndPeopleIsRemovedToo)
{
    const Path path = photo("jpg");
    const std::vector<std::string> personal{
        "XMP-drone-dji:GPSLatitude=+48.1",
        "XMP-drone-dji:GPSLongitude=+11.5",
        "XMP-drone-dji:GPSLongtitude=+11.5",
        "XMP-drone-dji:Latitude=48.1",
        "XMP-drone-dji:Longitude=11.5",
        "XMP-iptcExt:RatingRegionGPSLatitude=48.1",
        "XMP-dwc:DCDecimalLatitude=48.1",
        "XMP-dwc:DCVerbatimLongitude=11.5",
        "XMP-mediapro:Location=Munich",
        "XMP-expressionmedia:People=Ada",
        "XMP-mediapro:People=Ada",
        "XMP-exifEX:OwnerName=Ada",
        "XMP-xmpRights:Owner=Ada",
        "XMP-dc:Contributor=Ada",
        "XMP-digiKam:TagsList=People/Ada",
        "XMP-digiKam:CaptionsAuthorNames=Ada",
        "XMP-lr:HierarchicalSubject=People|Ada",
        "XMP-acdsee:Author=Ada",
        "XMP-iptcExt:ContributorName=Ada",
        "XMP-iptcExt:PersonHeardName=Ada",
        "XMP-prism:Person=Ada",
        "XMP-pdf:Author=Ada",
        "XMP-xmp:Author=Ada",
        "XMP-xmpDM:Artist=Ada",
        "XMP-getty:Personality=Ada",
        "XMP-plus:ImageCreatorName=Ada",
        "XMP-getty:CameraSerialNumber=1",
        "XMP-microsoft:CameraSerialNumber=1",
        "XMP-iptcExt:RecDeviceSerialNumber=1",
        "XMP-exif:ImageUniqueID=1",
        "XMP-digiKam:ImageUniqueID=1",
    };
    std::string command = "exiftool -q -overwrite_original";
    for (const std::string& tag : personal)
        command += " '-" + tag + '\'';
    ASSERT_EQ(std::system((command + " -XMP-xmp:Rating=3 '" + path.native() + '\'').c_str()), 0);
    const auto tagsOf = [&] {
        std::vector<std::string> found;
        const Tags tags = read(path).tags;
        for (const std::string& tag : personal) {
            if (tags.find(tag.substr(0, tag.find('='))))
                found.push_back(tag);
        }
        return found;
    };
    ASSERT_EQ(tagsOf(), personal);
    Edits edits;
    edits.removesPersonalData = true;
    ASSERT_EQ(save(path, edits), Kind::None) << lastWords();
    EXPECT_EQ(tagsOf(), std::vector<std::string>{});
    EXPECT_TRUE(read(path).tags.find("XMP-xmp:Rating"));
}

TEST_F(SavePhotoTest, APlaceThatCannotBeRemovedIsToldOf)
{
    const Path path = photo("jpg");
    const Path packet = outside() / "packet.xmp";
    const auto say = [&](const std::string& space) {
        Files::write(packet, "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
                             "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
                             "xmlns:own='" +
                                 space + "' own:GPSLatitude='48.1' own:GPSLongitude='11.5'/></rdf:RDF></x:xmpmeta>");
        return std::system(
            ("exiftool -q -overwrite_original '-xmp<=" + packet.native() + "' '" + path.native() + '\'').c_str());
    };
    Edits edits;
    edits.removesPersonalData = true;
    ASSERT_EQ(say("http://ns.nikon.com/asteroid/1.0/"), 0);
    EXPECT_EQ(save(path, edits), Kind::None) << lastWords();
    EXPECT_FALSE(read(path).tags.find("XMP:GPSLatitude"));

    ASSERT_EQ(say("http://nobody.example/"), 0);
    const std::string before = Files::read(path);
    EXPECT_EQ(save(path, edits), Kind::EditsNotKept);
    edits.texts = {{Field::Title, "Harbour"}};
    EXPECT_EQ(save(path, edits), Kind::EditsNotKept);
    EXPECT_TRUE(Files::read(path) == before);
}

TEST_F(SavePhotoTest, AnAuthorGivenWithTheRemovalStays)
{
    const Path path = photo("jpg");
    ASSERT_EQ(save(path, everything()), Kind::None);
    Edits edits;
    edits.removesPersonalData = true;
    edits.texts = {{Field::Author, "Agency"}};
    ASSERT_EQ(save(path, edits), Kind::None) << lastWords();
    EXPECT_EQ(text(Field::Author, path), "Agency");
    EXPECT_EQ(text(Field::Place, path), "");
}

TEST_F(SavePhotoTest, WhatIsGivenWithTheRemovalStaysWhereItWasThereBefore)
{
    const Path path = photo("jpg");
    ASSERT_EQ(save(path, everything()), Kind::None);
    Edits edits = everything();
    edits.removesPersonalData = true;
    ASSERT_EQ(save(path, edits), Kind::None) << lastWords();
    expectEverything(path);
}

TEST_F(SavePhotoTest, KeepsPermissionsAndExtendedAttributesAndTheTimeIfAsked)
{
    const Path path = photo("jpg");
    fs::permissions(path, fs::perms(0640));
    const bool hasAttributes = ::setxattr(path.c_str(), "user.rating", "5", 1, 0) == 0;
    const std::array<timespec, 2> times{{{1000, 0}, {2000, 7}}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times.data(), 0), 0);
    ASSERT_EQ(save(path, everything(), {.keepsTime = true}), Kind::None);

    struct stat status = {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    EXPECT_EQ(status.st_mtim.tv_sec, 2000);
    EXPECT_EQ(status.st_mtim.tv_nsec, 7);
    if (hasAttributes) {
        char value = 0;
        EXPECT_EQ(::getxattr(path.c_str(), "user.rating", &value, 1), 1);
        EXPECT_EQ(value, '5');
    }
    ASSERT_EQ(save(path, {.texts = {{Field::Title, "again"}}, .orientation = {}, .place = {}}), Kind::None);
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_NE(status.st_mtim.tv_sec, 2000);
}

TEST_F(SavePhotoTest, TheOriginalIsKeptBesideItWhateverIsThere)
{
    const Path path = photo("jpg");
    Files::write(path.native() + "_original", "another");
    const std::string first = Files::read(path);
    ASSERT_EQ(save(path, everything(), {.keepsOriginal = true}), Kind::None);
    const std::string second = Files::read(path);
    ASSERT_EQ(
        save(path, {.texts = {{Field::Title, "again"}}, .orientation = {}, .place = {}}, {.keepsOriginal = true}),
        Kind::None);
    EXPECT_EQ(names(), (std::vector<std::string>{"photo.jpg", "photo.jpg_original", "photo.jpg_original 2",
                                                 "photo.jpg_original 3"}));
    EXPECT_EQ(Files::read(path.native() + "_original"), "another");
    EXPECT_EQ(Files::read(path.native() + "_original 2"), first);
    EXPECT_EQ(Files::read(path.native() + "_original 3"), second);
}

TEST_F(SavePhotoTest, NoOriginalIsKeptOfAPhotoThatCannotBeReplaced)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser can have another's photo";
    const Path path = photo("jpg");
    constexpr uid_t another = 65534;
    ASSERT_EQ(::chown(path.c_str(), another, another), 0);
    ASSERT_EQ(::chown(listed().c_str(), another, another), 0);
    // As folders are that are everybody's.
    fs::permissions(listed(), fs::perms(01777));
    EXPECT_EQ(inChild(path, loseRights, {.keepsOriginal = true}), Kind::CannotBeSaved);
    EXPECT_EQ(names(), std::vector<std::string>{"photo.jpg"});
}

TEST_F(SavePhotoTest, NoOriginalIsKeptOfAPhotoThatEverybodyWritesAndItsOwnerReplaces)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser can have another's photo";
    const Path path = photo("jpg");
    const std::string before = Files::read(path);
    constexpr uid_t another = 65534;
    constexpr uid_t person = 65533;
    ASSERT_EQ(::chown(path.c_str(), another, another), 0);
    ASSERT_EQ(::chown(listed().c_str(), another, another), 0);
    fs::permissions(listed().parent_path(), fs::perms(0755));
    fs::permissions(listed(), fs::perms(01777));
    fs::permissions(path, fs::perms(0666));
    const auto becomePerson = [] {
        ASSERT_EQ(::setresuid(person, person, person), 0);
        // So that what it starts sees its files.
        ASSERT_EQ(::prctl(PR_SET_DUMPABLE, 1), 0);
    };
    EXPECT_EQ(inChild(path, becomePerson, {.keepsOriginal = true}), Kind::CannotBeSaved);
    EXPECT_EQ(names(), std::vector<std::string>{"photo.jpg"});
    EXPECT_EQ(Files::read(path), before);
    // Either may be the person's.
    ASSERT_EQ(::chown(path.c_str(), person, person), 0);
    EXPECT_EQ(inChild(path, becomePerson, {.keepsOriginal = true}), Kind::None);
    EXPECT_EQ(Files::read(path.native() + "_original"), before);
}

TEST_F(SavePhotoTest, AnOriginalOfBeforeStaysWhereThePhotoCannotBeReplaced)
{
    const Path path = photo("jpg");
    fs::create_hard_link(path, path.native() + "_original");
    constexpr int noMounts = 99;
    const auto mountPhoto = [&] {
        // No name can take the place of one that is mounted on.
        if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount(path.c_str(), path.c_str(), nullptr, MS_BIND, nullptr) != 0)
            ::_exit(noMounts);
    };
    const Kind kind = inChild(path, mountPhoto, {.keepsOriginal = true});
    ASSERT_NE(kind, static_cast<Kind>(noMounts)) << "nothing could be mounted";
    EXPECT_EQ(kind, Kind::CannotBeSaved);
    EXPECT_EQ(names(), (std::vector<std::string>{"photo.jpg", "photo.jpg_original"}));
}

TEST_F(SavePhotoTest, AnOriginalThatIsKeptAlreadyIsKeptOnce)
{
    const Path path = photo("jpg");
    const std::string before = Files::read(path);
    // As a save leaves it that ended before the photo was replaced.
    fs::create_hard_link(path, path.native() + "_original");
    ASSERT_EQ(save(path, everything(), {.keepsOriginal = true}), Kind::None);
    EXPECT_EQ(names(), (std::vector<std::string>{"photo.jpg", "photo.jpg_original"}));
    EXPECT_EQ(Files::read(path.native() + "_original"), before);
}

TEST_F(SavePhotoTest, HostileNamesAndTextsAreNothingButNamesAndTexts)
{
    for (const std::string name :
         {"a\nb.jpg", "-o x.jpg", "#[CSTR]x.jpg", "\xff\xfe.jpg", " .jpg", "touch x|", "|touch x", ">x.jpg",
          "%d%f.jpg", "@x.jpg", "\x1b[31m.jpg", "-execute", "caf\xC3\xA9.jpg", "&x.jpg"}) {
        const Path path = photo("jpg", name);
        ASSERT_EQ(save(path, everything()), Kind::None) << name << ": " << lastWords();
        expectEverything(path);
    }
    for (const std::string value : {"-execute", "<=/etc/passwd", "$Make", "{ready1}\n{ready2}", "#comment", "1.50",
                                    "007", "1e5", "\"", "\\n", "&lt;", "; ", "a\r\nb", "\t", "x\x01y"}) {
        const Path path = photo("jpg");
        const Kind kind = save(path, {.texts = {{Field::Description, value}}, .orientation = {}, .place = {}});
        EXPECT_TRUE(kind == Kind::None || kind == Kind::EditsNotKept) << value << ": " << lastWords();
        if (kind == Kind::None && value != "\t" && value != "a\r\nb") {
            EXPECT_EQ(text(Field::Description, path), value);
        }
    }
    EXPECT_FALSE(fs::exists("x"));
}

TEST_F(SavePhotoTest, AFileThatCannotBeWrittenIsLeftAloneWithItsReason)
{
    for (const std::string kind : {"webp", "jxl"}) {
        const Path path = photo(kind);
        const std::string before = Files::read(path);
        EXPECT_NE(save(path, everything()), Kind::None) << kind;
        EXPECT_EQ(Files::read(path), before);
    }
    const Path truncated = photo("jpg");
    Files::write(truncated, Files::read(truncated).substr(0, 300));
    EXPECT_NE(save(truncated, everything()), Kind::None);
    EXPECT_EQ(fs::file_size(truncated), 300U);

    const Path other = photo("png", "really-png.jpg");
    const std::string before = Files::read(other);
    EXPECT_EQ(save(other, everything()), Kind::None) << "a wrong name harms nothing: " << lastWords();
    EXPECT_NE(Files::read(other), before);
    EXPECT_EQ(names().size(), 4U) << "nothing is left beside them";
}

TEST_F(SavePhotoTest, OneThatCannotBeWrittenDoesNoHarmToTheOthersAndHasItsOwnReason)
{
    std::vector<std::string> paths;
    for (int number = 0; number < 24; ++number)
        paths.push_back(photo(number % 8 == 5 ? "webp" : "jpg", std::to_string(number) + ".jpg"));
    Files::write(paths[2], Files::read(paths[2]).substr(0, 300));
    const auto troubles = saveAll(paths, everything());
    ASSERT_EQ(troubles.size(), paths.size());
    for (std::size_t place = 0; place < paths.size(); ++place) {
        const bool isWritten = place % 8 != 5 && place != 2;
        EXPECT_EQ(troubles.at(place).kind == Kind::None, isWritten) << place << troubles.at(place).words;
        EXPECT_EQ(text(Field::Copyright, paths[place]) == "© 2026 Ada", isWritten) << place;
    }
    EXPECT_EQ(names().size(), paths.size()) << "nothing is left beside them";
}

TEST_F(SavePhotoTest, PhotosOfSeveralFoldersAreEachWrittenWhereTheyLie)
{
    std::vector<std::string> paths;
    for (const std::string folder : {"a", "b", "c % %f $"}) {
        fs::create_directory(listed() / folder);
        for (const std::string name : {"1.jpg", "2.jpg", "3.jpg"})
            paths.push_back(photo("jpg", folder + '/' + name));
    }
    for (const auto& [place, trouble] : saveAll(paths, everything())) {
        EXPECT_EQ(trouble.kind, Kind::None) << trouble.words;
        expectEverything(paths[place]);
    }
    for (const auto& folder : fs::directory_iterator(listed()))
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 3) << folder.path();
}

TEST_F(SavePhotoTest, WhatDiffersFromPhotoToPhotoIsWrittenIntoEach)
{
    std::vector<std::string> paths;
    for (int number = 0; number < 6; ++number) {
        paths.push_back(photo("jpg", std::to_string(number) + ".jpg"));
        Edits edits;
        // Two are alike.
        edits.texts = {{Field::Date, "2024:02:0" + std::to_string(1 + number / 2) + " 12:00:00"}};
        ASSERT_EQ(save(paths.back(), edits), Kind::None);
    }
    Edits edits;
    edits.shift = 24h;
    for (const auto& [place, trouble] : saveAll(paths, edits)) {
        EXPECT_EQ(trouble.kind, Kind::None) << trouble.words;
        EXPECT_EQ(text(Field::Date, paths[place]), "2024:02:0" + std::to_string(2 + place / 2) + " 12:00:00");
    }
}

TEST_F(SavePhotoTest, WhatIsNoFileOrHasGoneOrLeadsOutIsNotTouched)
{
    fs::create_directory(listed() / "folder.jpg");
    ASSERT_EQ(::mkfifo((listed() / "pipe.jpg").c_str(), 0600), 0);
    Files::write(outside() / "photo.jpg", Files::read(photo("jpg")));
    fs::create_symlink(outside() / "photo.jpg", listed() / "out.jpg");
    const std::string before = Files::read(outside() / "photo.jpg");
    for (const char* name : {"folder.jpg", "pipe.jpg", "out.jpg", "gone.jpg"}) {
        EXPECT_EQ(save(listed() / name, everything()), Kind::CannotBeOpened) << name;
        EXPECT_EQ(read(listed() / name).trouble.kind, Kind::CannotBeOpened) << name;
    }
    EXPECT_EQ(Files::read(outside() / "photo.jpg"), before);
}

TEST_F(SavePhotoTest, ALinkStaysALinkAndWhereItLeadsIsChanged)
{
    const Path path = photo("jpg");
    fs::create_symlink("photo.jpg", listed() / "link.jpg");
    ASSERT_EQ(save(listed() / "link.jpg", everything()), Kind::None);
    EXPECT_TRUE(fs::is_symlink(listed() / "link.jpg"));
    expectEverything(path);
}

TEST_F(SavePhotoTest, AFolderThatCannotBeWrittenIsToldOf)
{
    const Path path = photo("jpg");
    const std::string before = Files::read(path);
    fs::permissions(listed(), fs::perms(0500));
    const Kind kind = inChild(path, loseRights);
    fs::permissions(listed(), fs::perms(0700));
    EXPECT_EQ(kind, Kind::CannotBeSaved);
    EXPECT_EQ(names(), std::vector<std::string>{"photo.jpg"});
    EXPECT_EQ(Files::read(path), before);
}

TEST_F(SavePhotoTest, AFullDiskLeavesThePhotoAsItWas)
{
    const Path path = photo("jpg");
    Files::write(path, Files::read(path) + Files::noise(200'000));
    const std::string before = Files::read(path);
    const Kind kind = inChild(path, [] {
        const rlimit most{100'000, 100'000};
        ::setrlimit(RLIMIT_FSIZE, &most);
    });
    EXPECT_TRUE(kind == Kind::CannotBeWritten || kind == Kind::ExifToolCrashed) << static_cast<int>(kind);
    EXPECT_EQ(names(), std::vector<std::string>{"photo.jpg"});
    EXPECT_EQ(Files::read(path), before);
}

TEST_F(SavePhotoTest, AFileThatChangesMeanwhileIsNotReplaced)
{
    const Path path = photo("jpg");
    const auto opened = openWithFolder(request(), path);
    ASSERT_TRUE(opened);
    Files::write(path, Files::read(path) + "x");
    TagReader reader;
    EXPECT_EQ(savePhotos(reader, {&*opened, 1}, everything(), {}, {}).front().kind, Kind::Changed);
    EXPECT_EQ(names(), std::vector<std::string>{"photo.jpg"});
}

TEST_F(SavePhotoTest, LeftoversOfLongAgoGoAndOthersStay)
{
    const std::string old = ".orvik-exif-0123456789abcdef.jpg";
    Files::write(listed() / old, "x");
    Files::write(listed() / ".orvik-exif-fedcba9876543210.jpg", "x");
    fs::last_write_time(listed() / old, fs::file_time_type::clock::now() - 3h);
    const auto opened = openWithFolder(request(), photo("jpg"));
    ASSERT_TRUE(opened);
    removeLeftovers(opened->folder);
    EXPECT_EQ(names(), (std::vector<std::string>{".orvik-exif-fedcba9876543210.jpg", "photo.jpg"}));
}

TEST_F(SavePhotoTest, OfManyPhotosOneThatFailsDoesNotHoldUpTheOthers)
{
    std::vector<std::string> paths;
    for (int number = 0; number < 20; ++number)
        paths.push_back(photo(number == 7 ? "webp" : "jpg", std::to_string(number) + ".jpg"));
    std::map<std::size_t, Kind> troubles;
    savePhotos(request(), paths, everything(), {},
               [&](std::size_t index, const Trouble& trouble) { troubles[index] = trouble.kind; }, {});
    ASSERT_EQ(troubles.size(), 20U);
    for (const auto& [index, kind] : troubles)
        EXPECT_EQ(kind == Kind::None, index != 7) << index;
}

/// A process that is killed while it saves, at a moment that nobody chooses.
TEST_F(SavePhotoTest, WhoeverIsKilledLeavesThePhotoAsItWasOrAsItWasToBe)
{
    const Path path = photo("jpg");
    const std::string first = Files::read(path);
    Edits edits;
    edits.texts[Field::Title] = "whole";
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_EQ(save(path, edits, {.keepsOriginal = true}), Kind::None);
    const auto whole = std::chrono::steady_clock::now() - begin;
    std::mt19937 random(std::random_device{}());
    std::uniform_real_distribution<double> share(0.0, 1.5);
    for (int round = 0; round < 12; ++round) {
        edits.texts[Field::Title] = "round " + std::to_string(round);
        const std::string before = Files::read(path);
        const pid_t child = ::fork();
        if (child == 0) {
            static_cast<void>(save(path, edits, {.keepsOriginal = true}));
            ::_exit(EXIT_SUCCESS);
        }
        std::this_thread::sleep_for(whole * share(random));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        if (Files::read(path) != before) {
            EXPECT_EQ(text(Field::Title, path), "round " + std::to_string(round));
            EXPECT_TRUE(std::ranges::any_of(names(), [&](const std::string& name) {
                return name.starts_with("photo.jpg_original") && Files::read(listed() / name) == before;
            }));
        }
        EXPECT_EQ(Files::read(path.native() + "_original"), first);
        for (const std::string& name : names())
            EXPECT_TRUE(name == "photo.jpg" || name.starts_with("photo.jpg_original") ||
                        name.starts_with(".orvik-exif-"))
                << name;
    }
}
