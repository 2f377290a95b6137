// Makes a sheet of the controls in all their states.
// Usage: orvik_states_sheet light|dark normal|high FILE
#include "tests/platform/look/Controls.h"

#include "platform/linux/look/Appearance.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <iostream>
#include <string_view>

namespace {

using namespace LinuxDesktop;

constexpr QSize cell(196, 60);
constexpr int namesWidth = 140;
constexpr int headerHeight = 40;

/// Draws a picture in its own size in the middle of a place.
void drawCentred(QPainter& painter, const QRect& place, const QImage& picture)
{
    QRect shown(QPoint(), picture.deviceIndependentSize().toSize());
    shown.moveCenter(place.center());
    painter.drawImage(shown.topLeft(), picture);
}

QImage makeSheet()
{
    const std::vector<Control> rows = controls();
    const int columns = static_cast<int>(std::size(controlStates));
    const QSize size(namesWidth + columns * cell.width() + 16,
                     headerHeight + static_cast<int>(rows.size()) * cell.height() + 12);
    const qreal scale = qApp->devicePixelRatio();
    QImage sheet(size * scale, QImage::Format_RGB32);
    sheet.setDevicePixelRatio(scale);
    const QPalette palette = QApplication::palette();
    sheet.fill(palette.color(QPalette::Window));
    QPainter painter(&sheet);
    painter.setPen(palette.color(QPalette::WindowText));
    for (int column = 0; column < columns; ++column)
        painter.drawText(QRect(namesWidth + column * cell.width(), 0, cell.width(), headerHeight), Qt::AlignCenter,
                         nameOf(controlStates[column]));
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        const Control& control = rows.at(static_cast<std::size_t>(row));
        const int top = headerHeight + row * cell.height();
        painter.drawText(QRect(16, top, namesWidth - 16, cell.height()), Qt::AlignVCenter, control.name);
        for (int column = 0; column < columns; ++column) {
            const QRect place(QPoint(namesWidth + column * cell.width(), top), cell);
            const ControlState state = controlStates[column];
            if (std::find(control.states.begin(), control.states.end(), state) != control.states.end())
                drawCentred(painter, place, pictureOf(control, state));
            else
                painter.drawText(place, Qt::AlignCenter, QStringLiteral("–"));
        }
    }
    return sheet;
}

} // namespace

int main(int argc, char** argv)
{
    // Without a display, and whatever desktop this is.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "1.5");
    qunsetenv("XDG_CURRENT_DESKTOP");
    const QApplication application(argc, argv);
    // A picture is not to depend on when it is taken.
    QApplication::setCursorFlashTime(0);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4) {
        std::cerr << "Usage: orvik_states_sheet light|dark normal|high FILE\n";
        return 2;
    }
    applyAppearance(arguments.at(1) == QLatin1String("dark") ? ColorScheme::Dark : ColorScheme::Light,
                    arguments.at(2) == QLatin1String("high") ? Contrast::High : Contrast::Normal, Motion::Reduced);
    return makeSheet().save(arguments.at(3)) ? 0 : 1;
}
