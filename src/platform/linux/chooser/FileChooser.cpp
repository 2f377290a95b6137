#include "platform/linux/chooser/FileChooser.h"

#include <QApplication>
#include <QEventLoop>
#include <QWindow>

namespace LinuxDesktop {

namespace {

void showInFront(QDialog& dialog)
{
    dialog.setWindowModality(Qt::ApplicationModal);
    // It may be the program's only window, and an answer is no reason to quit.
    dialog.setAttribute(Qt::WA_QuitOnClose, false);
    dialog.winId();
    dialog.windowHandle()->setTransientParent(QGuiApplication::focusWindow());
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

} // namespace

void FileChooser::setMessage(std::string_view message)
{
    m_settings.message = QString::fromUtf8(message);
}

void FileChooser::setCanChooseFiles(bool flag)
{
    m_settings.canChooseFiles = flag;
}

void FileChooser::setCanChooseDirectories(bool flag)
{
    m_settings.canChooseDirectories = flag;
}

void FileChooser::setAllowsMultipleSelection(bool flag)
{
    m_settings.allowsMultipleSelection = flag;
}

void FileChooser::setShowsHiddenFiles(bool flag)
{
    m_settings.hiddenFiles = flag ? HiddenFiles::Listed : HiddenFiles::Left;
}

void FileChooser::setDirectoryURL(const NS::URL& url)
{
    m_settings.directory = url.path();
}

void FileChooser::setPrompt(std::string_view prompt)
{
    m_settings.prompt = QString::fromUtf8(prompt);
}

int FileChooser::runModal()
{
    const ModalState::Session session(m_modalState);
    FileChooserDialog dialog(m_settings);
    QEventLoop loop;
    QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);

    showInFront(dialog);
    loop.exec();

    // Rejected too where the end of the program ended the loop.
    if (dialog.result() != QDialog::Accepted)
        return NS::ModalResponseCancel;
    take(dialog);
    return NS::ModalResponseOK;
}

void FileChooser::beginSheetModalForWindow_completionHandler(NS::Window& parent, std::function<void(int)> handler)
{
    // The window owns the sheet, and the sheet the handler, so that all of it goes when the program ends first.
    auto* sheet = new FileChooserDialog(m_settings, dynamic_cast<QWidget*>(&parent));
    sheet->setWindowModality(Qt::WindowModal);
    QObject::connect(sheet, &QDialog::finished, sheet, [this, sheet, handler = std::move(handler)](int result) {
        const bool accepted = result == QDialog::Accepted;
        if (accepted)
            take(*sheet);
        sheet->deleteLater();
        handler(accepted ? NS::ModalResponseOK : NS::ModalResponseCancel);
    });
    sheet->show();
}

void FileChooser::take(const FileChooserDialog& dialog)
{
    for (const std::string& path : dialog.chosen())
        m_urls.push_back(NS::URL::fileURLWithPath(path));
}

std::optional<NS::URL> FileChooser::URL() const
{
    return m_urls.empty() ? std::nullopt : std::optional(m_urls.front());
}

} // namespace LinuxDesktop
