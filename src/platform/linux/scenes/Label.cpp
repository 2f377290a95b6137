#include "platform/linux/scenes/Label.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/text/FileNameText.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <array>

namespace LinuxDesktop {

namespace {

/// The type scale of the panel.
struct TextStyle {
    QLatin1String name;
    qreal scale;
    QFont::Weight weight;
    QPalette::ColorRole role;
};

constexpr std::array textStyles{
    TextStyle{QLatin1String("title"), 1.6, QFont::DemiBold, QPalette::WindowText},
    TextStyle{QLatin1String("heading"), 1.15, QFont::DemiBold, QPalette::WindowText},
    TextStyle{QLatin1String("secondary"), 1.0, QFont::Normal, QPalette::PlaceholderText},
};

/// As rich text a long text is wrapped, and a long name after every so many characters; its own marks are not taken
/// for markup.
QString wrapped(const QString& text)
{
    constexpr QChar breakHere(0x200B);
    constexpr int longestRun = 32;
    QString breakable;
    int run = 0;
    for (const QChar character : text) {
        breakable += character;
        run = character.isSpace() ? 0 : run + 1;
        if (run >= longestRun && !character.isHighSurrogate()) {
            breakable += breakHere;
            run = 0;
        }
    }
    return QStringLiteral("<qt>") + breakable.toHtmlEscaped() + QStringLiteral("</qt>");
}

QString lastName(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path.size() > 1 ? path.mid(path.lastIndexOf(u'/') + 1) : path;
}

} // namespace

Label::Label(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void Label::setTextStyle(const QString& style)
{
    m_textStyle = style;
    const auto* found = std::find_if(textStyles.begin(), textStyles.end(),
                                     [&](const TextStyle& known) { return style == known.name; });
    if (found == textStyles.end())
        return;
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * found->scale);
    font.setWeight(found->weight);
    setFont(font);
    setForegroundRole(found->role);
    if (found->weight > QFont::Normal)
        setAccessibleRole(*this, QAccessible::Heading);
}

void Label::setStringValue(std::string_view text)
{
    const QString before = this->text();
    m_givenText = m_isFileName ? fileNameText(text) : QString::fromUtf8(text);
    setText(m_showsLastName ? lastName(m_givenText) : m_givenText);
    if (this->text() != before) {
        if (QWidget* subject = subjectOf(*this))
            describeByWords(*subject);
        if (m_isAnnounced)
            announce(*this, this->text());
    }
    emit textChanged(QString::fromUtf8(text));
}

void Label::setToolTip(std::string_view text)
{
    m_toolTip = fileNameText(text);
    emit toolTipChanged(m_toolTip);
}

void Label::showEvent(QShowEvent* event)
{
    QLabel::showEvent(event);
    QWidget* subject = m_subject.isEmpty() || subjectOf(*this) ? nullptr : this;
    // Once the scene is whole.
    while (subject && subject->objectName() != m_subject) {
        QWidget* scene = subject->parentWidget();
        auto* found = scene ? scene->findChild<QWidget*>(m_subject) : nullptr;
        subject = found ? found : scene;
    }
    if (subject)
        tieWords(*this, *subject);
}

QSize Label::minimumSizeHint() const
{
    const QSize hint = QLabel::minimumSizeHint();
    return wordWrap() ? hint : QSize(0, hint.height());
}

bool Label::isCut() const
{
    return !wordWrap() && fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void Label::paintEvent(QPaintEvent* event)
{
    if (!isCut()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    paintCut(painter);
}

void Label::paintCut(QPainter& painter)
{
    // As the toolkit draws what is not cut: a path begins with its slash in any window.
    const auto direction = text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    style()->drawItemText(
        &painter, contentsRect(), static_cast<int>(alignment()) | static_cast<int>(direction), palette(), isEnabled(),
        fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()), foregroundRole());
}

bool Label::event(QEvent* event)
{
    // A wrapped text is never given less height than its lines need.
    if (event->type() == QEvent::Polish && wordWrap() && hasHeightForWidth()) {
        QSizePolicy policy = sizePolicy();
        policy.setVerticalPolicy(QSizePolicy::Minimum);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    }
    // By itself it would go by the direction of its letters, away from what it belongs to.
    if (event->type() == QEvent::Polish && layoutDirection() == Qt::RightToLeft)
        setAlignment(QStyle::visualAlignment(Qt::RightToLeft, alignment()) | Qt::AlignAbsolute);
    if (event->type() == QEvent::ApplicationFontChange)
        setTextStyle(m_textStyle);
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const QString& given = m_toolTip.isEmpty() ? m_wholeText : m_toolTip;
    const QString tip = given.isEmpty() && isCut() ? text() : given;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip.isEmpty() ? tip : wrapped(tip), this);
    return true;
}

} // namespace LinuxDesktop
