#pragma once

#include "extension/actions/transfer/window/DoneNotice.h"
#include "extension/actions/transfer/window/TransferAction.h"
#include "extension/actions/transfer/window/TransferWindow.h"
#include "extension/actions/transfer/window/TransferWork.h"
#include "platform/linux/bus/SessionBus.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <string>

namespace LinuxDesktop {
class FileChooserDialog;
}

namespace MenuExtension::Transfers {

/// A transfer from its beginning to its last word. Main thread.
class TransferRunner : public QObject {
    Q_OBJECT

public:
    TransferRunner(const Request& request, Kind kind, LinuxDesktop::SessionBus& bus);
    ~TransferRunner() override;

private:
    void chooseTarget();
    [[nodiscard]] QString refusalOf(const std::string& folder) const;
    void begin(const std::string& target);
    void connectWork();
    void connectEnd();
    void showProgressLater(const QString& what);
    void showWindow();
    void cancel();
    void end();
    void tell(const QString& title);
    void undo();
    void endUndo();
    void showItem();
    void quitUnlessShown();
    void quit();

    const Request m_request;
    const bool m_isMove;
    std::string m_target;
    std::unique_ptr<LinuxDesktop::FileChooserDialog> m_chooser;
    TransferWork m_work;
    TransferWindow m_window;
    DoneNotice m_notice;
    /// The window shows when the work takes longer.
    QTimer m_delay;
    QTimer m_drawing;
    /// How long it can be undone.
    QTimer m_patience;
    QString m_words;
    bool m_isAnswered = false;
};

} // namespace MenuExtension::Transfers
