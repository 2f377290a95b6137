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

    /// Shows it, with the buttons "Undo" and "Show" where they are wanted.
    void show(const QString& title, const QString& words, bool canBeUndone, bool canBeShown);

signals:
    void shown();
    /// The desktop shows no notifications.
    void notShown();
    void undoAsked();
    void showAsked();
    /// It has been gone for a moment, whoever took it away.
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
