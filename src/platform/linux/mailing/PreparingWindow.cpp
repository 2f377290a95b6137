#include "platform/linux/mailing/PreparingWindow.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/mailing/MailText.h"
#include "platform/linux/text/SizeText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>

namespace LinuxDesktop {

namespace {

using namespace std::chrono_literals;

constexpr int contentWidth = 380;
constexpr int barHeight = 8;

} // namespace

PreparingWindow::PreparingWindow(const QString& names, AttachingProgress& progress)
    : m_progress(progress), m_bar(new QProgressBar(this)), m_bytes(new QLabel(this))
{
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setWindowTitle(MailText::windowTitle);
    const QString text = tr("Preparing %1 for sending…").arg(names);
    setAccessibleName(text);

    auto* what = new QLabel(text, this);
    what->setTextFormat(Qt::PlainText);
    what->setWordWrap(true);
    what->setFixedWidth(contentWidth);
    // The window is called so.
    setAccessibleRole(*what, QAccessible::NoRole);
    // How much there is to do is not known beforehand.
    m_bar->setRange(0, 0);
    m_bar->setTextVisible(false);
    m_bar->setFixedHeight(barHeight);
    m_bar->setAccessibleName(tr("Progress"));
    tieWords(*m_bytes, *m_bar);
    m_bytes->setForegroundRole(QPalette::PlaceholderText);
    auto* cancel = new QPushButton(tr("Cancel"), this);
    connect(cancel, &QPushButton::clicked, this, &PreparingWindow::reject);

    auto* lower = new QHBoxLayout;
    lower->addWidget(m_bytes);
    lower->addStretch();
    lower->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(12);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(what);
    layout->addWidget(m_bar);
    layout->addLayout(lower);

    auto* tick = new QTimer(this);
    connect(tick, &QTimer::timeout, this, &PreparingWindow::showProgress);
    tick->start(200ms);
    showProgress();
    // Not every style moves it by itself.
    auto* frame = new QTimer(this);
    connect(frame, &QTimer::timeout, m_bar, qOverload<>(&QWidget::update));
    frame->start(40ms);
}

void PreparingWindow::showProgress()
{
    m_bytes->setText(sizeText(m_progress.bytes.load()));
    describeByWords(*m_bar);
}

void PreparingWindow::reject()
{
    m_progress.cancelled = true;
    QDialog::reject();
}

} // namespace LinuxDesktop
