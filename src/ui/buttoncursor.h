#pragma once

#include "platform/CustomButton.h"

/// A button over which the pointer is a hand, whether the program is in front or not. Main thread.
class buttoncursor : public NS::CustomButton {
public:
    void awakeFromNib() override;
    void mouseEntered() override;
    void mouseExited() override;
};
