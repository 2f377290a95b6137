#include "extension/bridges/dolphin/Background.h"

#include <KCoreDirLister>
#include <KFileItem>
#include <QApplication>
#include <QList>
#include <QString>
#include <QUrl>
#include <QWidget>

#include <algorithm>

namespace DolphinBridge {

namespace {

bool isSamePlace(const QUrl& one, const QUrl& other)
{
    return one.matches(other, QUrl::StripTrailingSlash | QUrl::NormalizePathSegments);
}

/// The widget that shows what a lister lists.
const QWidget* viewOf(const KCoreDirLister& lister)
{
    const QObject* object = &lister;
    while (object != nullptr && !object->isWidgetType())
        object = object->parent();
    return static_cast<const QWidget*>(object);
}

} // namespace

bool isBackground(const KFileItem& item, const QWidget* window)
{
    // A folder that was listed from within.
    if (item.name() == QLatin1String("."))
        return true;
    if (window == nullptr)
        return false;
    // A folder that was met in the folder above it before. It is not an item of the view that it is shown in, and
    // what was clicked has the focus.
    const QWidget* const focus = QApplication::focusWidget();
    const QList<KCoreDirLister*> listers = window->findChildren<KCoreDirLister*>();
    const auto hasFocus = [&](const KCoreDirLister* lister) {
        const QWidget* const view = viewOf(*lister);
        return view != nullptr && focus != nullptr && (view == focus || view->isAncestorOf(focus));
    };
    const auto focused = std::find_if(listers.begin(), listers.end(), hasFocus);
    if (focused != listers.end())
        return isSamePlace((*focused)->url(), item.url());
    return std::any_of(listers.begin(), listers.end(), [&](const KCoreDirLister* lister) {
        const QWidget* const view = viewOf(*lister);
        return view != nullptr && view->isVisible() && isSamePlace(lister->url(), item.url());
    });
}

} // namespace DolphinBridge
