#include "platform/linux/scenes/ImageStore.h"

#include <QFileInfo>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace LinuxDesktop {

namespace {

/// In pixels.
constexpr int smallestColouredIcon = 48;

/// In front of the names of a theme image. No file is called so.
const QString themePrefix = QStringLiteral("theme/");

QPixmap themeIcon(const QStringList& names, int extent, qreal scale)
{
    for (const QString& name : names) {
        if (const QIcon icon = QIcon::fromTheme(name); !icon.isNull())
            return icon.pixmap(QSize(extent, extent), scale);
    }
    return {};
}

QPixmap transparentSquare(int extent, qreal scale)
{
    QPixmap square(QSize(extent, extent) * scale);
    square.setDevicePixelRatio(scale);
    square.fill(Qt::transparent);
    return square;
}

QPixmap drawFile(const QString& path, int extent, qreal scale)
{
    QPixmap drawn = transparentSquare(extent, scale);
    QPainter painter(&drawn);
    QSvgRenderer(path).render(&painter, QRectF(0, 0, extent, extent));
    return drawn;
}

/// The shape alone counts: every visible pixel gets the colour.
void paint(QPixmap& shape, const QColor& tint)
{
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(QPointF(), shape.deviceIndependentSize()), tint);
}

} // namespace

NS::Image ImageStore::themeImage(const QStringList& names)
{
    return NS::Image((themePrefix + names.join(u'/')).toStdString());
}

NS::Image ImageStore::missingItem()
{
    return themeImage({QStringLiteral("unknown"), QStringLiteral("text-x-generic")});
}

bool ImageStore::contains(std::string_view name) const
{
    return QFileInfo::exists(pathOf(QString::fromUtf8(name)));
}

QPixmap ImageStore::pixmap(const QString& name, int extent, qreal scale, const QColor& tint)
{
    const QString key = QStringLiteral("%1 %2 %3 %4").arg(name).arg(extent).arg(scale).arg(tint.rgba());
    auto drawn = m_drawn.find(key);
    if (drawn == m_drawn.end())
        drawn = m_drawn.insert(key, draw(name, extent, scale, tint));
    return *drawn;
}

QString ImageStore::pathOf(const QString& name) const
{
    return m_folder + QLatin1Char('/') + name + QStringLiteral(".svg");
}

QPixmap ImageStore::draw(const QString& name, int extent, qreal scale, const QColor& tint) const
{
    if (name.startsWith(themePrefix)) {
        // Themes draw their icons of small sizes in outlines; the larger ones are told apart at a glance.
        const int pixels = std::max(smallestColouredIcon, qCeil(extent * scale));
        QPixmap icon = themeIcon(name.mid(themePrefix.size()).split(u'/'), pixels, 1.0);
        icon.setDevicePixelRatio(pixels / static_cast<qreal>(extent));
        return icon;
    }
    QPixmap drawn = drawFile(pathOf(name), extent, scale);
    if (name.endsWith(QLatin1String("-symbolic")))
        paint(drawn, tint);
    return drawn;
}

} // namespace LinuxDesktop
