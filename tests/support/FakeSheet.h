#pragma once

#include "platform/Window.h"

#include <string>

/// A sheet that has a name.
class FakeSheet : public NS::Sheet {
public:
    explicit FakeSheet(std::string name) : m_name(std::move(name)) {}

    [[nodiscard]] const std::string& name() const { return m_name; }

private:
    std::string m_name;
};
