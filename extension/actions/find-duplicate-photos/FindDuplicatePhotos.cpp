#include "DuplicatePhotoFinder.h"
#include "SimilarityRow.h"
#include "extension/actions/duplicates/DuplicatesWindow.h"
#include "extension/actions/files/Trash.h"
#include "extension/actions/support/Action.h"
#include "extension/actions/support/Picture.h"
#include "extension/actions/window/PerformInWindow.h"
#include "platform/LocalizedString.h"
#include "platform/linux/text/PluralCount.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <fcntl.h>

namespace MenuExtension {

using namespace Duplicates;
using namespace SimilarPhotos;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FindDuplicatePhotos)
};

/// More pixels, then more bytes, then the older one, which the others were made of.
bool isBetter(const Item& one, const Item& other)
{
    const std::uint64_t pixels = Size::of(one).pixels();
    const std::uint64_t otherPixels = Size::of(other).pixels();
    if (pixels != otherPixels)
        return pixels > otherPixels;
    if (one.state.size != other.state.size)
        return one.state.size > other.state.size;
    return one.state.modified < other.state.modified;
}

/// What the first is ahead of the best of the others in.
QString whyBest(const std::vector<Item>& items)
{
    if (items.size() < 2)
        return {};
    const Item& best = items.front();
    const Item& next = *std::min_element(items.begin() + 1, items.end(), isBetter);
    if (Size::of(best).pixels() > Size::of(next).pixels())
        return Texts::tr("Most pixels");
    if (best.state.size > next.state.size)
        return Texts::tr("Most pixels, larger file");
    if (best.state.modified < next.state.modified)
        return Texts::tr("Oldest of the same size");
    return Texts::tr("As good as another");
}

QString sizeText(const Item& item)
{
    const Size size = Size::of(item);
    return Texts::tr("%1 × %2").arg(QString::number(size.width), QString::number(size.height));
}

/// Reads the pictures that are shown.
class Previews {
public:
    Previews(DuplicatePhotoFinder::Means means) : m_means(std::move(means)), m_reader(m_means.worker, m_means.limits)
    {}

    QImage picture(const std::string& path, QSize pixels, const std::stop_token& stop)
    {
        const auto file = m_means.openFile(path);
        const int longest = std::clamp(std::min(pixels.width(), pixels.height()), 1, 2048);
        const auto result =
            file ? m_reader.read(file.get(), static_cast<std::uint32_t>(longest), stop) : std::nullopt;
        const auto* const shown = result ? std::get_if<Shown>(&*result) : nullptr;
        if (!shown)
            return {};
        const auto width = static_cast<int>(shown->width);
        const auto height = static_cast<int>(shown->height);
        const QImage image(reinterpret_cast<const uchar*>(shown->bytes.data()), width, height, 3 * width,
                           QImage::Format_RGB888);
        // The bytes go.
        return image.copy();
    }

private:
    const DuplicatePhotoFinder::Means m_means;
    PhotoReader m_reader;
};

std::optional<std::string> trash(const std::string& path)
{
    const auto trouble = moveToTrash(path);
    return trouble ? std::optional(NS::stringWithFormat(
                         NS::LocalizedString("Duplicates", "could not be moved to the trash: %1"), {*trouble}))
                   : std::nullopt;
}

Presentation presentationOf(DuplicatePhotoFinder& finder, const DuplicatePhotoFinder::Means& means)
{
    Presentation presentation;
    presentation.title = Texts::tr("Duplicate Photos");
    presentation.nothingFound = Texts::tr("No two photos show the same.");
    presentation.counted = [](qulonglong count) {
        return count == 1
                   ? Texts::tr("1 photo")
                   : Texts::tr("%1 photos", nullptr, LinuxDesktop::pluralCount(count)).arg(QLocale().toString(count));
    };
    presentation.columns = {{Texts::tr("Pixels"), sizeText}};
    presentation.proposal = {Texts::tr("Keep the Best Photo"), isBetter, whyBest};
    presentation.makeControl = [&finder](QWidget* parent, const std::function<void()>& searchAgain) -> QWidget* {
        const auto change = [&finder, searchAgain](float limit) {
            finder.setLimit(limit);
            searchAgain();
        };
        auto* const row = new SimilarityRow(usualLimit, change, parent);
        finder.whenOutdated(
            [row, searchAgain] { QMetaObject::invokeMethod(row, searchAgain, Qt::QueuedConnection); });
        return row;
    };
    presentation.picture = [previews = std::make_shared<Previews>(means)](const std::string& path, QSize pixels,
                                                                          const std::stop_token& stop) {
        return previews->picture(path, pixels, stop);
    };
    presentation.isSideBySide = true;
    // That both are as they were when they were compared has been looked at.
    presentation.removal = {.check = [](const OpenedItem&, const OpenedItem&,
                                        const std::stop_token&) { return std::optional<std::string>(); },
                            .trash = trash};
    return presentation;
}

} // namespace

Outcome perform(const Request& request)
{
    return performInWindow([&request] {
        const DuplicatePhotoFinder::Means means{
            // The folder whose background was clicked may have been reached by a link; an item that is one is not
            // followed.
            .openItem =
                [&request](const std::string& path, int flags) {
                    return openItem(request, path, request.background ? flags & ~O_NOFOLLOW : flags);
                },
            .openFile = [&request](const std::string& path) { return openFile(request, path); },
            .worker = Photos::programBeside("find-duplicate-photos-worker"),
        };
        auto finder = std::make_unique<DuplicatePhotoFinder>(request.paths, means);
        Presentation presentation = presentationOf(*finder, means);
        return std::make_unique<DuplicatesWindow>(std::move(finder), std::move(presentation));
    });
}

} // namespace MenuExtension
