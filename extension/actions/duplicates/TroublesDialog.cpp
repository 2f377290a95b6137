#include "extension/actions/duplicates/TroublesDialog.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace MenuExtension::Duplicates {

TroublesDialog::TroublesDialog(const QStringList& sentences, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Left Out"));
    auto* const list = new QPlainTextEdit(sentences.join(u'\n'), this);
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setLineWrapMode(QPlainTextEdit::NoWrap);
    list->setAccessibleName(windowTitle());
    auto* const buttons = new QDialogButtonBox(this);
    auto* const close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(12);
    column->addWidget(list, 1);
    column->addWidget(buttons);
    resize(560, 320);
    close->setFocus();
}

} // namespace MenuExtension::Duplicates
