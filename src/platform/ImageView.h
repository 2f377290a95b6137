#pragma once

#include "platform/Image.h"
#include "platform/View.h"

#include <optional>

namespace NS {

/// Shows a picture, or nothing. Main thread.
class ImageView : public View {
public:
    virtual void setImage(const std::optional<Image>& image) = 0;
};

} // namespace NS
