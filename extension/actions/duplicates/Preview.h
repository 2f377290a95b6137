#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <stop_token>
#include <string>

namespace MenuExtension::Duplicates {

/// What is in a file, in short.
struct Preview {
    /// Null where there is none.
    QImage picture;
    /// The beginning of a text; empty for what is none.
    QString text;
};

/// The preview of an ordinary file, with a picture that fits into `pixels`. Nothing that would have to be waited for
/// is opened, and no picture is waited for after a request to stop. Any thread.
[[nodiscard]] Preview readPreview(const std::string& path, QSize pixels, const std::stop_token& stop);

} // namespace MenuExtension::Duplicates
