#pragma once

#include "platform/Application.h"
#include "platform/CustomButton.h"
#include "platform/TableCellView.h"
#include "platform/ViewController.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace NS {

/// The program's classes by the names that scenes give: what a storyboard makes its objects from.
struct ClassTable {
    template<class T>
    using Makers = std::map<std::string, std::function<T()>, std::less<>>;

    Makers<std::shared_ptr<Controller>> controllers;
    Makers<std::unique_ptr<TableCellView>> cells;
    Makers<std::unique_ptr<CustomButton>> buttons;
    Makers<std::shared_ptr<ApplicationDelegate>> delegates;
};

} // namespace NS
