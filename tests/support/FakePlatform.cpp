#include "support/FakePlatform.h"

#include <utility>

std::shared_ptr<NS::UserDefaults> FakePlatform::userDefaultsWithSuiteName(std::string_view name)
{
    calls.record("platform", "userDefaultsWithSuiteName", name);
    if (!suiteCanBeRead)
        return nullptr;
    return std::make_shared<FakeUserDefaults>(calls, "suite#" + std::to_string(++m_suitesOpened), suite);
}

std::shared_ptr<NS::Storyboard> FakePlatform::storyboardWithName_bundle(std::string_view name, NS::Bundle& bundle)
{
    calls.record("platform", "storyboardWithName_bundle", name,
                 std::string_view(&bundle == &m_bundle ? "main bundle" : "another bundle"));
    return storyboard;
}

std::unique_ptr<NS::OpenPanel> FakePlatform::makeOpenPanel(NS::ChosenPaths paths)
{
    if (paths == NS::ChosenPaths::Any)
        calls.record("platform", "makeOpenPanel");
    else
        calls.record("platform", "makeOpenPanel", std::string_view("storable paths"));
    return std::make_unique<FakeOpenPanel>(calls, "panel#" + std::to_string(++m_panelsMade), m_center, openPanel);
}

std::unique_ptr<NS::Alert> FakePlatform::makeAlert()
{
    calls.record("platform", "makeAlert");
    auto alert = std::make_unique<FakeAlert>(calls, "alert#" + std::to_string(++m_alertsMade), whileAlertIsModal);
    m_lastAlert = alert.get();
    return alert;
}

NS::SharingService* FakePlatform::sharingServiceNamed(std::string_view name)
{
    calls.record("platform", "sharingServiceNamed", name);
    return hasMailService && name == NS::SharingServiceNameComposeEmail ? &m_mailService : nullptr;
}

std::optional<NS::Image> FakePlatform::imageNamed(std::string_view name)
{
    calls.record("platform", "imageNamed", name);
    if (missingImages.contains(name))
        return std::nullopt;
    return NS::Image(std::string(name));
}

NS::BookmarkData FakePlatform::bookmarkDataWithOptions(const NS::URL& url, unsigned options)
{
    calls.record("platform", "bookmarkDataWithOptions", url, options);
    const auto given = bookmarks.find(url.path());
    return given != bookmarks.end() ? given->second : NS::Data(url.path().begin(), url.path().end());
}

bool FakePlatform::fileExistsAtPath(std::string_view path)
{
    calls.record("platform", "fileExistsAtPath", path);
    return existingFiles.contains(path);
}

std::string FakePlatform::userName()
{
    calls.record("platform", "userName");
    return "pat";
}

bool FakePlatform::canonicallyEqual(std::string_view one, std::string_view other)
{
    const auto composed = [](std::string text) {
        for (std::size_t at = 0; (at = text.find("e\u0301", at)) != std::string::npos;)
            text.replace(at, 3, "\u00e9");
        return text;
    };
    return composed(std::string(one)) == composed(std::string(other));
}

void FakePlatform::setCursor(NS::Cursor cursor)
{
    calls.record("platform", "setCursor", cursor);
}

std::uint32_t FakePlatform::arc4random_uniform(std::uint32_t bound)
{
    calls.record("platform", "arc4random_uniform", bound);
    return random;
}

std::shared_ptr<NS::Timer> FakePlatform::scheduledTimerWithTimeInterval(double interval, std::function<void()> fire)
{
    calls.record("platform", "scheduledTimerWithTimeInterval", interval);
    return clock.schedule(interval, std::move(fire));
}

void FakePlatform::dispatchToGlobalQueue(std::function<void()> work)
{
    calls.record("platform", "dispatchToGlobalQueue");
    globalQueue.push(std::move(work));
}

void FakePlatform::dispatchToMainQueue(std::function<void()> work)
{
    calls.record("platform", "dispatchToMainQueue");
    mainQueue.push(std::move(work));
}

void FakePlatform::runQueues()
{
    globalQueue.run();
    mainQueue.run();
}

NS::Date FakePlatform::now()
{
    calls.record("platform", "now");
    return clock.now();
}

void FakePlatform::performAfterDelay(std::function<void()> perform, double delay)
{
    calls.record("platform", "performAfterDelay", delay);
    clock.performAfterDelay(std::move(perform), delay);
}
