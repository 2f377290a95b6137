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

void replaceAll(std::string& text, std::string_view from, std::string_view to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

/// The black shape of one of the platform's template images in white on a tile like those of the other actions:
/// nobody tints a menu's icons, so it has to be seen on light and on dark.
std::string onTile(std::string drawing)
{
    replaceAll(drawing, "#000", "#fff");
    const auto shape = drawing.find('>', drawing.find("<svg")) + 1;
    drawing.insert(shape, R"svg(
  <defs>
    <linearGradient id="tile" gradientUnits="userSpaceOnUse" x1="0" y1="0" x2="0" y2="48">
      <stop offset="0" stop-color="#6f7f98"/>
      <stop offset="1" stop-color="#55647b"/>
    </linearGradient>
  </defs>
  <rect width="48" height="48" rx="11" fill="url(#tile)"/>
  <g transform="translate(3.6 3.6) scale(.85)">)svg");
    replaceAll(drawing, "</svg>", "  </g>\n</svg>");
    return drawing;
}

bool isTemplate(std::string_view image)
{
    return image == NS::ImageNameActionTemplate || image == NS::ImageNameAddTemplate;
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
        auto drawing = contentsOf(from);
        if (!drawing) {
            std::fprintf(stderr, "%s: cannot be read\n", from.c_str());
            return EXIT_FAILURE;
        }
        if (isTemplate(row.image))
            drawing = onTile(*std::move(drawing));
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
