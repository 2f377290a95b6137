#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QSet>

#include <optional>

namespace MenuExtension::Transfers {

/// The desktop's notification that something is done, with buttons. Main thread.
class DoneNotice : public QObject {
    Q_OBJECT

public:
    /// Nothing is shown without a bus.
    explicit DoneNotice(std::optional<QDBusConnection> bus);
    /// Takes it away.
    ~DoneNotice() override;

    /// What a person can do about what is done.
    struct Offer {
        bool undo = false;
        bool show = false;
        /// Only as long as the notification is there, which therefore stays until a person takes it away.
        bool stays = false;
    };
    /// Shows it, with a button for each.
    void show(const QString& title, const QString& words, const Offer& offer);

signals:
    void shown();
    /// The desktop shows no notifications.
    void notShown();
    void undoAsked();
    void showAsked();
    /// It has been gone for a moment, whoever took it away. One that has only had its time is still to be found in
    /// many desktops, with its buttons.
    void closed();

private:
    Q_SLOT void takeAction(uint number, const QString& action);
    Q_SLOT void takeEnd(uint number, uint reason);

    std::optional<QDBusConnection> m_bus;
    uint m_number = 0;
    /// Those that went before the desktop had said which one is ours.
    QSet<uint> m_gone;
    bool m_isAwaited = false;
    bool m_isOpen = false;
};

} // namespace MenuExtension::Transfers
