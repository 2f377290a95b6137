#include "platform/linux/accessibility/Accessibility.h"

#include "platform/linux/accessibility/AccessibleGroup.h"
#include "platform/linux/accessibility/AccessibleTabBar.h"
#include "platform/linux/accessibility/AccessibleText.h"

#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QVariant>

#include <algorithm>
#include <array>
#include <chrono>

namespace LinuxDesktop {

namespace {

using Widget = QPointer<QWidget>;

constexpr const char* roleProperty = "accessibleRole";
constexpr const char* subjectProperty = "accessibleSubject";
constexpr const char* wordsProperty = "accessibleWords";

/// How long the words of an announcement can be asked for.
constexpr std::chrono::seconds announcementLasts{10};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    // Of what has no more special answer than one of these.
    constexpr std::array containers{QLatin1String("QWidget"), QLatin1String("QFrame"), QLatin1String("QScrollArea"),
                                    QLatin1String("QTabWidget"), QLatin1String("QStackedWidget")};
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return nullptr;
    if (className == QLatin1String("QLabel"))
        return new AccessibleText(*static_cast<QLabel*>(widget));
    if (className == QLatin1String("QTabBar"))
        return new AccessibleTabBar(*static_cast<QTabBar*>(widget));
    if (className == QLatin1String("QDialog"))
        return new AccessibleGroup(*widget, QAccessible::Dialog);
    if (std::find(containers.begin(), containers.end(), className) != containers.end())
        return new AccessibleGroup(*widget, QAccessible::Grouping);
    return nullptr;
}

} // namespace

void installAccessibleContainers()
{
    QAccessible::installFactory(makeInterface);
}

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    widget.setProperty(roleProperty, static_cast<int>(role));
}

std::optional<QAccessible::Role> accessibleRole(const QWidget& widget)
{
    const QVariant role = widget.property(roleProperty);
    return role.isValid() ? std::optional(static_cast<QAccessible::Role>(role.toInt())) : std::nullopt;
}

void setAccessibleName(QWidget& widget, const QString& name)
{
    if (widget.accessibleName() != name)
        widget.setAccessibleName(name);
}

void setAccessibleDescription(QWidget& widget, const QString& description)
{
    if (widget.accessibleDescription() != description)
        widget.setAccessibleDescription(description);
}

void tieWords(QWidget& words, QWidget& subject)
{
    words.setProperty(subjectProperty, QVariant::fromValue(Widget(&subject)));
    QVariantList all = subject.property(wordsProperty).toList();
    all.append(QVariant::fromValue(Widget(&words)));
    subject.setProperty(wordsProperty, all);
    describeByWords(subject);
}

QWidget* subjectOf(const QWidget& words)
{
    return words.property(subjectProperty).value<Widget>();
}

void describeByWords(QWidget& subject)
{
    QString description;
    for (const QVariant& tied : subject.property(wordsProperty).toList()) {
        const QWidget* words = tied.value<Widget>();
        if (!words || words->isHidden())
            continue;
        const auto* label = qobject_cast<const QLabel*>(words);
        // What is shown of a long name may be cut.
        const QString named = words->accessibleName();
        const QString text = named.isEmpty() && label ? label->text() : named;
        if (!description.isEmpty() && !text.isEmpty())
            description += description.back().isLetterOrNumber() ? QStringLiteral(". ") : QStringLiteral(" ");
        description += text;
    }
    setAccessibleDescription(subject, description);
}

void announce(QWidget& about, const QString& words)
{
    if (!QAccessible::isActive() || !about.isVisible() || words.isEmpty())
        return;
    // The toolkit knows no announcements. A notification that comes into sight is read, wherever the focus is; each
    // is one of its own, since it is asked for its words later.
    auto* notification = new QWidget(about.window());
    notification->setAttribute(Qt::WA_TransparentForMouseEvents);
    notification->resize(1, 1);
    setAccessibleRole(*notification, QAccessible::Notification);
    notification->setAccessibleName(words);
    notification->show();
    QTimer::singleShot(announcementLasts, notification, &QObject::deleteLater);
}

} // namespace LinuxDesktop
