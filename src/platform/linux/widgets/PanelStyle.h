#pragma once

#include <QProxyStyle>

namespace LinuxDesktop {

/// The toolkit's plain style with the parts of its own that lists of checkboxes need: boxes that can be seen and
/// hit, a focus that can be seen, and room around texts. Colours come from the palette. Main thread.
class PanelStyle : public QProxyStyle {
    Q_OBJECT

public:
    PanelStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace LinuxDesktop
