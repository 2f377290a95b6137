#include "platform/linux/scenes/AlertDialog.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/look/FitToScreen.h"
#include "platform/linux/scenes/Label.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QVBoxLayout>

#include <algorithm>

namespace LinuxDesktop {

namespace {

constexpr int iconExtent = 64;
constexpr int between = 20;
constexpr int textWidth = 380;

QLabel* textLabel(QWidget* parent)
{
    auto* label = new Label(parent);
    label->setWordWrap(true);
    label->setFixedWidth(std::min(textWidth, roomOnScreen(*parent).width() - iconExtent - 3 * between));
    label->hide();
    return label;
}

void showText(QLabel& label, const QString& text)
{
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

} // namespace

AlertDialog::AlertDialog() : m_message(textLabel(this)), m_information(textLabel(this)), m_buttonRow(new QHBoxLayout)
{
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setWindowTitle(tr("Orvik Menu"));
    auto* icon = new QLabel(this);
    icon->setFixedSize(iconExtent, iconExtent);
    icon->setPixmap(QApplication::windowIcon().pixmap(QSize(iconExtent, iconExtent), devicePixelRatioF()));
    setAccessibleRole(*this, QAccessible::AlertMessage);
    setAccessibleRole(*icon, QAccessible::NoRole);
    setAccessibleRole(*m_message, QAccessible::Heading);
    tieWords(*m_information, *this);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(8);
    texts->addWidget(m_message);
    texts->addWidget(m_information);
    texts->addStretch();
    auto* upper = new QHBoxLayout;
    upper->setSpacing(between);
    upper->addWidget(icon, 0, Qt::AlignTop);
    upper->addLayout(texts);

    m_buttonRow->setSpacing(8);
    m_buttonRow->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(between, between, between, 16);
    layout->setSpacing(between);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(upper);
    layout->addLayout(m_buttonRow);
}

void AlertDialog::setMessage(const QString& text)
{
    showText(*m_message, text);
}

void AlertDialog::setInformation(const QString& text)
{
    showText(*m_information, text);
    describeByWords(*this);
    // The message is a headline where more is said below it.
    QFont font = m_message->font();
    font.setBold(!text.isEmpty());
    m_message->setFont(font);
}

void AlertDialog::addButton(const QString& title)
{
    auto* button = new PushButton(this);
    button->setText(title);
    button->setAutoDefault(true);
    button->setDefault(m_buttons.empty());
    // The one that has the keyboard is the default button too, for as long as it has that.
    button->setProperty("primary", m_buttons.empty());
    button->setAction([this](NS::Control&) { accept(); });
    // The default button stands at the far end.
    m_buttonRow->insertWidget(1, button);
    if (!m_buttons.empty())
        setTabOrder(button, m_buttons.front());
    m_buttons.push_back(button);
}

void AlertDialog::reject()
{
    if (m_buttons.empty())
        done(Rejected);
    else
        m_buttons.back()->click();
}

} // namespace LinuxDesktop
