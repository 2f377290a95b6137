#pragma once

#include "platform/Image.h"

#include <QColor>
#include <QHash>
#include <QPixmap>
#include <QString>
#include <QStringList>

#include <string_view>

namespace LinuxDesktop {

/// The program's images, by the names that the code uses: SVG files in one folder, and the icons of the desktop's
/// theme. Drawn when first shown, once a size. Main thread.
class ImageStore {
public:
    /// `folder` holds NAME.svg.
    explicit ImageStore(QString folder) : m_folder(std::move(folder)) {}

    /// An icon of the desktop's theme: the first of `names` that the theme has.
    [[nodiscard]] static NS::Image themeImage(const QStringList& names);
    /// That of an item which is not there.
    [[nodiscard]] static NS::Image missingItem();
    [[nodiscard]] bool contains(std::string_view name) const;
    /// A square of `extent` logical pixels at `scale` device pixels each. One whose name ends in
    /// "-symbolic" comes in `tint`.
    [[nodiscard]] QPixmap pixmap(const QString& name, int extent, qreal scale, const QColor& tint);

private:
    [[nodiscard]] QString pathOf(const QString& name) const;
    [[nodiscard]] QPixmap draw(const QString& name, int extent, qreal scale, const QColor& tint) const;

    QString m_folder;
    QHash<QString, QPixmap> m_drawn;
};

} // namespace LinuxDesktop
