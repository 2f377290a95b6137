#pragma once

#include "SavePhoto.h"

#include <functional>
#include <stop_token>
#include <string>
#include <vector>

/// Work on many photos at once, on as many threads as help, each with an ExifTool of its own. They return when all is
/// done or they are asked to stop.
namespace MenuExtension::Exif {

/// Called from the threads that work, one at a time.
using TakeReading = std::function<void(std::size_t index, Reading reading)>;
void readPhotos(const Request& request, const std::vector<std::string>& paths, const TakeReading& take,
                const std::stop_token& stop);

using TakeTrouble = std::function<void(std::size_t index, Trouble trouble)>;
void savePhotos(const Request& request, const std::vector<std::string>& paths, const Edits& edits,
                const SaveOptions& options, const TakeTrouble& take, const std::stop_token& stop);

} // namespace MenuExtension::Exif
