#pragma once

#include "extension/actions/duplicates/Item.h"

#include <string>

/// An item that no file needs to be there for.
inline MenuExtension::Duplicates::Item itemAt(const std::string& path, std::int64_t size = 1,
                                              std::int64_t modified = 0)
{
    static ino_t inode = 0;
    return {.path = path, .state = {.device = 7, .inode = ++inode, .size = size, .modified = modified}};
}
