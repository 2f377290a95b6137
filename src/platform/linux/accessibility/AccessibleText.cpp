#include "platform/linux/accessibility/AccessibleText.h"

#include "platform/linux/accessibility/Accessibility.h"

#include <QLabel>
#include <QTextDocumentFragment>

namespace LinuxDesktop {

AccessibleText::AccessibleText(QLabel& label) : AccessibleGroup(label, QAccessible::StaticText) {}

const QLabel& AccessibleText::label() const
{
    return *static_cast<QLabel*>(widget());
}

QString AccessibleText::text(QAccessible::Text text) const
{
    if (text != QAccessible::Name || !label().accessibleName().isEmpty())
        return AccessibleGroup::text(text);
    const QString shown = label().text();
    const bool isRich =
        label().textFormat() == Qt::RichText || (label().textFormat() == Qt::AutoText && Qt::mightBeRichText(shown));
    if (isRich)
        return QTextDocumentFragment::fromHtml(shown).toPlainText();
    return label().buddy() ? QString(shown).remove(u'&') : shown;
}

QAccessible::Role AccessibleText::role() const
{
    return accessibleRole(label()).value_or(label().pixmap(Qt::ReturnByValue).isNull() ? QAccessible::StaticText
                                                                                       : QAccessible::Graphic);
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>>
AccessibleText::relations(QAccessible::Relation match) const
{
    auto found = AccessibleGroup::relations(match);
    if (!(match & QAccessible::Labelled))
        return found;
    const auto add = [&](QWidget* labelled) {
        if (labelled)
            found.append({QAccessible::queryAccessibleInterface(labelled), QAccessible::Labelled});
    };
    add(label().buddy());
    const auto* group = dynamic_cast<AccessibleGroup*>(parent());
    if (group && group->heading() == &label())
        add(label().parentWidget());
    return found;
}

} // namespace LinuxDesktop
