#include "extension/actions/transfer/window/ItemCard.h"

#include "extension/actions/transfer/window/ItemPicture.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/text/SizeText.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace MenuExtension::Transfers {

ItemCard::ItemCard(QWidget* parent)
    : Card(parent), m_picture(new ItemPicture(this)), m_which(makeText(this)), m_facts(makeText(this))
{
    QFont bold = m_which->font();
    bold.setWeight(QFont::DemiBold);
    m_which->setFont(bold);
    for (QLabel* label : {m_which, m_facts})
        label->setWordWrap(true);
    LinuxDesktop::setAccessibleRole(*m_picture, QAccessible::NoRole);
    // It is what the card is called.
    LinuxDesktop::setAccessibleRole(*m_which, QAccessible::Heading);
    LinuxDesktop::tieWords(*m_facts, *this);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addStretch();
    texts->addWidget(m_which);
    texts->addWidget(m_facts);
    texts->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(14, 14, 14, 14);
    row->setSpacing(14);
    row->addWidget(m_picture);
    row->addLayout(texts, 1);
}

void ItemCard::show(const QString& which, const Conflict::Side& side)
{
    const QLocale locale;
    const QString size = S_ISDIR(side.status.st_mode) ? tr("Folder")
                         : S_ISLNK(side.status.st_mode)
                             ? tr("Link")
                             : LinuxDesktop::sizeText(static_cast<std::uint64_t>(side.status.st_size));
    const QString date =
        locale.toString(QDateTime::fromSecsSinceEpoch(side.status.st_mtim.tv_sec), QLocale::ShortFormat);
    m_picture->show(side);
    m_which->setText(which);
    m_facts->setText(size + u'\n' + date);
    LinuxDesktop::describeByWords(*this);
}

} // namespace MenuExtension::Transfers
