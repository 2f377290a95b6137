#include "extension/actions/duplicates/PreviewPane.h"

#include "extension/actions/duplicates/ItemTexts.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/text/SizeText.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMimeDatabase>
#include <QResizeEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace MenuExtension::Duplicates {

using LinuxDesktop::sizeText;

namespace {

constexpr int lowest = 150;
constexpr int iconExtent = 64;
/// Between a tile's outline and its picture.
constexpr int frame = 8;

QIcon iconOf(const Item& item)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(nameText(item), QMimeDatabase::MatchExtension);
    return QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName(),
                                                              QIcon::fromTheme(QStringLiteral("text-x-generic"))));
}

} // namespace

PreviewPane::PreviewPane(Presentation presentation, QWidget* parent)
    : QWidget(parent), m_presentation(std::move(presentation))
{
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    setMinimumHeight(lowest);
    m_reader.start([this](const std::stop_token& stop) { read(stop); });
}

PreviewPane::~PreviewPane() = default;

PreviewPane::Tile PreviewPane::makeTile()
{
    auto* const box = new QWidget(this);
    QLabel* const content = makeText(box);
    content->setFrameShape(QFrame::StyledPanel);
    content->setMargin(frame);
    content->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    QLabel* const caption = makeNote(box);
    LinuxDesktop::tieWords(*caption, *content);
    caption->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    caption->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* const column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(content, 1);
    column->addWidget(caption);
    layout()->addWidget(box);
    return {box, content, caption};
}

void PreviewPane::showItems(const std::vector<Item>& items)
{
    const auto isSame = [](const Item& one, const Item& other) {
        return one.path == other.path && one.state == other.state;
    };
    if (std::ranges::equal(items, m_items, isSame))
        return;
    m_items = items;
    m_items.resize(std::min(m_items.size(), mostItems));
    while (m_tiles.size() < m_items.size())
        m_tiles.push_back(makeTile());
    for (std::size_t index = 0; index < m_tiles.size(); ++index) {
        Tile& tile = m_tiles[index];
        tile.box->setVisible(index < m_items.size());
        if (index >= m_items.size())
            tile.content->clear();
    }
    showCaptions();
    ask();
}

void PreviewPane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showCaptions();
    ask();
}

/// As much of each as there is room for; screen readers are told all of it.
void PreviewPane::showCaptions()
{
    for (std::size_t index = 0; index < m_items.size(); ++index) {
        QLabel& caption = *m_tiles[index].caption;
        const QStringList lines = captionOf(m_items[index]);
        QStringList shown;
        for (const QString& line : lines)
            shown.append(fontMetrics().elidedText(line, Qt::ElideMiddle, tileWidth()));
        caption.setText(shown.join(u'\n'));
        LinuxDesktop::setAccessibleName(caption, lines.join(QStringLiteral(", ")));
        LinuxDesktop::describeByWords(*m_tiles[index].content);
    }
}

int PreviewPane::tileWidth() const
{
    const int count = static_cast<int>(m_items.size());
    return (width() - (count - 1) * layout()->spacing()) / count;
}

void PreviewPane::ask()
{
    if (m_items.empty())
        return;
    const auto captionLines = static_cast<int>(captionOf(m_items.front()).size());
    const int captionHeight = captionLines * fontMetrics().lineSpacing() + layout()->spacing();
    const QSize room(tileWidth() - 2 * frame, height() - captionHeight - 2 * frame);
    const std::scoped_lock lock(m_mutex);
    m_wish = Wish{.number = ++m_number, .items = m_items, .pixels = room.expandedTo({1, 1}) * devicePixelRatioF()};
    m_wished.notify_one();
}

void PreviewPane::read(const std::stop_token& stop)
{
    while (!stop.stop_requested()) {
        Wish wish;
        {
            std::unique_lock lock(m_mutex);
            if (!m_wished.wait(lock, stop, [this] { return m_wish.has_value(); }))
                return;
            wish = *std::exchange(m_wish, std::nullopt);
        }
        for (std::size_t index = 0; index < wish.items.size() && !stop.stop_requested(); ++index) {
            const Item& item = wish.items[index];
            Preview preview;
            if (m_presentation.picture)
                preview.picture = m_presentation.picture(item.path, wish.pixels, stop);
            else
                preview = readPreview(item.path, wish.pixels, stop);
            QMetaObject::invokeMethod(
                this, [this, number = wish.number, index, item, preview] { show(number, index, item, preview); },
                Qt::QueuedConnection);
        }
    }
}

void PreviewPane::show(unsigned number, std::size_t index, const Item& item, const Preview& preview)
{
    if (number != m_number)
        return;
    QLabel& content = *m_tiles[index].content;
    const bool isText = preview.picture.isNull() && !preview.text.isEmpty();
    // A text is read itself.
    LinuxDesktop::setAccessibleRole(content, isText ? QAccessible::Paragraph : QAccessible::Graphic);
    LinuxDesktop::setAccessibleName(content, isText ? QString() : tr("Preview of %1").arg(nameText(item)));
    if (isText) {
        content.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        content.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignTop);
        content.setText(preview.text);
        return;
    }
    QPixmap picture = QPixmap::fromImage(preview.picture);
    if (picture.isNull())
        picture = iconOf(item).pixmap(QSize(iconExtent, iconExtent), devicePixelRatioF());
    else
        picture.setDevicePixelRatio(devicePixelRatioF());
    content.setAlignment(Qt::AlignCenter);
    content.setPixmap(picture);
}

QStringList PreviewPane::captionOf(const Item& item) const
{
    QStringList parts;
    for (const auto& column : m_presentation.columns)
        parts.append(column.text(item));
    if (m_presentation.isSideBySide)
        parts.append(sizeText(item.state.size));
    QStringList lines{nameText(item)};
    if (!parts.isEmpty())
        lines.append(parts.join(QStringLiteral(" · ")));
    return lines;
}

} // namespace MenuExtension::Duplicates
