#include "extension/actions/duplicates/DuplicatesWindow.h"

#include "Items.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace MenuExtension::Duplicates {

namespace {

class OneGroup : public Finder {
public:
    void find(Findings& findings, std::stop_token) override { findings.found(0, {itemAt("/a"), itemAt("/b")}); }
};

/// Not part of the window, nor of what it owns.
std::atomic<bool> isReading = false;
std::atomic<bool> hasReader = false;
std::atomic<bool> hadReaderToTheEnd = false;

/// What reads pictures, as an action has it.
struct Reader {
    Reader() { hasReader = true; }
    ~Reader() { hasReader = false; }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
};

TEST(DuplicatesWindowTest, KeepsWhatReadsAPictureUntilThatHasEnded)
{
    Presentation presentation;
    presentation.counted = [](qulonglong count) { return QString::number(count); };
    presentation.picture = [reader = std::make_shared<Reader>()](const std::string&, QSize,
                                                                 const std::stop_token& stop) {
        isReading = true;
        while (!stop.stop_requested())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        hadReaderToTheEnd = hasReader.load();
        return QImage();
    };
    auto window = std::make_unique<DuplicatesWindow>(std::make_unique<OneGroup>(), std::move(presentation));
    ASSERT_TRUE(QTest::qWaitFor([] { return isReading.load(); }));
    window.reset();
    EXPECT_TRUE(hadReaderToTheEnd);
    EXPECT_FALSE(hasReader);
}

TEST(DuplicatesWindowTest, AllThatIsSaidOfTheItemsIsOnViewAtFirst)
{
    const QString why = QStringLiteral("Höchste Pixelzahl, größere Datei");
    Presentation presentation;
    presentation.counted = [](qulonglong count) { return QString::number(count); };
    presentation.columns = {{QStringLiteral("Pixels"), [](const Item&) { return QStringLiteral("6000 × 4000"); }}};
    presentation.proposal = {QStringLiteral("Keep the Best"),
                             [](const Item& one, const Item& other) { return one.path > other.path; },
                             [&](const std::vector<Item>&) { return why; }};
    presentation.isSideBySide = true;
    DuplicatesWindow window(std::make_unique<OneGroup>(), std::move(presentation));
    window.show();
    const auto* const items = window.findChild<QTreeView*>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return items->model()->rowCount() == 2; }));
    QCoreApplication::processEvents();
    const int reason = items->model()->columnCount() - 1;
    EXPECT_EQ(items->model()->index(1, reason).data().toString(), why);
    EXPECT_GT(items->columnWidth(reason), items->fontMetrics().horizontalAdvance(why));
    EXPECT_EQ(items->horizontalScrollBar()->maximum(), 0);
    window.close();
}

} // namespace

} // namespace MenuExtension::Duplicates
