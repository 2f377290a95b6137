#include "platform/linux/scenes/WidgetAlert.h"

#include "platform/linux/scenes/AlertDialog.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QWindow>

namespace LinuxDesktop {

WidgetAlert::~WidgetAlert()
{
    if (m_dialog && !m_dialog->isVisible())
        delete m_dialog.data();
}

AlertDialog& WidgetAlert::dialog()
{
    if (!m_dialog)
        m_dialog = new AlertDialog;
    return *m_dialog;
}

void WidgetAlert::setMessageText(std::string_view text)
{
    dialog().setMessage(QString::fromUtf8(text));
}

void WidgetAlert::setInformativeText(std::string_view text)
{
    dialog().setInformation(QString::fromUtf8(text));
}

void WidgetAlert::addButtonWithTitle(std::string_view title)
{
    dialog().addButton(QString::fromUtf8(title));
}

std::vector<NS::Button*> WidgetAlert::buttons()
{
    const auto& buttons = dialog().buttons();
    return {buttons.begin(), buttons.end()};
}

NS::Sheet& WidgetAlert::window()
{
    return dialog();
}

void WidgetAlert::beginSheetModalForWindow(NS::Window& parent)
{
    AlertDialog& sheet = dialog();
    sheet.setParent(dynamic_cast<QWidget*>(&parent), sheet.windowFlags());
    sheet.setWindowModality(Qt::WindowModal);
    QObject::connect(&sheet, &QDialog::finished, &sheet, &QObject::deleteLater);
    sheet.show();
}

void WidgetAlert::runModal()
{
    const ModalState::Session session(m_modalState);
    AlertDialog& panel = dialog();
    panel.setWindowModality(Qt::ApplicationModal);
    panel.setAttribute(Qt::WA_QuitOnClose, false);
    panel.winId();
    panel.windowHandle()->setTransientParent(QGuiApplication::focusWindow());
    QEventLoop loop;
    QObject::connect(&panel, &QDialog::finished, &loop, &QEventLoop::quit);
    panel.show();
    panel.raise();
    panel.activateWindow();
    loop.exec();
}

} // namespace LinuxDesktop
