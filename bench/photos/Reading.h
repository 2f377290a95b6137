#pragma once

#include "extension/actions/find-duplicate-photos/Collection.h"

#include <string>
#include <vector>

/// Has the workers of the action read pictures, as many at a time as there are processors.
class Reading {
public:
    /// Adds the pictures to a collection, by their place in `paths`. Ends the program where one cannot be read.
    static void addAll(const std::vector<std::string>& paths, MenuExtension::SimilarPhotos::Collection& collection);
};
