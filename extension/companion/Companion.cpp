#include "extension/companion/Companion.h"

#include "extension/companion/DirectoryAddress.h"
#include "extension/companion/OfferedActions.h"
#include "extension/protocol/ActionsFolder.h"
#include "platform/LocalizedString.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <malloc.h>
#include <sys/epoll.h>
#include <utility>

namespace MenuExtension {

namespace {

/// Between the steps in which a program saves a file.
constexpr std::chrono::milliseconds settlingTime{200};
constexpr std::chrono::milliseconds pauseWithoutWatches{5000};
constexpr std::chrono::milliseconds accuracy{10};
/// In paths. The allocator keeps what those took.
constexpr std::size_t largeRequest = 4096;

constexpr std::uint64_t microseconds(std::chrono::microseconds time)
{
    return static_cast<std::uint64_t>(time.count());
}

} // namespace

Companion::Companion(sd_event& event, sd_bus& bus, std::string settingsFolder)
    : m_event(event), m_bus(bus), m_suite(std::move(settingsFolder)), m_watch(m_suite.path()),
      m_service(bus, m_state, *this),
      m_panel(bus, [this](const std::vector<std::string>& addresses) { watchDirectories(addresses); }),
      m_notices(bus), m_runner(event, folderOfActions()), m_needs(event, [this] { offerActionsAnew(); })
{
    takeSettings(m_suite.read());
}

int Companion::start()
{
    sd_event_source* timer = nullptr;
    const auto lookAgain = [](sd_event_source*, std::uint64_t, void* companion) {
        static_cast<Companion*>(companion)->lookAgain();
        return 0;
    };
    int result =
        sd_event_add_time_relative(&m_event, &timer, CLOCK_MONOTONIC, 0, microseconds(accuracy), lookAgain, this);
    m_nextLook.reset(timer);
    sd_event_source* idle = nullptr;
    const auto giveMemoryBack = [](sd_event_source*, void*) {
        ::malloc_trim(0);
        return 0;
    };
    if (result >= 0)
        result = sd_event_add_defer(&m_event, &idle, giveMemoryBack, nullptr);
    m_memoryReturn.reset(idle);
    if (result >= 0)
        result = sd_event_source_set_priority(idle, SD_EVENT_PRIORITY_IDLE);
    if (result >= 0)
        result = listen();
    if (result < 0)
        return result;
    waitToLookAgain();

    sd_bus_slot* slot = nullptr;
    const auto disconnected = [](sd_bus_message*, void* companion, sd_bus_error*) {
        static_cast<Companion*>(companion)->quit();
        return 0;
    };
    result = sd_bus_match_signal(&m_bus, &slot, nullptr, "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local",
                                 "Disconnected", disconnected, this);
    m_busEnd.reset(slot);
    if (result >= 0)
        result = m_service.publish();
    // The name comes after all that those who see it may ask for or tell.
    if (result >= 0)
        result = m_panel.start();
    if (result >= 0)
        result = m_service.claimName();
    return result;
}

/// Hears of what happens to the settings, from the time on when the system has a queue for it.
int Companion::listen()
{
    if (m_settingsChanges || m_watch.descriptor() < 0)
        return 0;
    sd_event_source* source = nullptr;
    const auto happened = [](sd_event_source*, int, std::uint32_t, void* companion) {
        static_cast<Companion*>(companion)->followEvents();
        return 0;
    };
    const int result = sd_event_add_io(&m_event, &source, m_watch.descriptor(), EPOLLIN, happened, this);
    m_settingsChanges.reset(source);
    return result;
}

/// Without values, what is known still holds.
void Companion::takeSettings(const std::optional<NS::Value::Dictionary>& values)
{
    if (!values)
        return;
    ExtensionSettings settings = settingsFromSuite(*values);
    if (settings.folders != m_state.settings.folders) {
        m_state.directoryURLs = addressesOf(settings.folders);
        m_scope = Scope(settings.folders);
    }
    m_state.settings = std::move(settings);
    offerActions();
}

void Companion::offerActions()
{
    OfferedActions offered = offeredActions(m_state.settings.menuItems, folderOfActions());
    if (m_needs.follow(std::move(offered.needs)))
        offered = offeredActions(m_state.settings.menuItems, folderOfActions());
    m_state.actions = std::move(offered.actions);
}

void Companion::offerActionsAnew()
{
    const CompanionState before = m_state;
    offerActions();
    m_service.announceChangesSince(before);
}

void Companion::followEvents()
{
    if (!m_watch.takeEvents())
        return;
    m_inDoubt = false;
    look();
}

void Companion::lookAgain()
{
    if (!m_watch.isWhole())
        m_watch.tryAgain();
    // Without room for it the settings are looked for as before.
    static_cast<void>(listen());
    look();
}

/// A file that is missing or damaged counts when it still is at the next look.
void Companion::look()
{
    const CompanionState before = m_state;
    const auto values = m_inDoubt ? m_suite.read() : m_suite.readWhole();
    m_inDoubt = !values && !m_inDoubt;
    takeSettings(values);
    m_service.announceChangesSince(before);
    waitToLookAgain();
}

/// Nothing wakes the companion while there is nothing to look for.
void Companion::waitToLookAgain()
{
    const bool wanted = m_inDoubt || !m_watch.isWhole();
    sd_event_source_set_time_relative(m_nextLook.get(), microseconds(m_inDoubt ? settlingTime : pauseWithoutWatches));
    sd_event_source_set_enabled(m_nextLook.get(), wanted ? SD_EVENT_ONESHOT : SD_EVENT_OFF);
}

void Companion::watchDirectories(const std::vector<std::string>& addresses)
{
    const CompanionState before = m_state;
    m_state.directoryURLs.clear();
    for (const std::string& address : addresses) {
        if (isFileAddress(address))
            m_state.directoryURLs.push_back(address);
    }
    m_service.announceChangesSince(before);
}

void Companion::quit()
{
    sd_event_exit(&m_event, EXIT_SUCCESS);
}

void Companion::run(const RunCall& call, const std::optional<Refusal>& wrong, Finished answer)
{
    const bool isLarge = call.request.paths.size() >= largeRequest;
    const Finished finished = [this, isLarge, answer = std::move(answer)](const std::optional<Refusal>& refusal) {
        answer(refusal);
        // By then nothing of the request is left.
        if (isLarge)
            sd_event_source_set_enabled(m_memoryReturn.get(), SD_EVENT_ONESHOT);
    };
    // By the settings that were stored before the call.
    if (m_watch.isWhole())
        followEvents();
    else
        look();
    auto refusal = refusalOf(call.action, m_state.settings.menuItems);
    if (!refusal)
        refusal = wrong;
    if (!refusal)
        refusal = refusalOf(call.request, m_scope);
    if (!refusal && !m_runner.hasRoom())
        refusal = Refusal{Refusal::Kind::Failed, NS::LocalizedString("Companion", "Too much is asked for at once.")};
    const auto refuse = [this, action = call.action, isTold = !call.isAnswerAwaited, finished](const Refusal& why) {
        if (isTold || why.kind == Refusal::Kind::Failed)
            m_notices.tell(titleOf(action), why.words);
        finished(why);
    };
    if (refusal) {
        refuse(*refusal);
        return;
    }
    m_runner.run(call, [refuse, finished](const Outcome& outcome) {
        if (outcome.kind == Outcome::Kind::Done) {
            finished(std::nullopt);
            return;
        }
        refuse({outcome.kind == Outcome::Kind::Failed ? Refusal::Kind::Failed : Refusal::Kind::DoesNotApply,
                outcome.words});
    });
}

} // namespace MenuExtension
