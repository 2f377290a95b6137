#include "platform/linux/scenes/FolderDrops.h"

#include "platform/linux/scenes/AlertDialog.h"
#include "platform/linux/scenes/ModalBlock.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <utility>

namespace LinuxDesktop {

namespace {

const QString addressList = QStringLiteral("text/uri-list");
/// So many refusals are told; the others are counted.
constexpr qsizetype mostTold = 5;

/// Shows around a page that it takes what is held over it.
class DropFrame : public QWidget {
public:
    explicit DropFrame(QWidget* page) : QWidget(page)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QStyleOptionFocusRect ring;
        ring.initFrom(this);
        // Styles show a focus to those only who use the keyboard.
        ring.state |= QStyle::State_KeyboardFocusChange;
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
    }
};

/// Nobody's items are moved by being listed.
Qt::DropAction actionFor(const QDropEvent& event)
{
    for (const Qt::DropAction action : {Qt::CopyAction, Qt::LinkAction}) {
        if (event.possibleActions() & action)
            return action;
    }
    return Qt::IgnoreAction;
}

} // namespace

FolderDrops::FolderDrops(QWidget& page, PathRefusal refusal, std::function<void(const std::vector<NS::URL>&)> taken)
    : QObject(&page), m_page(page), m_frame(new DropFrame(&page)), m_refusal(std::move(refusal)),
      m_taken(std::move(taken))
{
    page.setAcceptDrops(true);
    page.installEventFilter(this);
}

bool FolderDrops::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop: {
        auto& drop = *static_cast<QDropEvent*>(event);
        const Qt::DropAction action = actionFor(drop);
        const bool isTaken =
            action != Qt::IgnoreAction && drop.mimeData()->hasFormat(addressList) && !isBlockedByPanel(m_page);
        drop.setDropAction(action);
        drop.setAccepted(isTaken);
        m_frame->setGeometry(m_page.rect());
        m_frame->raise();
        m_frame->setVisible(isTaken && event->type() != QEvent::Drop);
        // The other program waits for the end of the event.
        if (isTaken && event->type() == QEvent::Drop)
            QMetaObject::invokeMethod(
                this, [this, addresses = drop.mimeData()->data(addressList)] { take(addresses); },
                Qt::QueuedConnection);
        return true;
    }
    case QEvent::DragLeave:
        m_frame->hide();
        return true;
    default:
        return false;
    }
}

void FolderDrops::take(const QByteArray& addresses)
{
    const DroppedFolders dropped = droppedFolders(addresses, m_refusal);
    if (!dropped.folders.empty())
        m_taken(dropped.folders);
    if (dropped.refusals.isEmpty())
        return;
    // What was taken may be asked or told about first.
    if (auto* panel = qobject_cast<QDialog*>(panelInFrontOf(*m_page.window())))
        connect(panel, &QDialog::finished, this, [this, refusals = dropped.refusals] { tell(refusals); });
    else
        tell(dropped.refusals);
}

void FolderDrops::tell(const QStringList& refusals)
{
    auto* alert = new AlertDialog;
    alert->setParent(m_page.window(), alert->windowFlags());
    alert->setWindowTitle(m_page.window()->windowTitle());
    alert->setWindowModality(Qt::WindowModal);
    const qsizetype count = refusals.size();
    if (count == 1) {
        alert->setMessage(refusals.first());
    } else {
        alert->setMessage(tr("Some of what you dropped cannot be added."));
        QStringList told = refusals.first(std::min(count, mostTold));
        if (count > mostTold)
            told.append(tr("And %1 more.").arg(count - mostTold));
        alert->setInformation(told.join(u'\n'));
    }
    alert->addButton(tr("OK"));
    connect(alert, &QDialog::finished, alert, &QObject::deleteLater);
    alert->show();
}

} // namespace LinuxDesktop
