// Makes the icons that file managers show beside the actions: usage: make-action-icons ASSETS THEME

#include "settings/MenuCatalogue.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

namespace {

std::optional<std::string> contentsOf(const std::filesystem::path& path)
{
    std::ifstream file(path);
    std::string contents(std::istreambuf_iterator<char>(file), {});
    return file ? std::optional(contents) : std::nullopt;
}

/// A folder of the theme with what is drawn there for one size, in pixels. A file manager reads them whenever it
/// opens a menu, which takes it three times as long with a drawing.
struct Size {
    const char* folder;
    int pixels;
};
constexpr std::array sizes{Size{"16x16/actions", 16}, Size{"16x16@2/actions", 32}};

bool draw(const std::string& drawing, int pixels, const std::filesystem::path& to)
{
    QSvgRenderer renderer(QByteArray::fromStdString(drawing));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return renderer.isValid() && image.save(QString::fromStdString(to.string()));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return EXIT_FAILURE;
    const std::filesystem::path assets = argv[1];
    const std::filesystem::path theme = argv[2];
    const std::filesystem::path scalable = theme / "scalable/actions";
    std::filesystem::create_directories(scalable);
    for (const Size& size : sizes)
        std::filesystem::create_directories(theme / size.folder);
    for (const CatalogueRow& row : menuCatalogue) {
        const auto from = assets / (std::string(row.image) + ".svg");
        const std::string name = "orvik-menu-" + std::string(row.identifier);
        const auto to = scalable / (name + ".svg");
        const auto drawing = contentsOf(from);
        if (!drawing) {
            std::fprintf(stderr, "%s: cannot be read\n", from.c_str());
            return EXIT_FAILURE;
        }
        if (!(std::ofstream(to) << *drawing << std::flush)) {
            std::fprintf(stderr, "%s: cannot be written\n", to.c_str());
            return EXIT_FAILURE;
        }
        for (const Size& size : sizes) {
            if (!draw(*drawing, size.pixels, theme / size.folder / (name + ".png"))) {
                std::fprintf(stderr, "%s: cannot be drawn\n", from.c_str());
                return EXIT_FAILURE;
            }
        }
    }
    return EXIT_SUCCESS;
}
