#include "ShownWindows.h"

#include <QApplication>
#include <QLabel>

QWidgetList ShownWindows::all()
{
    QWidgetList shown;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            shown.append(window);
    return shown;
}

std::string ShownWindows::texts()
{
    std::string texts;
    for (const QWidget* window : all())
        for (const auto* label : window->findChildren<QLabel*>())
            if (label->isVisible() && !label->text().isEmpty())
                texts += label->text().toStdString() + "\n";
    return texts;
}

void ShownWindows::closeAll()
{
    for (QWidget* window : all())
        delete window;
}
