#include "ComparePane.h"

#include "PictureView.h"
#include "Texts.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"
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

/// A text with places for width, height and size, and maybe more.
template<class... More>
QString sized(const QString& words, const Size& size, const More&... more)
{
    return words.arg(QString::number(size.width), QString::number(size.height), sizeText(size.bytes), more...);
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
    QLabel* const heading = makeText(this);
    heading->setText(title);
    QFont font = heading->font();
    font.setWeight(QFont::DemiBold);
    heading->setFont(font);
    auto* const picture = new PictureView(this);
    picture->setAccessibleName(title);
    heading->setBuddy(picture);
    QLabel* const words = makeNote(this);
    words->setWordWrap(true);
    // Both pictures are as high, and words that take a second line do not move them.
    words->setAlignment((words->alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignTop);
    words->setMinimumHeight(2 * words->fontMetrics().lineSpacing());
    LinuxDesktop::tieWords(*words, *picture);
    auto* const column = new QVBoxLayout;
    column->setSpacing(6);
    column->addWidget(heading);
    column->addWidget(picture, 1);
    column->addWidget(words);
    static_cast<QHBoxLayout*>(layout())->addLayout(column, 1);
    return {picture, words};
}

void ComparePane::show(const Side& side, const Pixels& pixels, const QString& words)
{
    say(side, words);
    side.picture->show(imageOf(pixels));
}

void ComparePane::refuse(const Side& side, const QString& words)
{
    say(side, words);
    side.picture->show({});
}

void ComparePane::say(const Side& side, const QString& words)
{
    side.words->setText(words);
    // Nothing is said of what is not known.
    side.words->setVisible(!words.isEmpty());
    LinuxDesktop::describeByWords(*side.picture);
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
    show(m_before, photo.shownBefore, sized(tr("%1 × %2 pixels · %3"), photo.before));
}

void ComparePane::showAfter(const Result& result)
{
    if (const auto* refused = std::get_if<Refused>(&result)) {
        refuse(m_after, sentence(m_name, refused->why));
        return;
    }
    const auto& photo = std::get<Resized>(result);
    if (photo.before == photo.after) {
        show(m_after, photo.shownBefore, sized(tr("%1 × %2 pixels · %3 · small enough already"), photo.after));
        return;
    }
    const double share = 100.0 * static_cast<double>(photo.after.bytes) / static_cast<double>(photo.before.bytes);
    //: The last is how many bytes are left of hundred.
    show(m_after, photo.shownAfter,
         sized(tr("%1 × %2 pixels · %3 · %4 %"), photo.after, QLocale().toString(share, 'f', share < 10 ? 1 : 0)));
}

void ComparePane::showThatItIsWorkedOn()
{
    say(m_after, tr("Looking…"));
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
