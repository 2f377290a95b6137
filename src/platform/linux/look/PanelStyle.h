#pragma once

#include "platform/linux/look/Appearance.h"

#include <QProxyStyle>

namespace LinuxDesktop {

/// The panel's own style: quiet outlines, round corners, room around texts, a focus that can be seen. It takes its
/// colours from the palette.
class PanelStyle : public QProxyStyle {
    Q_OBJECT

public:
    PanelStyle();

    /// Where motion is reduced nothing moves by itself, and the hint for an animation's duration is 0.
    void setMotion(Motion motion) { m_motion = motion; }

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                         const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returned = nullptr) const override;

private:
    void outlineParts(ComplexControl control, const QStyleOptionComplex& option, QPainter& painter,
                      const QWidget* widget) const;

    Motion m_motion = Motion::Full;
};

} // namespace LinuxDesktop
