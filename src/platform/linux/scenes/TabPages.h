#pragma once

#include "platform/TabViewController.h"

#include <QTabWidget>

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

class QHBoxLayout;

namespace LinuxDesktop {

/// The tabs of a scene, with the window's menu at the end of the tab bar. A page names its screen's scene in its
/// property "scene"; the screen is made when the page is first shown. Ctrl+PageUp and Ctrl+PageDown go from one to
/// the next, round and round. Main thread.
class TabPages : public QTabWidget, public NS::TabView {
    Q_OBJECT

public:
    using Loader = std::function<std::shared_ptr<NS::ViewController>(std::string_view scene)>;

    explicit TabPages(QWidget* parent = nullptr);

    void setLoader(Loader loader) { m_loader = std::move(loader); }

    void selectTabViewItemAtIndex(int index) override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void loadCurrentPage();
    void tellFocusedTab();

    QHBoxLayout* m_beforeTabs;
    QHBoxLayout* m_afterTabs;
    Loader m_loader;
    std::vector<std::shared_ptr<NS::ViewController>> m_screens;
};

} // namespace LinuxDesktop
