#pragma once

#include "platform/Color.h"
#include "platform/View.h"

namespace NS {

/// Shows a part of a larger view. Main thread.
class ScrollView : public View {
public:
    virtual void setBackgroundColor(Color color) = 0;
};

} // namespace NS
