#pragma once

#include "platform/linux/bus/SessionBus.h"
#include "platform/linux/program/AppearanceSettings.h"
#include "platform/linux/program/Translations.h"

#include <QObject>
#include <QString>

namespace LinuxDesktop {

/// What a program's windows have of the desktop, as long as this lives: the look, with the colours, the contrast and
/// the motion that the desktop wishes, the language, the product's icon, what assistive programs are told beyond what
/// the toolkit tells, and the activation token that the program was started with, for the first window that shows.
/// Made after the QApplication and before its windows. Main thread.
class WindowSurroundings : public QObject {
public:
    /// `programs` is the folder of the programs that users start, from which the installed files are found.
    WindowSurroundings(SessionBus& bus, const QString& programs);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    const Translations m_translations;
    AppearanceSettings m_appearance;
};

} // namespace LinuxDesktop
