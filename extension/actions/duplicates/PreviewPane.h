#pragma once

#include "extension/actions/duplicates/BriefThread.h"
#include "extension/actions/duplicates/Item.h"
#include "extension/actions/duplicates/Presentation.h"
#include "extension/actions/duplicates/Preview.h"

#include <QWidget>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <vector>

class QLabel;

namespace MenuExtension::Duplicates {

/// Shows what is in items, side by side. Main thread; files are read in another.
class PreviewPane : public QWidget {
    Q_OBJECT

public:
    /// How many there is room for.
    static constexpr std::size_t mostItems = 4;

    explicit PreviewPane(Presentation presentation, QWidget* parent = nullptr);
    ~PreviewPane() override;

    /// At most `mostItems`. What was shown stays until it is replaced.
    void showItems(const std::vector<Item>& items);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Tile {
        QWidget* box;
        QLabel* content;
        QLabel* caption;
    };
    struct Wish {
        unsigned number = 0;
        std::vector<Item> items;
        QSize pixels;
    };

    void read(const std::stop_token& stop);
    void ask();
    void show(unsigned number, std::size_t index, const Item& item, const Preview& preview);
    [[nodiscard]] Tile makeTile();
    void showCaptions();
    [[nodiscard]] int tileWidth() const;
    /// Its lines.
    [[nodiscard]] QStringList captionOf(const Item& item) const;

    /// Its own, since a window's members go before its children.
    const Presentation m_presentation;
    std::vector<Tile> m_tiles;
    std::vector<Item> m_items;
    unsigned m_number = 0;

    std::mutex m_mutex;
    std::condition_variable_any m_wished;
    std::optional<Wish> m_wish;
    /// Last, so that it ends first.
    BriefThread m_reader;
};

} // namespace MenuExtension::Duplicates
