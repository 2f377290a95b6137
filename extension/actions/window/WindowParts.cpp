#include "extension/actions/window/WindowParts.h"

#include "extension/actions/window/LongHeading.h"
#include "platform/linux/accessibility/Accessibility.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QToolButton>
#include <QToolTip>

namespace MenuExtension {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(WindowParts)
};

class NameLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (!isCut()) {
            QLabel::paintEvent(event);
            return;
        }
        QPainter painter(this);
        // As the toolkit draws what is not cut.
        const auto direction = text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
        style()->drawItemText(
            &painter, contentsRect(), static_cast<int>(alignment()) | static_cast<int>(direction), palette(),
            isEnabled(), fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()), foregroundRole());
    }
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::ToolTip || !isCut())
            return QLabel::event(event);
        // Nothing in it is taken for markup, and a long one has several lines.
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           QStringLiteral("<qt>") + text().toHtmlEscaped() + QStringLiteral("</qt>"), this);
        return true;
    }

private:
    [[nodiscard]] bool isCut() const { return fontMetrics().horizontalAdvance(text()) > contentsRect().width(); }
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

QLabel* asNote(QLabel* note)
{
    note->setForegroundRole(QPalette::PlaceholderText);
    return note;
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
    return asNote(makeText(parent));
}

QLabel* makeNameNote(QWidget* parent)
{
    return asNote(setUpText(new NameLabel(parent)));
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
