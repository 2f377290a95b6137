#pragma once

#include "platform/Button.h"

#include <QEnterEvent>

#include <vector>

namespace LinuxDesktop {

/// What a button of the vocabulary asks of every kind of button widget. Main thread.
template<class Base>
class ButtonWidget : public Base, public NS::Button {
public:
    using Base::Base;

    [[nodiscard]] NS::ControlState state() const override
    {
        return Base::isChecked() ? NS::ControlState::On : NS::ControlState::Off;
    }
    void setEnabled(bool flag) override { Base::setEnabled(flag); }

    [[nodiscard]] NS::Rect bounds() const override
    {
        return {0.0, 0.0, {static_cast<double>(Base::width()), static_cast<double>(Base::height())}};
    }
    /// Every area is the part of the button that shows, and always active.
    void addTrackingArea(const NS::TrackingArea& area) override { m_trackingAreas.push_back(area); }

protected:
    void enterEvent(QEnterEvent* event) override
    {
        Base::enterEvent(event);
        for (const NS::TrackingArea& area : m_trackingAreas)
            area.owner->mouseEntered();
    }
    void leaveEvent(QEvent* event) override
    {
        Base::leaveEvent(event);
        for (const NS::TrackingArea& area : m_trackingAreas)
            area.owner->mouseExited();
    }

private:
    std::vector<NS::TrackingArea> m_trackingAreas;
};

} // namespace LinuxDesktop
