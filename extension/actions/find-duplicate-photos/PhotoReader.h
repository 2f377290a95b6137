#pragma once

#include "WorkerJobs.h"
#include "extension/actions/duplicates/Item.h"
#include "extension/actions/photos/Worker.h"

#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>

namespace MenuExtension::SimilarPhotos {

/// Has a worker read pictures, one after the other. One thread at a time.
class PhotoReader {
public:
    /// `program` is the path of this action's worker.
    explicit PhotoReader(std::string program, Photos::Limits limits = {});

    /// Reads the picture in an open file, as jobText() says. Nothing when a stop was requested.
    [[nodiscard]] std::optional<Result> read(int file, std::uint32_t pixels, const std::stop_token& stop);

private:
    Photos::Worker m_worker;
};

} // namespace MenuExtension::SimilarPhotos
