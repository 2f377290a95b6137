#include "PersonalDataDialog.h"

#include "PersonalData.h"
#include "TagView.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace MenuExtension::Exif {

namespace {

QString nameOf(PersonalData::Kind kind)
{
    switch (kind) {
    case PersonalData::Kind::Place:
        return PersonalDataDialog::tr("Where it was taken");
    case PersonalData::Kind::People:
        return PersonalDataDialog::tr("Who took it and who is in it");
    case PersonalData::Kind::Camera:
        return PersonalDataDialog::tr("Which camera it was");
    case PersonalData::Kind::MakerNotes:
        return PersonalDataDialog::tr("What the camera's maker has noted");
    }
    return {};
}

} // namespace

PersonalDataDialog::PersonalDataDialog(const Merged& merged, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Remove Location and Personal Data"));
    auto* const list = new QTreeWidget(this);
    list->setAccessibleName(tr("What will be removed"));
    list->setHeaderLabels({tr("Name"), tr("Value")});
    list->setUniformRowHeights(true);
    std::map<PersonalData::Kind, QTreeWidgetItem*> groups;
    for (const Merged::Line& line : merged.lines()) {
        const auto kind = PersonalData::kindOf({line.family, line.group, line.name, {}});
        if (!kind)
            continue;
        QTreeWidgetItem*& group = groups[*kind];
        if (!group)
            group = new QTreeWidgetItem(list, {nameOf(*kind)});
        auto* const item = new QTreeWidgetItem(group, {readableName(line.name), shownValue(merged, line.value)});
        item->setToolTip(1, item->text(1));
        item->setData(1, Qt::AccessibleTextRole, spokenValue(item->text(1)));
    }
    for (const auto& [kind, group] : groups)
        group->setData(1, Qt::AccessibleTextRole, countedValues(group->childCount()));
    list->expandAll();
    list->header()->resizeSection(0, 240);
    const bool isAny = !groups.empty();

    QLabel* const words = makeParagraph(this);
    words->setText(isAny ? tr("This is removed for good, unless the original is kept. Title, description, copyright "
                              "and date stay.")
                         : tr("The photos have no location and no personal data that is known here."));
    if (merged.holdsMore())
        words->setText(words->text() + QStringLiteral("\n\n") +
                       tr("A file holds more than the picture, such as a second one or a film, which stays and may "
                          "hold such data too."));
    // It is read with the window's title.
    LinuxDesktop::tieWords(*words, *this);
    list->setVisible(isAny);

    auto* const buttons = new QDialogButtonBox(this);
    if (isAny) {
        auto* const remove = buttons->addButton(tr("Remove"), QDialogButtonBox::AcceptRole);
        remove->setDefault(true);
        buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole)->setFocus();
    } else {
        buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 18, 20, 18);
    layout->setSpacing(12);
    layout->addWidget(words);
    layout->addWidget(list, 1);
    layout->addWidget(buttons);
    readInOrder({words, list, buttons});
    resize(560, isAny ? 440 : sizeHint().height());
}

} // namespace MenuExtension::Exif
