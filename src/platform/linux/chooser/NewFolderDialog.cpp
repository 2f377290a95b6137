#include "platform/linux/chooser/NewFolderDialog.h"

#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/text/FileNameText.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <cerrno>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

NewFolderDialog::NewFolderDialog(std::string parent, QWidget* window) : Dialog(window), m_parent(std::move(parent))
{
    setObjectName(u"newFolder"_s);
    setWindowTitle(tr("New Folder"));
    auto* label = new QLabel(tr("&Name of the folder:"), this);
    m_name = new QLineEdit(this);
    m_name->setObjectName(u"nameField"_s);
    label->setBuddy(m_name);
    m_complaint = new QLabel(this);
    m_complaint->setObjectName(u"complaintLabel"_s);
    m_complaint->setTextFormat(Qt::PlainText);
    m_complaint->setWordWrap(true);
    m_complaint->hide();
    auto* cancelButton = new QPushButton(tr("Cancel"), this);
    m_createButton = new QPushButton(tr("Create"), this);
    m_createButton->setObjectName(u"createButton"_s);
    m_createButton->setDefault(true);
    m_createButton->setEnabled(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cancelButton);
    buttons->addWidget(m_createButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(label);
    layout->addWidget(m_name);
    layout->addWidget(m_complaint);
    layout->addLayout(buttons);
    resize(fontMetrics().averageCharWidth() * 60, 0);

    connect(m_name, &QLineEdit::textChanged, this, [this](const QString& name) {
        m_complaint->hide();
        m_createButton->setEnabled(!name.isEmpty());
    });
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_createButton, &QPushButton::clicked, this, &NewFolderDialog::make);
}

void NewFolderDialog::make()
{
    const std::string name = m_name->text().toStdString();
    if (name == "." || name == ".." || name.find('/') != std::string::npos || name.find('\0') != std::string::npos) {
        complain(tr("“%1” cannot be the name of a folder.").arg(fileNameText(name)));
        return;
    }
    // What others may do with it is the umask's matter.
    constexpr mode_t everything = 0777;
    if (::mkdir(pathInFolder(m_parent, name).c_str(), everything) == 0) {
        emit made(name);
        accept();
        return;
    }
    const int error = errno;
    complain(error == EEXIST
                 ? tr("“%1” is already there.").arg(fileNameText(name))
                 : tr("“%1” cannot be made: %2.")
                       .arg(fileNameText(name), QString::fromStdString(std::generic_category().message(error))));
}

void NewFolderDialog::complain(const QString& words)
{
    m_complaint->setText(words);
    m_complaint->show();
    m_name->setFocus();
    m_name->selectAll();
    QAccessibleEvent alert(m_complaint, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace LinuxDesktop
