#include "platform/linux/chooser/FileChooserDialog.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/chooser/FileList.h"
#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/chooser/FolderWatch.h"
#include "platform/linux/chooser/LocationField.h"
#include "platform/linux/chooser/NewFolderDialog.h"
#include "platform/linux/chooser/PlacesList.h"
#include "platform/linux/system/ParentFolder.h"
#include "platform/linux/text/FileNameText.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPixmap>
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
#include <utility>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds refreshDelay = 150ms;
/// A refresh may take this part of the time at most, however fast a large folder changes.
constexpr int refreshShare = 5;

constexpr std::chrono::milliseconds awaitInterval = 200ms;
constexpr QSize smallestSize(320, 240);
constexpr QSize toolIconSize(22, 22);
constexpr int toolExtent = 36;

struct Tool {
    const char* objectName;
    QString title;
    QString keys;
    QString iconName;
    QStyle::StandardPixmap fallback;
};

/// Icon themes draw an icon in outlines for small sizes, in full for large ones, and fractions of a scale take now
/// the one, now the other. The outlines, with pixels for any scale, are one style.
QIcon outlinesOf(const QIcon& icon)
{
    constexpr qreal finestScale = 3.0;
    QPixmap outlines = icon.pixmap(toolIconSize, finestScale);
    outlines.setDevicePixelRatio(1.0);
    return outlines;
}

/// Who hears the control's name is told no more than the keys.
void sayKeys(QWidget& control, const QString& title, const QString& keys)
{
    const QString text = QKeySequence(keys).toString(QKeySequence::NativeText);
    control.setToolTip(u"%1 (%2)"_s.arg(title, text));
    control.setAccessibleDescription(text);
}

/// A button that is nothing but its picture, which is that for dark windows while they are dark.
class ToolButton : public QToolButton {
public:
    ToolButton(const Tool& tool, QWidget* parent)
        : QToolButton(parent), m_iconName(tool.iconName), m_fallback(tool.fallback)
    {
        setObjectName(QLatin1String(tool.objectName));
        setText(tool.title);
        sayKeys(*this, tool.title, tool.keys);
        setIconSize(toolIconSize);
        setMinimumSize(toolExtent, toolExtent);
        setAutoRaise(true);
        setFocusPolicy(Qt::StrongFocus);
        showIcon();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QToolButton::changeEvent(event);
        // The icons change after the colours.
        if (event->type() == QEvent::PaletteChange)
            QMetaObject::invokeMethod(
                this, [this] { showIcon(); }, Qt::QueuedConnection);
    }

private:
    void showIcon() { setIcon(outlinesOf(QIcon::fromTheme(m_iconName, style()->standardIcon(m_fallback)))); }

    QString m_iconName;
    QStyle::StandardPixmap m_fallback;
};

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
    : Dialog(parent), m_settings(std::move(settings))
{
    build();
    connectParts();
    connectKeys();
    openAtStart();
    m_list->setFocus();
}

void FileChooserDialog::build()
{
    setObjectName(u"fileChooser"_s);
    setWindowTitle(m_settings.prompt);

    const QSize wanted = m_memory.size.isValid() ? m_memory.size.expandedTo(smallestSize) : QSize(760, 520);
    resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
    m_firstSize = size();

    m_message = new QLabel(m_settings.message, this);
    m_message->setObjectName(u"messageLabel"_s);
    setUpText(*m_message);
    m_message->setVisible(!m_settings.message.isEmpty());
    tieWords(*m_message, *this);

    auto* pathRow = makePathRow();

    auto* panes = new QSplitter(this);
    panes->setChildrenCollapsible(false);
    m_places = new PlacesList(m_memory.folder, panes);
    m_places->setObjectName(u"placesList"_s);
    m_places->setAccessibleName(tr("Places"));
    m_list = new FileList(panes);
    m_list->setObjectName(u"fileList"_s);
    m_list->setAccessibleName(tr("Files"));
    m_list->setFilesSelectable(m_settings.canChooseFiles);
    if (m_settings.allowsMultipleSelection)
        m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    panes->setStretchFactor(0, 0);
    panes->setStretchFactor(1, 1);
    const int placesWidth = std::min(m_places->fontMetrics().averageCharWidth() * 24, width() * 3 / 10);
    panes->setSizes({placesWidth, 4 * placesWidth});

    m_notice = new QLabel(this);
    m_notice->setObjectName(u"noticeLabel"_s);
    setUpText(*m_notice);
    m_notice->hide();
    tieWords(*m_notice, *this);

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

    m_watch = new FolderWatch(this);
    m_refreshTimer = new QTimer(this);
    m_refreshTimer->setSingleShot(true);
    m_refreshTimer->setInterval(refreshDelay);
    m_awaitTimer = new QTimer(this);
    m_awaitTimer->setSingleShot(true);
    m_awaitTimer->setInterval(awaitInterval);
}

QHBoxLayout* FileChooserDialog::makePathRow()
{
    const bool leftToRight = isLeftToRight();
    const auto back = leftToRight ? u"go-previous"_s : u"go-next"_s;
    const auto forward = leftToRight ? u"go-next"_s : u"go-previous"_s;
    m_backButton = new ToolButton({"backButton", tr("Back"), u"Alt+Left"_s, back, QStyle::SP_ArrowBack}, this);
    connect(m_backButton, &QToolButton::clicked, this, [this] { retrace(Trail::Back); });
    m_forwardButton =
        new ToolButton({"forwardButton", tr("Forward"), u"Alt+Right"_s, forward, QStyle::SP_ArrowForward}, this);
    connect(m_forwardButton, &QToolButton::clicked, this, [this] { retrace(Trail::Forward); });
    m_upButton = new ToolButton({"upButton", tr("Up"), u"Alt+Up"_s, u"go-up"_s, QStyle::SP_FileDialogToParent}, this);
    connect(m_upButton, &QToolButton::clicked, this, &FileChooserDialog::goUp);
    auto* homeButton =
        new ToolButton({"homeButton", tr("Home"), u"Alt+Home"_s, u"go-home"_s, QStyle::SP_DirHomeIcon}, this);
    connect(homeButton, &QToolButton::clicked, this, [this] { goTo(homeFolder()); });
    m_location = new LocationField(m_settings.hiddenFiles, *m_settings.kinds, this);
    m_location->setObjectName(u"pathField"_s);
    m_location->setAccessibleName(tr("Location"));
    sayKeys(*m_location, tr("Location"), u"Ctrl+L"_s);
    auto* newButton = new ToolButton(
        {"newFolderButton", tr("New Folder"), u"Ctrl+Shift+N"_s, u"folder-new"_s, QStyle::SP_FileDialogNewFolder},
        this);
    connect(newButton, &QToolButton::clicked, this, &FileChooserDialog::makeFolder);
    newButton->setVisible(m_settings.canChooseDirectories);

    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    for (QWidget* part : {static_cast<QWidget*>(m_backButton), static_cast<QWidget*>(m_forwardButton),
                          static_cast<QWidget*>(m_upButton), static_cast<QWidget*>(homeButton),
                          static_cast<QWidget*>(m_location), static_cast<QWidget*>(newButton)})
        row->addWidget(part);
    return row;
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
    connect(m_list, &FileList::pathStarted, m_location, &LocationField::startPath);
    connect(m_list, &FileList::customContextMenuRequested, this, &FileChooserDialog::showMenu);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_confirmButton, &QPushButton::clicked, this, &FileChooserDialog::confirmByButton);

    connect(m_refreshTimer, &QTimer::timeout, this, &FileChooserDialog::refresh);
    connect(m_awaitTimer, &QTimer::timeout, this, [this] { std::exchange(m_awaited, {})(); });
    connect(m_watch, &FolderWatch::changed, this, [this] {
        if (!m_refreshTimer->isActive())
            m_refreshTimer->start();
    });
}

void FileChooserDialog::connectKeys()
{
    const auto shortcut = [this](Qt::Key key, Qt::KeyboardModifiers modifiers, auto&& action) {
        auto* keys = new QShortcut(QKeySequence(QKeyCombination(modifiers, key)), this);
        connect(keys, &QShortcut::activated, this, std::forward<decltype(action)>(action));
    };
    shortcut(Qt::Key_L, Qt::ControlModifier, [this] {
        m_location->setFocus(Qt::ShortcutFocusReason);
        m_location->selectAll();
    });
    shortcut(Qt::Key_Left, Qt::AltModifier, [this] { retrace(Trail::Back); });
    shortcut(Qt::Key_Right, Qt::AltModifier, [this] { retrace(Trail::Forward); });
    shortcut(Qt::Key_Up, Qt::AltModifier, [this] { goUp(); });
    shortcut(Qt::Key_Home, Qt::AltModifier, [this] { goTo(homeFolder()); });
    shortcut(Qt::Key_H, Qt::ControlModifier, [this] { toggleHiddenFiles(); });
    shortcut(Qt::Key_Period, Qt::AltModifier, [this] { toggleHiddenFiles(); });
    if (m_settings.canChooseDirectories)
        shortcut(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier, [this] { makeFolder(); });
    shortcut(Qt::Key_F5, Qt::NoModifier, [this] { refresh(); });
}

void FileChooserDialog::openAtStart()
{
    const bool isAsked = m_settings.directory.has_value();
    const bool isRemembered =
        !isAsked && !m_memory.folder.empty() && answers(m_memory.folder) && isFolder(m_memory.folder);
    const std::string path = isAsked        ? normalizedPath(*m_settings.directory)
                             : isRemembered ? m_memory.folder
                                            : homeFolder();
    if (!answers(path)) {
        showFolder("/");
        await(path, [this] { openAtStart(); });
    } else if (const bool isFolderHere = isFolder(path);
               isAsked && (isFolderHere ? m_settings.canChooseDirectories && path != "/" : exists(path))) {
        m_revealed = path;
        showFolder(parentFolder(path), fileName(path));
    } else {
        showFolder(nearestFolder(path));
    }
    m_firstFolder = m_folder;
}

void FileChooserDialog::done(int result)
{
    m_awaitTimer->stop();
    remember(result);
    Dialog::done(result);
}

void FileChooserDialog::remember(int result) const
{
    ChooserMemory memory = m_memory;
    if (size() != m_firstSize && !isMaximized())
        memory.size = size();
    if (result == Accepted && m_chosen.front() != m_folder)
        memory.folder = parentFolder(m_chosen.front());
    else if (result == Accepted)
        memory.folder = m_folder;
    if (memory != m_memory)
        memory.keep();
}

bool FileChooserDialog::answers(const std::string& path)
{
    return m_settings.kinds->knownKindOf(path).has_value();
}

/// Until something else is gone to, or typed.
void FileChooserDialog::await(const std::string& path, std::function<void()> then)
{
    // Said once, not each time that it is asked anew.
    if (const QString words = tr("Waiting for “%1” to answer…").arg(fileNameText(path)); m_notice->text() != words)
        notice(words);
    m_awaited = std::move(then);
    m_awaitTimer->start();
}

void FileChooserDialog::visit(const std::string& folder, const std::string& selected, Trail trail)
{
    if (!answers(folder)) {
        await(folder, [this, folder, selected, trail] { visit(folder, selected, trail); });
        return;
    }
    if (trail == Trail::New && folder != m_folder) {
        m_back.push_back(m_folder);
        m_forward.clear();
    } else if (trail != Trail::New) {
        auto& from = trail == Trail::Back ? m_back : m_forward;
        auto& onto = trail == Trail::Back ? m_forward : m_back;
        from.pop_back();
        if (!isFolder(folder)) {
            updateTrail();
            notice(tr("“%1” cannot be found.").arg(fileNameText(folder)));
            return;
        }
        onto.push_back(m_folder);
    }
    showFolder(folder, selected);
}

void FileChooserDialog::retrace(Trail trail)
{
    const std::vector<std::string>& from = trail == Trail::Back ? m_back : m_forward;
    if (from.empty())
        return;
    const std::string folder = from.back();
    const bool cameFromHere = m_folder != "/" && parentFolder(m_folder) == folder;
    visit(folder, cameFromHere ? fileName(m_folder) : std::string(), trail);
}

void FileChooserDialog::updateTrail()
{
    m_backButton->setEnabled(!m_back.empty());
    m_forwardButton->setEnabled(!m_forward.empty());
    m_upButton->setEnabled(m_folder != "/");
}

void FileChooserDialog::showFolder(const std::string& folder, const std::string& selected)
{
    const bool isOther = std::exchange(m_folder, folder) != folder;
    // Watched before it is read, so that no change falls between.
    m_watch->setFolder(folder);
    m_refreshTimer->stop();
    m_list->setFolderText(fileNameText(folder));
    m_list->showListing(readShownFolder(), selected);
    m_location->setFolder(folder);
    m_places->setFolder(folder);
    updateTrail();
    m_selectionVanished = false;
    notice({});
    updateConfirmButton();
    // Who does not see it hears of its first row alone.
    if (isOther)
        announce(*this, fileNameText(folder == "/" ? folder : fileName(folder)));
}

FolderListing FileChooserDialog::readShownFolder() const
{
    const bool revealsHere = !m_revealed.empty() && parentFolder(m_revealed) == m_folder;
    return readFolder(m_folder, m_settings.hiddenFiles, revealsHere ? fileName(m_revealed) : std::string());
}

void FileChooserDialog::refresh()
{
    m_refreshTimer->stop();
    if (!answers(m_folder)) {
        await(m_folder, [this] {
            if (answers(m_folder))
                notice({});
            refresh();
        });
        return;
    }
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
        visit(parentFolder(m_folder), fileName(m_folder));
}

void FileChooserDialog::goTo(const std::string& path)
{
    if (!answers(path)) {
        await(path, [this, path] { goTo(path); });
    } else if (isFolder(path)) {
        visit(path);
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
        visit(pathInFolder(m_folder, entry.name));
}

void FileChooserDialog::toggleHiddenFiles()
{
    const bool areListed = m_settings.hiddenFiles == HiddenFiles::Listed;
    m_settings.hiddenFiles = areListed ? HiddenFiles::Left : HiddenFiles::Listed;
    m_location->setHiddenFiles(m_settings.hiddenFiles);
    if (!answers(m_folder)) {
        refresh();
        return;
    }
    // What is selected and hidden now was not lost.
    static_cast<void>(m_list->refreshListing(readShownFolder()));
    m_selectionVanished = false;
    notice(areListed ? tr("Hidden files are not shown.") : tr("Hidden files are shown."));
    updateConfirmButton();
}

void FileChooserDialog::makeFolder()
{
    auto* dialog = new NewFolderDialog(m_folder, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &NewFolderDialog::made, this, [this](const std::string& name) {
        refresh();
        m_list->select(name);
        m_list->setFocus();
    });
    dialog->open();
}

void FileChooserDialog::showMenu(const QPoint& at)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const std::vector<FileEntry> selected = m_list->selectedEntries();
    if (selected.size() == 1) {
        const FileEntry& entry = selected.front();
        if (entry.kind == FileEntry::Kind::Folder)
            menu->addAction(tr("Open"), this, [this, entry] { enterEntry(entry); });
        menu->addAction(tr("Copy Location"), this, [path = pathInFolder(m_folder, entry.name)] {
            QGuiApplication::clipboard()->setText(QString::fromStdString(path));
        });
        menu->addSeparator();
    }
    // The keys are the window's; the menu only says them.
    if (m_settings.canChooseDirectories)
        menu->addAction(tr("New Folder…") + u"\tCtrl+Shift+N"_s, this, &FileChooserDialog::makeFolder);
    QAction* hidden =
        menu->addAction(tr("Show Hidden Files") + u"\tCtrl+H"_s, this, &FileChooserDialog::toggleHiddenFiles);
    hidden->setCheckable(true);
    hidden->setChecked(m_settings.hiddenFiles == HiddenFiles::Listed);
    menu->popup(m_list->viewport()->mapToGlobal(at));
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
    if (const std::optional<FileEntry> reached = m_list->unselectableEntry(); reached && selected.empty())
        notice(reached->kind == FileEntry::Kind::File
                   ? tr("“%1” is a file. Only folders can be chosen here.").arg(fileNameText(reached->name))
                   : tr("“%1” leads to something that is not there.").arg(fileNameText(reached->name)));
    else if (selected.size() == 1 && !canChoose(selected.front()))
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
    if (answers(typed) && mayBeChosen(typed))
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
    for (const std::string& path : paths) {
        if (!answers(path)) {
            notice(tr("“%1” does not answer. It may be on a network share that is gone.").arg(fileNameText(path)));
            return;
        }
    }
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
    m_awaitTimer->stop();
    m_notice->setText(words);
    m_notice->setVisible(!words.isEmpty());
    describeByWords(*this);
    announce(*this, words);
}

void FileChooserDialog::keyPressEvent(QKeyEvent* event)
{
    // Enter on a tool button presses that button, not the default one.
    const bool enterKey = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (auto* focused = qobject_cast<QToolButton*>(focusWidget()); focused && enterKey)
        focused->click();
    else
        Dialog::keyPressEvent(event);
}

} // namespace LinuxDesktop
