#include "extension/actions/find-duplicate-files/ChoicesRow.h"

#include <QCheckBox>
#include <QHBoxLayout>

#include <utility>

namespace MenuExtension {

ChoicesRow::ChoicesRow(Choices choices, std::function<void(Choices)> changed, QWidget* parent)
    : QWidget(parent), m_changed(std::move(changed)), m_hidden(new QCheckBox(tr("Hidden Files"), this)),
      m_empty(new QCheckBox(tr("Empty Files"), this)), m_system(new QCheckBox(tr("System Files"), this))
{
    m_hidden->setChecked(choices.hidden);
    m_empty->setChecked(choices.empty);
    m_system->setChecked(choices.system);
    m_system->setToolTip(tr("In folders of the system, in the trash, and what file managers write for themselves"));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(18);
    for (QCheckBox* const box : {m_hidden, m_empty, m_system}) {
        row->addWidget(box);
        connect(box, &QCheckBox::toggled, this, [this] { tell(); });
    }
    row->addStretch(1);
}

void ChoicesRow::tell()
{
    m_changed({.hidden = m_hidden->isChecked(), .empty = m_empty->isChecked(), .system = m_system->isChecked()});
}

} // namespace MenuExtension
