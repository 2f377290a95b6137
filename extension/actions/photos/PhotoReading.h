#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vips/vips.h>

/// Reading pictures that anyone may have made. For workers: one thread, after prepareReading().
namespace MenuExtension::Photos {

struct LetGo {
    void operator()(void* object) const { g_object_unref(object); }
};
using Image = std::unique_ptr<VipsImage, LetGo>;
using Source = std::unique_ptr<VipsSource, LetGo>;

/// The most pixels that a picture may have.
inline constexpr double mostPixels = 1e9;

/// Why a picture was not read: the end of a sentence that begins with the file's name, without a full stop.
struct Unreadable {
    std::string why;
};

/// A picture whose beginning was read, and the file that the rest comes from.
struct OpenedPhoto {
    Source source;
    /// As it is stored. Its pixels have not been read; they come in order, once.
    Image header;
    /// As it is shown, turned as the file says.
    int width = 0;
    int height = 0;
    bool isJpeg = false;
    /// Pages, or pictures that move.
    bool holdsSeveral = false;
};

/// Makes this process one that reads the formats of photos with as little memory as they take, and no others: what
/// the library knows beside them is not made for files from anywhere.
void prepareReading();

/// Reads the beginning of a picture from an open file, from its first byte on. The file stays the caller's.
[[nodiscard]] std::variant<OpenedPhoto, Unreadable> openPhoto(int file);

/// The whole file; nothing where it cannot be looked at so.
[[nodiscard]] std::string_view bytesOf(const OpenedPhoto& photo);

/// The chunks of those kinds in a PNG file, as they are.
[[nodiscard]] std::string chunksOfPng(std::string_view file, std::initializer_list<std::string_view> kinds);

/// The picture in at most that many pixels each way, turned as it is shown, in the colours of screens: three bands of
/// bytes, on white where it is transparent. Decodes no more than that takes. Never larger than the picture.
[[nodiscard]] std::variant<Image, Unreadable> readSmall(const OpenedPhoto& photo, int longest);

} // namespace MenuExtension::Photos
