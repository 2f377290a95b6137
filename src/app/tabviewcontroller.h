#pragma once

#include "platform/TabViewController.h"

/// The tabs of the start window, as their scene defines them.
class tabviewcontroller : public NS::TabViewController {
public:
    void viewDidLoad() override { NS::TabViewController::viewDidLoad(); }
};
