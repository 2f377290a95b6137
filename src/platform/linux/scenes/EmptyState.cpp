#include "platform/linux/scenes/EmptyState.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/scenes/ImageWidget.h"
#include "platform/linux/scenes/Label.h"
#include "platform/linux/scenes/PushButton.h"

#include <QVBoxLayout>

namespace LinuxDesktop {

namespace {

constexpr int imageExtent = 96;

Label* centredText(const QString& style, QWidget* parent)
{
    auto* label = new Label(parent);
    label->setTextStyle(style);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

} // namespace

EmptyState::EmptyState(QWidget* parent)
    : QWidget(parent), m_image(new ImageWidget(this)), m_heading(centredText(QStringLiteral("title"), this)),
      m_sentence(centredText(QStringLiteral("secondary"), this))
{
    m_image->setFixedSize(imageExtent, imageExtent);
    m_image->setForegroundRole(QPalette::PlaceholderText);
    setAccessibleRole(*m_heading, QAccessible::Heading);
    tieWords(*m_sentence, *this);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addStretch();
    layout->addWidget(m_image, 0, Qt::AlignHCenter);
    layout->addSpacing(8);
    layout->addWidget(m_heading);
    layout->addWidget(m_sentence);
    layout->addStretch();
}

void EmptyState::setImageName(const QString& name)
{
    m_image->setImage(NS::Image(name.toStdString()));
}

void EmptyState::setHeading(const QString& text)
{
    m_heading->setText(text);
}

void EmptyState::setSentence(const QString& text)
{
    m_sentence->setText(text);
    describeByWords(*this);
}

void EmptyState::setButtonText(const QString& text)
{
    button().setText(text);
}

void EmptyState::setButtonAction(const QString& selector)
{
    button().setProperty("action", selector);
}

PushButton& EmptyState::button()
{
    if (!m_button) {
        m_button = new PushButton(this);
        m_button->setProperty("primary", true);
        auto& column = *static_cast<QVBoxLayout*>(layout());
        column.insertSpacing(column.count() - 1, 8);
        column.insertWidget(column.count() - 1, m_button, 0, Qt::AlignHCenter);
    }
    return *m_button;
}

} // namespace LinuxDesktop
