#pragma once

#include "ResizeJob.h"

/// Making pictures smaller. For workers: one thread, after Photos::prepareReading().
namespace MenuExtension::Resizing {

/// Does a job with the open file of a photo. The result, in the photo's own format, with its metadata, colour profile
/// and orientation, is written to the open file `target`, which is empty; to none where the job is to show it.
[[nodiscard]] Result resize(const Job& job, int photo, int target);

} // namespace MenuExtension::Resizing
