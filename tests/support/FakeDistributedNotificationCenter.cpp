#include "support/FakeDistributedNotificationCenter.h"

#include "settings/Deployment.h"

#include <algorithm>
#include <iterator>
#include <utility>

std::string observes(std::string_view name)
{
    return "center.addObserver_name_object(" + described(name) + ", " + described(Deployment::extensionIdentifier) +
           ')';
}

std::vector<std::string> otherSenders()
{
    const std::string extension(Deployment::extensionIdentifier);
    std::string otherCase;
    std::ranges::transform(extension, std::back_inserter(otherCase), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    return {"", std::string(Deployment::applicationIdentifier), otherCase, extension + '2',
            extension.substr(0, extension.size() - 1)};
}

void FakeDistributedNotificationCenter::addObserver_name_object(std::function<void()> handler, std::string_view name,
                                                                std::string_view object)
{
    m_calls.record("center", "addObserver_name_object", name, object);
    m_observers.push_back({std::move(handler), std::string(name), std::string(object)});
}

void FakeDistributedNotificationCenter::post(std::string_view name, std::string_view object)
{
    m_postings.push_back({std::string(name), std::string(object)});
    deliver();
}

void FakeDistributedNotificationCenter::deliver()
{
    if (m_held || m_delivering)
        return;
    m_delivering = true;
    while (!m_postings.empty()) {
        const Posting posting = std::move(m_postings.front());
        m_postings.pop_front();
        // A copy: a handler may add observers.
        const std::vector<Observer> observers = m_observers;
        for (const Observer& observer : observers) {
            if (observer.name == posting.name && observer.object == posting.object)
                observer.handler();
        }
    }
    m_delivering = false;
}
