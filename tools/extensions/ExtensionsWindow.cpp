#include "extensions/ExtensionsWindow.h"

#include "extensions/ExtensionRow.h"
#include "extensions/FileManagerSection.h"
#include "extensions/LackingActionsSection.h"
#include "extensions/StatusLine.h"
#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/look/Card.h"
#include "platform/linux/look/FitToScreen.h"

#include <QEvent>
#include <QKeySequence>
#include <QLabel>
#include <QScrollArea>
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
    setWindowTitle(tr("Extensions"));

    auto* pane = new QScrollArea(this);
    pane->setFrameShape(QFrame::NoFrame);
    pane->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    pane->setWidgetResizable(true);
    pane->setFocusPolicy(Qt::NoFocus);
    pane->viewport()->setBackgroundRole(QPalette::Window);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
    whole->addWidget(pane);
    m_content = new QWidget;
    pane->setWidget(m_content);

    auto* introduction = makeText(tr("Extensions bring Orvik Menu into other programs."), m_content);
    introduction->setForegroundRole(QPalette::PlaceholderText);

    auto* card = new LinuxDesktop::Card(m_content);
    LinuxDesktop::tieWords(*introduction, *card);
    auto* rows = new QVBoxLayout(card);
    rows->setContentsMargins(0, 0, 0, 0);
    for (ExtensionControl* control : controls)
        rows->addWidget(new ExtensionRow(*control, icon, card));

    auto* layout = new QVBoxLayout(m_content);
    layout->setContentsMargins(margins);
    layout->setSpacing(14);
    layout->addWidget(introduction);
    layout->addWidget(card);
    layout->addSpacing(6);
    layout->addWidget(new FileManagerSection(fileManagers, m_content));
    layout->addWidget(new LackingActionsSection(actions, m_content));
    layout->addStretch(1);

    for (const auto& keys :
         {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W), QKeySequence(Qt::CTRL | Qt::Key_Q)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &QWidget::close);

    setMinimumWidth(narrowest);
    m_content->installEventFilter(this);
    resize(initialWidth, layout->totalHeightForWidth(initialWidth));
}

bool ExtensionsWindow::eventFilter(QObject* watched, QEvent* event)
{
    // Texts have changed.
    if (event->type() == QEvent::LayoutRequest)
        makeRoomForTexts();
    return QWidget::eventFilter(watched, event);
}

void ExtensionsWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // What is read stays narrow, in the middle of a wide window.
    const int beside = std::max(margins.left(), (width() - widestContent) / 2);
    m_content->layout()->setContentsMargins(beside, margins.top(), beside, margins.bottom());
    makeRoomForTexts();
}

/// Windows do not keep to the height that wrapped texts have at a width by themselves. What the screen has no room
/// for is scrolled to.
void ExtensionsWindow::makeRoomForTexts()
{
    const int height = m_content->layout()->totalHeightForWidth(width());
    setMinimumHeight(std::min(height, LinuxDesktop::roomOnScreen(*this).height()));
}

} // namespace ExtensionsTool
