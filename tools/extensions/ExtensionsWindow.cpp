#include "extensions/ExtensionsWindow.h"

#include "extensions/ExtensionRow.h"
#include "extensions/FileManagerSection.h"
#include "extensions/LackingActionsSection.h"
#include "extensions/StatusLine.h"
#include "platform/linux/look/Card.h"

#include <QEvent>
#include <QKeySequence>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace ExtensionsTool {

namespace {

constexpr int narrowest = 400;
constexpr int initialWidth = 620;
constexpr int widestContent = 640;
constexpr QMargins margins(20, 18, 20, 20);

} // namespace

ExtensionsWindow::ExtensionsWindow(const std::vector<ExtensionControl*>& controls, FileManagersControl& fileManagers,
                                   const std::string& actions, const QIcon& icon)
{
    setWindowTitle(QStringLiteral("Extensions"));

    auto* introduction = makeText(QStringLiteral("Extensions bring Orvik Menu into other programs."), this);
    introduction->setForegroundRole(QPalette::PlaceholderText);

    auto* card = new LinuxDesktop::Card(this);
    auto* rows = new QVBoxLayout(card);
    rows->setContentsMargins(0, 0, 0, 0);
    for (ExtensionControl* control : controls)
        rows->addWidget(new ExtensionRow(*control, icon, card));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margins);
    layout->setSpacing(14);
    layout->addWidget(introduction);
    layout->addWidget(card);
    layout->addSpacing(6);
    layout->addWidget(new FileManagerSection(fileManagers, this));
    layout->addWidget(new LackingActionsSection(actions, this));
    layout->addStretch(1);

    for (const auto& keys :
         {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W), QKeySequence(Qt::CTRL | Qt::Key_Q)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &QWidget::close);

    setMinimumWidth(narrowest);
    resize(initialWidth, layout->totalHeightForWidth(initialWidth));
}

bool ExtensionsWindow::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    // Texts have changed.
    if (event->type() == QEvent::LayoutRequest)
        makeRoomForTexts();
    return handled;
}

void ExtensionsWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // What is read stays narrow, in the middle of a wide window.
    const int beside = std::max(margins.left(), (width() - widestContent) / 2);
    layout()->setContentsMargins(beside, margins.top(), beside, margins.bottom());
    makeRoomForTexts();
}

/// Windows do not keep to the height that wrapped texts have at a width by themselves.
void ExtensionsWindow::makeRoomForTexts()
{
    setMinimumHeight(layout()->totalHeightForWidth(width()));
}

} // namespace ExtensionsTool
