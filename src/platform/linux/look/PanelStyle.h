#pragma once

#include "platform/linux/look/Appearance.h"

#include <QIcon>
#include <QProxyStyle>

class QStyleOptionComboBox;
class QStyleOptionSpinBox;

namespace LinuxDesktop {

/// The panel's own style: quiet outlines, round corners, room around texts, a ring around what has the keyboard while
/// the keyboard is used. It takes its colours from the palette. A button's property "primary" says whether it is
/// filled, where that is not for the dialog to say.
class PanelStyle : public QProxyStyle {
    Q_OBJECT

public:
    PanelStyle();

    /// Where motion is reduced nothing moves by itself, and the hint for an animation's duration is 0.
    void setMotion(Motion motion) { m_motion = motion; }

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget* widget) override;
    void polish(QApplication* application) override;
    void unpolish(QWidget* widget) override;
    void unpolish(QApplication* application) override;
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

    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void drawSpinBox(const QStyleOptionSpinBox& box, QPainter& painter, const QWidget* widget) const;
    void drawComboBox(const QStyleOptionComboBox& box, QPainter& painter, const QWidget* widget) const;
    void followHands(bool keyboardIsUsed);

    Motion m_motion = Motion::Full;
    bool m_keyboardIsUsed = false;
};

} // namespace LinuxDesktop
