#include "extension/actions/window/WindowParts.h"

#include "extension/actions/window/LongHeading.h"
#include "platform/linux/accessibility/Accessibility.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QToolButton>

namespace MenuExtension {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(WindowParts)
};

QLabel* setUpText(QLabel* text)
{
    text->setTextFormat(Qt::PlainText);
    // The toolkit puts a name in Latin letters on the left in every window.
    text->setAlignment(QStyle::visualAlignment(text->layoutDirection(), Qt::AlignLeading) | Qt::AlignAbsolute |
                       Qt::AlignVCenter);
    return text;
}

QLabel* setUpHeading(QLabel* heading)
{
    setUpText(heading);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.2);
    font.setWeight(QFont::DemiBold);
    heading->setFont(font);
    LinuxDesktop::setAccessibleRole(*heading, QAccessible::Heading);
    return heading;
}

} // namespace

QLabel* makeHeading(QWidget* parent)
{
    return setUpHeading(new QLabel(parent));
}

QLabel* makeLongHeading(QWidget* parent)
{
    return setUpHeading(new LongHeading(parent));
}

QLabel* makeText(QWidget* parent)
{
    return setUpText(new QLabel(parent));
}

QLabel* makeParagraph(QWidget* parent)
{
    QLabel* const paragraph = makeText(parent);
    paragraph->setWordWrap(true);
    LinuxDesktop::setAccessibleRole(*paragraph, QAccessible::Paragraph);
    return paragraph;
}

QLabel* makeNote(QWidget* parent)
{
    QLabel* const note = makeText(parent);
    note->setForegroundRole(QPalette::PlaceholderText);
    return note;
}

QPushButton* makeButton(const QString& title, QWidget* parent, bool isPrimary)
{
    auto* const button = new QPushButton(title, parent);
    // The toolkit's own answer to Return where there is no dialog.
    button->setAutoDefault(true);
    // Else it would be filled while it has the keyboard.
    button->setProperty("primary", isPrimary);
    return button;
}

QLineEdit* makeSearch(const QString& name, const QString& hint, QWidget* parent)
{
    auto* const search = new QLineEdit(parent);
    search->setPlaceholderText(hint);
    search->setAccessibleName(name);
    search->setClearButtonEnabled(true);
    // The toolkit gives it no name.
    if (auto* const clear = search->findChild<QToolButton*>())
        clear->setAccessibleName(Texts::tr("Clear"));
    return search;
}

void readInOrder(std::initializer_list<QWidget*> siblings)
{
    // Readers come to them as they lie one over the other, which is not to be seen where none does.
    for (QWidget* const each : siblings)
        each->raise();
}

QSplitter* makeSplitter(QWidget* first, QWidget* second, QWidget* parent)
{
    auto* const splitter = new QSplitter(parent);
    splitter->addWidget(first);
    splitter->addWidget(second);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(12);
    // The toolkit puts the first a pixel too far to the right where that is the beginning.
    if (splitter->isRightToLeft())
        splitter->setContentsMargins(0, 0, 1, 0);
    readInOrder({first, second});
    return splitter;
}

void closeByKeyboard(QWidget& window)
{
    for (const auto& keys :
         {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W), QKeySequence(Qt::CTRL | Qt::Key_Q)})
        QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window, &QWidget::close);
}

} // namespace MenuExtension
