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

std::unique_ptr<NS::OpenPanel> FakePlatform::makeOpenPanel()
{
    calls.record("platform", "makeOpenPanel");
    return std::make_unique<FakeOpenPanel>(calls, "panel#" + std::to_string(++m_panelsMade), m_center, openPanel);
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
