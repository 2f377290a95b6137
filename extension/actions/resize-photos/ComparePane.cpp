#include "ComparePane.h"

#include "PictureView.h"
#include "Texts.h"
#include "platform/linux/text/SizeText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace MenuExtension::Resizing {

using LinuxDesktop::sizeText;

namespace {

QImage imageOf(const Pixels& pixels)
{
    const auto width = static_cast<int>(pixels.width);
    const auto height = static_cast<int>(pixels.height);
    const QImage image(reinterpret_cast<const uchar*>(pixels.bytes.data()), width, height, 3 * width,
                       QImage::Format_RGB888);
    // The bytes go.
    return image.copy();
}

} // namespace

ComparePane::ComparePane(QWidget* parent) : QWidget(parent)
{
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    m_before = makeSide(tr("Before"));
    m_after = makeSide(tr("After"));
}

ComparePane::Side ComparePane::makeSide(const QString& title)
{
    auto* const heading = new QLabel(title, this);
    QFont font = heading->font();
    font.setWeight(QFont::DemiBold);
    heading->setFont(font);
    auto* const picture = new PictureView(this);
    picture->setAccessibleName(title);
    auto* const words = new QLabel(this);
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    words->setForegroundRole(QPalette::PlaceholderText);
    auto* const column = new QVBoxLayout;
    column->setSpacing(6);
    column->addWidget(heading);
    column->addWidget(picture, 1);
    column->addWidget(words);
    static_cast<QHBoxLayout*>(layout())->addLayout(column, 1);
    return {title, picture, words};
}

void ComparePane::show(const Side& side, const Size& size, const Pixels& pixels, const QString& more)
{
    const QString words = tr("%1 × %2 pixels · %3")
                              .arg(QString::number(size.width), QString::number(size.height), sizeText(size.bytes)) +
                          more;
    side.words->setText(words);
    side.picture->show(imageOf(pixels));
    side.picture->setAccessibleDescription(words);
}

void ComparePane::refuse(const Side& side, const QString& words)
{
    side.words->setText(words);
    side.picture->show({});
    side.picture->setAccessibleDescription(words);
}

void ComparePane::showBefore(const QString& name, const Result& result)
{
    m_name = name;
    if (const auto* refused = std::get_if<Refused>(&result)) {
        refuse(m_before, sentence(name, refused->why));
        refuse(m_after, {});
        return;
    }
    const auto& photo = std::get<Resized>(result);
    show(m_before, photo.before, photo.shownBefore);
}

void ComparePane::showAfter(const Result& result)
{
    if (const auto* refused = std::get_if<Refused>(&result)) {
        refuse(m_after, sentence(m_name, refused->why));
        return;
    }
    const auto& photo = std::get<Resized>(result);
    if (photo.before == photo.after) {
        show(m_after, photo.after, photo.shownBefore, tr(" · small enough already"));
        return;
    }
    const double share = 100.0 * static_cast<double>(photo.after.bytes) / static_cast<double>(photo.before.bytes);
    show(m_after, photo.after, photo.shownAfter,
         tr(" · %1 %").arg(QLocale().toString(share, 'f', share < 10 ? 1 : 0)));
}

void ComparePane::showThatItIsWorkedOn()
{
    m_after.words->setText(tr("Looking…"));
}

std::uint32_t ComparePane::room() const
{
    return static_cast<std::uint32_t>(m_before.picture->room());
}

void ComparePane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    emit roomChanged();
}

} // namespace MenuExtension::Resizing
