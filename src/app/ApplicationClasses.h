#pragma once

#include "platform/ClassTable.h"

class ControllerRegistry;

/// The classes that the storyboard's scenes name. The registry must outlive every object made from the table.
[[nodiscard]] NS::ClassTable applicationClasses(ControllerRegistry& registry);
