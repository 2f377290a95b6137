#pragma once

#include "platform/Button.h"
#include "platform/TrackingArea.h"

namespace NS {

/// What a class of the program adds to a button of a scene. The scene makes it with the button that names the
/// class and keeps it as long as that. Main thread.
class CustomButton : public Responder {
public:
    /// For scenes.
    void setButton(Button& button) { m_button = &button; }
    [[nodiscard]] Button& button() const { return *m_button; }

    /// The scene has loaded.
    virtual void awakeFromNib() {}

private:
    Button* m_button = nullptr;
};

} // namespace NS
