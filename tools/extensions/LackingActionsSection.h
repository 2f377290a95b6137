#pragma once

#include "extensions/LackingActions.h"
#include "platform/linux/look/Card.h"

#include <QTimer>
#include <QWidget>

#include <string>
#include <vector>

namespace ExtensionsTool {

/// The list of the actions that are in no menu because something is not installed; it is hidden where there are none.
/// It is kept up to date while its window is on view.
class LackingActionsSection : public QWidget {
    Q_OBJECT

public:
    explicit LackingActionsSection(std::string programs, QWidget* parent = nullptr);

private:
    void look();
    void show(const std::vector<LackingAction>& lacking);

    const std::string m_programs;
    std::vector<LackingAction> m_shown;
    LinuxDesktop::Card* m_card = nullptr;
    QTimer m_next;
};

} // namespace ExtensionsTool
