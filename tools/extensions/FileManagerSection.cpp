#include "extensions/FileManagerSection.h"

#include "extensions/FileManagerRow.h"
#include "extensions/StatusLine.h"

#include <QVBoxLayout>

namespace ExtensionsTool {

using MenuExtension::fileManagers;

FileManagerSection::FileManagerSection(FileManagersControl& control, QWidget* parent)
    : QWidget(parent), m_control(control), m_heading(makeHeading({}, this)), m_card(new LinuxDesktop::Card(this))
{
    m_heading->setForegroundRole(QPalette::PlaceholderText);
    auto* rows = new QVBoxLayout(m_card);
    rows->setContentsMargins(0, 4, 0, 4);
    rows->setSpacing(0);
    for (std::size_t index = 0; index < fileManagers.size(); ++index)
        rows->addWidget(new FileManagerRow(control, index, m_card));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(m_heading);
    layout->addWidget(m_card);

    connect(&m_control, &FileManagersControl::changed, this, [this] { showWhatThereIs(); });
    showWhatThereIs();
}

void FileManagerSection::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_control.follow();
}

void FileManagerSection::hideEvent(QHideEvent* event)
{
    m_control.rest();
    QWidget::hideEvent(event);
}

void FileManagerSection::showWhatThereIs()
{
    bool isAny = false;
    for (std::size_t index = 0; index < fileManagers.size(); ++index)
        isAny = isAny || isInstalled(m_control.status(index));
    m_heading->setText(isAny ? tr("File managers on this computer:")
                             : tr("No file manager that can show the menu is installed."));
    m_card->setVisible(isAny);
}

} // namespace ExtensionsTool
