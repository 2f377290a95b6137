#pragma once

#include "platform/ImageView.h"
#include "support/CallLog.h"

#include <optional>
#include <string>

/// An image view that keeps what it shows.
class FakeImageView : public NS::ImageView {
public:
    FakeImageView(CallLog& calls, std::string name) : m_calls(calls), m_name(std::move(name)) {}

    void setImage(const std::optional<NS::Image>& image) override
    {
        m_calls.record(m_name, "setImage", image);
        m_image = image;
    }
    [[nodiscard]] const std::optional<NS::Image>& image() const { return m_image; }

private:
    CallLog& m_calls;
    std::string m_name;
    std::optional<NS::Image> m_image;
};
