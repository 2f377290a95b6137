#include "platform/linux/chooser/LocationField.h"

#include "platform/linux/chooser/TypedPath.h"
#include "platform/linux/text/FileNameText.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QStringListModel>

namespace LinuxDesktop {

LocationField::LocationField(HiddenFiles hidden, QWidget* parent)
    : QLineEdit(parent), m_hidden(hidden), m_proposals(new QStringListModel(this))
{
    auto* completer = new QCompleter(m_proposals, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    setCompleter(completer);
    connect(this, &QLineEdit::textEdited, this, &LocationField::propose);
}

void LocationField::setFolder(const std::string& folder)
{
    m_folder = folder;
    m_proposalsFolder.reset();
    completer()->popup()->hide();
    setText(fileNameText(folder));
    setModified(false);
}

bool LocationField::isEdited() const
{
    return text() != fileNameText(m_folder);
}

std::string LocationField::path() const
{
    return pathFromTypedText(text(), m_folder);
}

bool LocationField::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        // Tab goes on to the next control when there is nothing to complete.
        if (key->key() == Qt::Key_Tab && key->modifiers() == Qt::NoModifier && isModified() && completeCommonPart()) {
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void LocationField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    // Accepted, so that it does not press the default button too.
    event->accept();
    completer()->popup()->hide();
    emit pathEntered(path());
}

void LocationField::propose()
{
    const qsizetype slash = text().lastIndexOf(u'/');
    const QString folderText = text().left(slash + 1);
    if (folderText == m_proposalsFolder)
        return;
    m_proposalsFolder = folderText;

    QStringList proposals;
    for (const FileEntry& entry : readFolder(pathFromTypedText(folderText, m_folder), m_hidden).entries) {
        QString proposal = folderText + fileNameText(entry.name);
        if (entry.kind == FileEntry::Kind::Folder)
            proposal += u'/';
        proposals.push_back(std::move(proposal));
    }
    proposals.sort(Qt::CaseInsensitive);
    m_proposals->setStringList(proposals);
}

QString LocationField::commonPart(Qt::CaseSensitivity sensitivity) const
{
    QString common;
    for (const QString& proposal : m_proposals->stringList()) {
        if (!proposal.startsWith(text(), sensitivity))
            continue;
        if (common.isEmpty())
            common = proposal;
        while (!proposal.startsWith(common, sensitivity))
            common.chop(1);
    }
    return common;
}

bool LocationField::completeCommonPart()
{
    QString common = commonPart(Qt::CaseSensitive);
    if (common.isEmpty())
        common = commonPart(Qt::CaseInsensitive);
    if (common.size() <= text().size())
        return false;
    setText(common);
    setModified(true);
    propose();
    completer()->setCompletionPrefix(common);
    completer()->complete();
    return true;
}

} // namespace LinuxDesktop
