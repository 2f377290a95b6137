#include "platform/linux/chooser/FileChooserDialog.h"

#include "platform/linux/chooser/FileList.h"
#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/chooser/FolderWatch.h"
#include "platform/linux/chooser/LocationField.h"
#include "platform/linux/chooser/PlacesList.h"
#include "platform/linux/system/ParentFolder.h"
#include "platform/linux/text/FileNameText.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <system_error>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds refreshDelay = 150ms;
/// A refresh may take this part of the time at most, however fast a large folder changes.
constexpr int refreshShare = 5;

QToolButton* toolButton(const QString& title, const QString& keys, const QIcon& icon, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setText(title);
    button->setToolTip(u"%1 (%2)"_s.arg(title, QKeySequence(keys).toString(QKeySequence::NativeText)));
    button->setIcon(icon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

/// Plain text in as many lines as it needs. A long word is cut rather than widening the window beyond the screen.
void setUpText(QLabel& label)
{
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    label.setSizePolicy(policy);
}

/// Button titles take "&" for the mark of a shortcut letter.
QString buttonTitle(QString text)
{
    return text.replace(u'&', u"&&"_s);
}

} // namespace

FileChooserDialog::FileChooserDialog(FileChooserSettings settings, QWidget* parent)
    : QDialog(parent), m_settings(std::move(settings))
{
    build();
    connectParts();
    openAtStart();
    m_firstFolder = m_folder;
    m_list->setFocus();
}

void FileChooserDialog::build()
{
    setObjectName(u"fileChooser"_s);
    setWindowTitle(m_settings.prompt);

    m_message = new QLabel(m_settings.message, this);
    m_message->setObjectName(u"messageLabel"_s);
    setUpText(*m_message);
    m_message->setVisible(!m_settings.message.isEmpty());

    auto* upButton = toolButton(tr("Up"), u"Alt+Up"_s, style()->standardIcon(QStyle::SP_FileDialogToParent), this);
    upButton->setObjectName(u"upButton"_s);
    connect(upButton, &QToolButton::clicked, this, &FileChooserDialog::goUp);
    m_upButton = upButton;
    auto* homeButton = toolButton(tr("Home"), u"Alt+Home"_s, style()->standardIcon(QStyle::SP_DirHomeIcon), this);
    homeButton->setObjectName(u"homeButton"_s);
    connect(homeButton, &QToolButton::clicked, this, [this] { goTo(homeFolder()); });
    m_location = new LocationField(m_settings.hiddenFiles, this);
    m_location->setObjectName(u"pathField"_s);
    m_location->setAccessibleName(tr("Location"));
    m_location->setToolTip(
        u"%1 (%2)"_s.arg(tr("Location"), QKeySequence(u"Ctrl+L"_s).toString(QKeySequence::NativeText)));
    auto* pathRow = new QHBoxLayout;
    pathRow->addWidget(upButton);
    pathRow->addWidget(homeButton);
    pathRow->addWidget(m_location);

    auto* panes = new QSplitter(this);
    panes->setChildrenCollapsible(false);
    m_places = new PlacesList(panes);
    m_places->setObjectName(u"placesList"_s);
    m_places->setAccessibleName(tr("Places"));
    m_list = new FileList(panes);
    m_list->setObjectName(u"fileList"_s);
    m_list->setAccessibleName(tr("Files"));
    m_list->setFilesEnabled(m_settings.canChooseFiles);
    if (m_settings.allowsMultipleSelection)
        m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    panes->setStretchFactor(0, 0);
    panes->setStretchFactor(1, 1);
    const int placesWidth = m_places->fontMetrics().averageCharWidth() * 24;
    panes->setSizes({placesWidth, 4 * placesWidth});

    m_notice = new QLabel(this);
    m_notice->setObjectName(u"noticeLabel"_s);
    setUpText(*m_notice);
    m_notice->hide();

    m_cancelButton = new QPushButton(tr("Cancel"), this);
    m_cancelButton->setObjectName(u"cancelButton"_s);
    m_confirmButton = new QPushButton(buttonTitle(m_settings.prompt), this);
    m_confirmButton->setObjectName(u"confirmButton"_s);
    m_confirmButton->setDefault(true);
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addStretch();
    buttonRow->addWidget(m_cancelButton);
    buttonRow->addWidget(m_confirmButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(m_message);
    layout->addLayout(pathRow);
    layout->addWidget(panes, 1);
    layout->addWidget(m_notice);
    layout->addLayout(buttonRow);
    resize(QSize(760, 520).boundedTo(screen()->availableSize() * 9 / 10));

    m_watch = new FolderWatch(this);
    m_refreshTimer = new QTimer(this);
    m_refreshTimer->setSingleShot(true);
    m_refreshTimer->setInterval(refreshDelay);
}

void FileChooserDialog::connectParts()
{
    connect(m_location, &LocationField::pathEntered, this, &FileChooserDialog::goTo);
    connect(m_location, &LocationField::textChanged, this, [this] {
        notice({});
        updateConfirmButton();
    });
    connect(m_places, &PlacesList::placeChosen, this, &FileChooserDialog::goTo);
    connect(m_list, &FileList::selectionEdited, this, [this] {
        m_selectionVanished = false;
        m_location->setFolder(m_folder);
        notice({});
        updateConfirmButton();
    });
    connect(m_list, &FileList::opened, this, &FileChooserDialog::openEntry);
    connect(m_list, &FileList::entered, this, &FileChooserDialog::enterEntry);
    connect(m_list, &FileList::confirmed, this, &FileChooserDialog::confirmByKey);
    connect(m_list, &FileList::upRequested, this, &FileChooserDialog::goUp);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_confirmButton, &QPushButton::clicked, this, &FileChooserDialog::confirmByButton);

    const auto shortcut = [this](Qt::Key key, Qt::KeyboardModifiers modifiers, auto&& action) {
        auto* keys = new QShortcut(QKeySequence(QKeyCombination(modifiers, key)), this);
        connect(keys, &QShortcut::activated, this, std::forward<decltype(action)>(action));
    };
    shortcut(Qt::Key_L, Qt::ControlModifier, [this] {
        m_location->setFocus(Qt::ShortcutFocusReason);
        m_location->selectAll();
    });
    shortcut(Qt::Key_Up, Qt::AltModifier, [this] { goUp(); });
    shortcut(Qt::Key_Home, Qt::AltModifier, [this] { goTo(homeFolder()); });
    shortcut(Qt::Key_F5, Qt::NoModifier, [this] { refresh(); });

    connect(m_refreshTimer, &QTimer::timeout, this, &FileChooserDialog::refresh);
    connect(m_watch, &FolderWatch::changed, this, [this] {
        if (!m_refreshTimer->isActive())
            m_refreshTimer->start();
    });
}

void FileChooserDialog::openAtStart()
{
    if (!m_settings.directory) {
        showFolder(nearestFolder(homeFolder()));
        return;
    }
    const std::string path = normalizedPath(*m_settings.directory);
    const bool showInParent = isFolder(path) ? m_settings.canChooseDirectories && path != "/" : exists(path);
    if (showInParent) {
        m_revealed = path;
        showFolder(parentFolder(path), fileName(path));
    } else {
        showFolder(nearestFolder(path));
    }
}

void FileChooserDialog::showFolder(const std::string& folder, const std::string& selected)
{
    m_folder = folder;
    // Watched before it is read, so that no change falls between.
    m_watch->setFolder(folder);
    m_refreshTimer->stop();
    m_list->showListing(readShownFolder(), selected);
    m_location->setFolder(folder);
    m_places->setFolder(folder);
    m_upButton->setEnabled(folder != "/");
    m_selectionVanished = false;
    notice({});
    updateConfirmButton();
}

FolderListing FileChooserDialog::readShownFolder() const
{
    const bool revealsHere = !m_revealed.empty() && parentFolder(m_revealed) == m_folder;
    return readFolder(m_folder, m_settings.hiddenFiles, revealsHere ? fileName(m_revealed) : std::string());
}

void FileChooserDialog::refresh()
{
    m_refreshTimer->stop();
    if (!isFolder(m_folder) && lookupError(m_folder) == 0) {
        const std::string gone = m_folder;
        showFolder(nearestFolder(m_folder));
        tellVanished(gone);
        return;
    }
    QElapsedTimer elapsed;
    elapsed.start();
    const std::vector<std::string> gone = m_list->refreshListing(readShownFolder());
    m_refreshTimer->setInterval(
        std::max<std::chrono::milliseconds>(refreshDelay, refreshShare * elapsed.elapsed() * 1ms));
    if (!gone.empty())
        tellVanished(gone.front());
    updateConfirmButton();
}

void FileChooserDialog::tellVanished(const std::string& name)
{
    m_selectionVanished = true;
    notice(tr("“%1” is no longer there.").arg(fileNameText(name)));
    updateConfirmButton();
}

void FileChooserDialog::goUp()
{
    if (m_folder != "/")
        showFolder(parentFolder(m_folder), fileName(m_folder));
}

void FileChooserDialog::goTo(const std::string& path)
{
    if (isFolder(path)) {
        showFolder(path);
        m_list->setFocus();
    } else if (exists(path)) {
        choose({path});
    } else if (lookupError(path) != 0) {
        refuse(path);
    } else {
        notice(tr("“%1” cannot be found.").arg(fileNameText(path)));
    }
}

void FileChooserDialog::openEntry(const FileEntry& entry)
{
    if (entry.kind == FileEntry::Kind::Folder)
        enterEntry(entry);
    else
        confirm();
}

void FileChooserDialog::enterEntry(const FileEntry& entry)
{
    if (entry.kind == FileEntry::Kind::Folder)
        showFolder(pathInFolder(m_folder, entry.name));
}

bool FileChooserDialog::canChoose(const FileEntry& entry) const
{
    return (entry.kind == FileEntry::Kind::File && m_settings.canChooseFiles) ||
           (entry.kind == FileEntry::Kind::Folder && m_settings.canChooseDirectories);
}

bool FileChooserDialog::canConfirm() const
{
    const std::vector<FileEntry> selected = m_list->selectedEntries();
    if (selected.empty())
        return m_settings.canChooseDirectories && !m_selectionVanished;
    return std::ranges::all_of(selected, [this](const FileEntry& entry) { return canChoose(entry); });
}

void FileChooserDialog::updateConfirmButton()
{
    m_confirmButton->setEnabled(canConfirm() || m_location->isEdited());
}

void FileChooserDialog::confirmByKey()
{
    const std::vector<FileEntry> selected = m_list->selectedEntries();
    if (selected.size() == 1 && !canChoose(selected.front()))
        enterEntry(selected.front());
    else if (selected.empty() && canConfirm() && m_folder == m_firstFolder)
        // A key too many must not choose all that the chooser opens in.
        notice(tr("Nothing is selected. To choose “%1” itself, press the button “%2”.")
                   .arg(fileNameText(m_folder), m_settings.prompt));
    else
        confirm();
}

void FileChooserDialog::confirmByButton()
{
    if (!m_location->isEdited())
        return confirm();
    // What was typed last is meant, not what the list shows.
    const std::string typed = m_location->path();
    if (mayBeChosen(typed))
        choose({typed});
    else
        goTo(typed);
}

void FileChooserDialog::confirm()
{
    if (!canConfirm())
        return;
    std::vector<std::string> paths;
    for (const FileEntry& entry : m_list->selectedEntries())
        paths.push_back(pathInFolder(m_folder, entry.name));
    if (paths.empty())
        paths.push_back(m_folder);
    choose(std::move(paths));
}

bool FileChooserDialog::mayBeChosen(const std::string& path) const
{
    return exists(path) && (isFolder(path) ? m_settings.canChooseDirectories : m_settings.canChooseFiles);
}

void FileChooserDialog::choose(std::vector<std::string> paths)
{
    const auto unusable =
        std::ranges::find_if_not(paths, [this](const std::string& path) { return mayBeChosen(path); });
    if (unusable == paths.end()) {
        for (const std::string& path : paths) {
            if (const QString words = m_settings.refusal(path); !words.isEmpty()) {
                notice(words);
                return;
            }
        }
        m_chosen = std::move(paths);
        accept();
        return;
    }
    refuse(*unusable);
}

void FileChooserDialog::refuse(const std::string& path)
{
    if (const int error = lookupError(path); error != 0) {
        const QString why = error == ENAMETOOLONG ? tr("its path is too long")
                                                  : QString::fromStdString(std::generic_category().message(error));
        notice(tr("“%1” cannot be chosen: %2.").arg(fileNameText(fileName(path)), why));
        return;
    }
    refresh();
    if (!m_selectionVanished)
        notice(tr("“%1” cannot be chosen.").arg(fileNameText(path)));
}

void FileChooserDialog::notice(const QString& words)
{
    m_notice->setText(words);
    m_notice->setVisible(!words.isEmpty());
    if (words.isEmpty())
        return;
    QAccessibleEvent alert(m_notice, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void FileChooserDialog::keyPressEvent(QKeyEvent* event)
{
    // Enter on a tool button presses that button, not the default one.
    const bool enterKey = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (auto* focused = qobject_cast<QToolButton*>(focusWidget()); focused && enterKey)
        focused->click();
    else
        QDialog::keyPressEvent(event);
}

} // namespace LinuxDesktop
