#include "platform/linux/chooser/PlacesList.h"

#include "platform/linux/chooser/Bookmarks.h"
#include "platform/linux/chooser/CurrentRow.h"
#include "platform/linux/chooser/FileIcons.h"
#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/chooser/SoftSelection.h"
#include "platform/linux/text/FileNameText.h"

#include <QFile>
#include <QKeyEvent>
#include <QStandardPaths>

#include <array>
#include <fcntl.h>
#include <utility>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

constexpr int FolderRole = Qt::UserRole;

std::string folderOf(const QListWidgetItem& item)
{
    return item.data(FolderRole).toByteArray().toStdString();
}

} // namespace

PlacesList::PlacesList(std::string lastFolder, QWidget* parent)
    : QListWidget(parent), m_lastFolder(std::move(lastFolder)),
      m_mountTable(::open("/proc/self/mounts", O_RDONLY | O_CLOEXEC))
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setIconSize(rowIconSize);
    fill();
    connect(this, &QListWidget::itemClicked, this, &PlacesList::choose);
    if (!m_mountTable)
        return;
    // The kernel tells of a change as an exceptional condition.
    m_mountNotifier = std::make_unique<QSocketNotifier>(m_mountTable.get(), QSocketNotifier::Exception);
    connect(m_mountNotifier.get(), &QSocketNotifier::activated, this, [this] {
        const std::string shown = m_shown;
        fill();
        setFolder(shown);
    });
}

void PlacesList::fill()
{
    clear();
    m_mounts = mounts();
    struct UserFolder {
        QStandardPaths::StandardLocation location;
        QString title;
        QString iconName;
    };
    const std::array userFolders = {
        UserFolder{QStandardPaths::DesktopLocation, tr("Desktop"), u"user-desktop"_s},
        UserFolder{QStandardPaths::DocumentsLocation, tr("Documents"), u"folder-documents"_s},
        UserFolder{QStandardPaths::DownloadLocation, tr("Downloads"), u"folder-download"_s},
        UserFolder{QStandardPaths::PicturesLocation, tr("Pictures"), u"folder-pictures"_s},
        UserFolder{QStandardPaths::MusicLocation, tr("Music"), u"folder-music"_s},
        UserFolder{QStandardPaths::MoviesLocation, tr("Videos"), u"folder-videos"_s},
    };
    addPlace({tr("Home"), {u"user-home"_s}, homeFolder()});
    for (const UserFolder& place : userFolders) {
        const QByteArray folder = QFile::encodeName(QStandardPaths::writableLocation(place.location));
        addPlace({place.title, {place.iconName}, normalizedPath(folder.toStdString())});
    }
    if (!m_lastFolder.empty() && m_lastFolder != "/")
        addPlace({tr("%1 (last used)").arg(fileNameText(fileName(m_lastFolder))),
                  {u"folder-recent"_s, u"document-open-recent"_s},
                  m_lastFolder});
    for (const Place& bookmark : bookmarks())
        addPlace(bookmark);
    for (const Place& volume : volumesOf(m_mounts, homeFolder()))
        addPlace(volume);
    addPlace({tr("File System"), {u"drive-harddisk"_s}, "/"});
}

void PlacesList::addPlace(const Place& place)
{
    // A user folder that is not set up is the home folder.
    for (int i = 0; i < count(); ++i) {
        if (folderOf(*item(i)) == place.folder)
            return;
    }
    // A share is shown without being asked whether it is there.
    if (!networkShareOf(place.folder, m_mounts) && m_kinds.kindOf(place.folder) != FileKind::Folder)
        return;
    auto* row = new QListWidgetItem(FileIcons::themed(place.icons + QStringList{u"folder"_s}, QStyle::SP_DirIcon),
                                    place.title, this);
    row->setData(FolderRole, QByteArray::fromStdString(place.folder));
    const QString path = fileNameText(place.folder);
    row->setToolTip(u"<qt>"_s + path.toHtmlEscaped() + u"</qt>"_s);
    row->setData(Qt::AccessibleDescriptionRole, path);
}

void PlacesList::setFolder(const std::string& folder)
{
    m_shown = folder;
    for (int i = 0; i < count(); ++i) {
        if (folderOf(*item(i)) == folder) {
            setCurrentRow(i);
            return;
        }
    }
    clearSelection();
}

void PlacesList::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        choose(currentItem());
        return;
    default:
        QListWidget::keyPressEvent(event);
    }
}

void PlacesList::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    // All that the list adds to this is to tell that the row has the keyboard, even where the list has not.
    if (hasFocus())
        QListWidget::currentChanged(current, previous);
    else
        QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call)
}

void PlacesList::focusInEvent(QFocusEvent* event)
{
    QListWidget::focusInEvent(event);
    tellCurrentRow(*this, [this] { currentChanged(currentIndex(), currentIndex()); });
}

void PlacesList::initViewItemOption(QStyleOptionViewItem* option) const
{
    QListWidget::initViewItemOption(option);
    softenSelection(*this, *option);
}

void PlacesList::choose(const QListWidgetItem* item)
{
    if (item)
        emit placeChosen(folderOf(*item));
}

} // namespace LinuxDesktop
