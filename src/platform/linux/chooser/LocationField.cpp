#include "platform/linux/chooser/LocationField.h"

#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/chooser/Mounts.h"
#include "platform/linux/chooser/TypedPath.h"
#include "platform/linux/text/FileNameText.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QStringListModel>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

LocationField::LocationField(HiddenFiles hidden, FileKinds& kinds, QWidget* parent)
    : QLineEdit(parent), m_hidden(hidden), m_kinds(kinds), m_proposals(new QStringListModel(this))
{
    // Paths run that way in every language.
    setLayoutDirection(Qt::LeftToRight);
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

void LocationField::setHiddenFiles(HiddenFiles hidden)
{
    m_hidden = hidden;
    m_proposalsFolder.reset();
}

void LocationField::startPath(const QString& start)
{
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
    QKeyEvent typed(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, start);
    QLineEdit::keyPressEvent(&typed);
}

std::string LocationField::path() const
{
    return pathOf(text()).value_or(literalPath(text()));
}

std::string LocationField::literalPath(const QString& typed) const
{
    const bool isHome = typed == u'~' || typed.startsWith(u"~/"_s);
    const std::string path = (isHome ? typed.sliced(1) : typed).toStdString();
    if (isHome)
        return normalizedPath(homeFolder() + path);
    return normalizedPath(path.starts_with('/') ? path : pathInFolder(m_folder, path));
}

std::optional<std::string> LocationField::pathOf(const QString& typed) const
{
    // To find the name that reads like a text its folder is read, which a share whose server is gone never ends.
    const std::vector<Mount> mounted = mounts();
    const Mount* share = networkShareOf(literalPath(typed), mounted);
    if (share && !m_kinds.knownKindOf(share->folder))
        return std::nullopt;
    return pathFromTypedText(typed, m_folder);
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
    const std::optional<std::string> folder = pathOf(folderText);
    const FolderListing listing = folder ? readFolder(*folder, m_hidden) : FolderListing();
    for (const FileEntry& entry : listing.entries) {
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
