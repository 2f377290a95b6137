#include "extension/actions/transfer/window/ItemCard.h"

#include "extension/actions/transfer/window/ItemPicture.h"
#include "platform/linux/text/SizeText.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace MenuExtension::Transfers {

ItemCard::ItemCard(QWidget* parent)
    : Card(parent), m_picture(new ItemPicture(this)), m_which(new QLabel(this)), m_facts(new QLabel(this))
{
    QFont bold = m_which->font();
    bold.setWeight(QFont::DemiBold);
    m_which->setFont(bold);
    for (QLabel* label : {m_which, m_facts}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
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
    setAccessibleName(which + u' ' + m_facts->text());
}

} // namespace MenuExtension::Transfers
