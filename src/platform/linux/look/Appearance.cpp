#include "platform/linux/look/Appearance.h"

#include "platform/linux/look/PanelStyle.h"
#include "platform/linux/look/ThemeColors.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QStyle>

namespace LinuxDesktop {

namespace {

bool iconThemeIsOurs()
{
    const QString name = QIcon::themeName();
    return name.isEmpty() || name == QLatin1String("hicolor") || name.startsWith(QLatin1String("breeze"));
}

} // namespace

void applyAppearance(ColorScheme scheme, Contrast contrast, Motion motion)
{
    // Fusion is what runs where no desktop has brought a style.
    if (QApplication::style()->name() == QLatin1String("fusion"))
        QApplication::setStyle(new PanelStyle);
    if (auto* style = qobject_cast<PanelStyle*>(QApplication::style())) {
        style->setMotion(motion);
        QApplication::setPalette(themePalette(scheme, contrast));
    }
    if (qEnvironmentVariableIsEmpty("XDG_CURRENT_DESKTOP")) {
        QFont font(QStringList{QStringLiteral("Inter"), QStringLiteral("Sans Serif")});
        font.setPointSizeF(10.0);
        QApplication::setFont(font);
    }
    if (iconThemeIsOurs()) {
        const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
        QIcon::setThemeName(dark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
    }
}

} // namespace LinuxDesktop
