#include "extension/actions/duplicates/DuplicatesWindow.h"

#include "Items.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

#include <algorithm>
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

class NoGroup : public Finder {
public:
    explicit NoGroup(std::uint64_t files) : m_files(files) {}
    void find(Findings& findings, std::stop_token) override
    {
        findings.trouble("/in/link", "is a link, and those are not followed");
        findings.progress({.files = m_files, .done = 0, .total = 0});
    }

private:
    std::uint64_t m_files;
};

TEST(DuplicatesWindowTest, SaysWhyNothingWasLookedAt)
{
    for (const auto& [files, words] : {std::pair(0, "/in/link is a link, and those are not followed."),
                                       std::pair(1, "No two files hold the same.")}) {
        Presentation presentation;
        presentation.nothingFound = QStringLiteral("No two files hold the same.");
        presentation.counted = [](qulonglong count) { return QString::number(count); };
        const DuplicatesWindow window(std::make_unique<NoGroup>(files), std::move(presentation));
        const auto labels = window.findChildren<QLabel*>();
        const auto isSaid = [&, said = QString::fromLatin1(words)] {
            return std::ranges::any_of(labels, [&](const QLabel* label) { return label->text() == said; });
        };
        EXPECT_TRUE(QTest::qWaitFor(isSaid)) << words;
    }
}

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
    // It ends while it is on view, as when a session does.
}

} // namespace

} // namespace MenuExtension::Duplicates
