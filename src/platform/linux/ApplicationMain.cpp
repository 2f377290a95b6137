#include "platform/ApplicationMain.h"

#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/program/LastWords.h"
#include "platform/linux/program/Program.h"
#include "platform/linux/scenes/Accessibility.h"
#include "platform/linux/scenes/TabPages.h"
#include "settings/Deployment.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace {

using namespace LinuxDesktop;

const ProgramDescription panel = {
    .name = "orvik-menu",
    .identifier = std::string(Deployment::applicationIdentifier),
    .usage = R"(Usage: orvik-menu [OPTION]
The control panel of Orvik Menu: which actions the file manager's menu shows, and where.

  --tab TITLE  open on the tab of that title
  --help       show this text and end
  --version    show the version and end
)",
    .noDisplay = "there is no display to show the panel on",
    .noSessionBus = "no session bus: the panel works, but hears nothing of the extension",
    .option = "--tab",
    .optionValue = "a title",
};

/// Has the tabs open on the one of a title, where there is one. The title may be English in any language.
class FirstTab : public QObject {
public:
    explicit FirstTab(QString title) : m_title(std::move(title))
    {
        if (!m_title.isEmpty())
            QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Before they show it, so that no other tab's screen is made.
        auto* tabs = event->type() == QEvent::Show ? qobject_cast<TabPages*>(watched) : nullptr;
        if (!tabs)
            return false;
        QCoreApplication::instance()->removeEventFilter(this);
        const QString shown = QCoreApplication::translate("tabviewcontroller", m_title.toUtf8().constData());
        for (int index = 0; index < tabs->count(); ++index) {
            if (tabs->tabText(index) == m_title || tabs->tabText(index) == shown)
                tabs->setCurrentIndex(index);
        }
        return false;
    }

private:
    const QString m_title;
};

/// Controllers may outlive the QApplication; widgets must not.
void destroyWindows()
{
    QList<QPointer<QWidget>> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        // A popup is somebody's own, who takes it away.
        if (window->windowType() != Qt::Popup)
            windows.append(window);
    }
    for (const QPointer<QWidget>& window : windows)
        delete window.data();
}

int runPanel(Program& program, const NS::ClassTable& classes)
{
    QApplication::setQuitOnLastWindowClosed(false);
    installAccessibility();
    LinuxPlatform platform(classes, Program::resources(), program.bus(), program.name());
    NS::installPlatform(&platform);
    startProblemWindowWhenFatal();
    const FirstTab firstTab(program.option());
    program.whenAskedToEnd([&] { platform.application().terminate(); });
    const int status = platform.application().run(platform.loadDelegate());
    destroyWindows();
    return status;
}

} // namespace

int NS::ApplicationMain(int argc, char** argv, const ClassTable& classes)
{
    const int status =
        Program::run(panel, argc, argv, [&classes](Program& program) { return runPanel(program, classes); });
    NS::installPlatform(nullptr);
    return status;
}
