#include "platform/linux/chooser/PlacesList.h"

#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/chooser/SoftSelection.h"

#include <QFile>
#include <QIcon>
#include <QKeyEvent>
#include <QStandardPaths>
#include <QStyle>

#include <array>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

constexpr int FolderRole = Qt::UserRole;

std::string folderOf(const QListWidgetItem& item)
{
    return item.data(FolderRole).toByteArray().toStdString();
}

} // namespace

PlacesList::PlacesList(QWidget* parent) : QListWidget(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    const int iconSize = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setIconSize(QSize(iconSize, iconSize));

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
    addPlace(tr("Home"), u"user-home"_s, homeFolder());
    for (const UserFolder& place : userFolders) {
        const QByteArray folder = QFile::encodeName(QStandardPaths::writableLocation(place.location));
        addPlace(place.title, place.iconName, normalizedPath(folder.toStdString()));
    }
    addPlace(tr("File System"), u"drive-harddisk"_s, "/");

    connect(this, &QListWidget::itemClicked, this, &PlacesList::choose);
}

void PlacesList::addPlace(const QString& title, const QString& iconName, const std::string& folder)
{
    // A user folder that is not set up is the home folder.
    for (int i = 0; i < count(); ++i) {
        if (folderOf(*item(i)) == folder)
            return;
    }
    if (!isFolder(folder))
        return;
    const QIcon icon =
        QIcon::fromTheme(iconName, QIcon::fromTheme(u"folder"_s, style()->standardIcon(QStyle::SP_DirIcon)));
    auto* place = new QListWidgetItem(icon, title, this);
    place->setData(FolderRole, QByteArray::fromStdString(folder));
}

void PlacesList::setFolder(const std::string& folder)
{
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
