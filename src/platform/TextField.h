#pragma once

#include "platform/View.h"

#include <string_view>

namespace NS {

/// A line or paragraph of text. Main thread.
class TextField : public View {
public:
    /// UTF-8, shown as plain text.
    virtual void setStringValue(std::string_view text) = 0;
    /// UTF-8, shown where the pointer rests; empty for none.
    virtual void setToolTip(std::string_view text) = 0;
};

} // namespace NS
