#include "SimilarityRow.h"

#include "Collection.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSlider>

#include <chrono>
#include <utility>

namespace MenuExtension::SimilarPhotos {

namespace {

/// Of hundred.
constexpr int least = 100 - static_cast<int>(widestLimit * 100);
constexpr int most = 97;
constexpr std::chrono::milliseconds betweenTellings{60};

} // namespace

SimilarityRow::SimilarityRow(float limit, std::function<void(float limit)> changed, QWidget* parent)
    : QWidget(parent), m_changed(std::move(changed)), m_slider(new QSlider(Qt::Horizontal, this)),
      m_value(new QLabel(this))
{
    m_slider->setRange(least, most);
    m_slider->setPageStep(5);
    m_slider->setValue(100 - qRound(limit * 100));
    m_slider->setAccessibleName(tr("Similarity"));
    m_slider->setToolTip(tr("How much alike photos have to be to count as duplicates"));
    auto* const label = new QLabel(tr("Similarity"), this);
    label->setBuddy(m_slider);
    QLabel* const loose = makeNote(this);
    loose->setText(tr("Alike"));
    QLabel* const strict = makeNote(this);
    strict->setText(tr("The Same"));
    // The slider tells its value itself.
    for (QLabel* const beside : {loose, strict, m_value})
        LinuxDesktop::setAccessibleRole(*beside, QAccessible::NoRole);
    m_value->setMinimumWidth(
        m_value->fontMetrics().horizontalAdvance(QLocale().toString(100) + QStringLiteral(" %")));

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    row->addWidget(label);
    row->addSpacing(6);
    row->addWidget(loose);
    row->addWidget(m_slider, 1);
    row->addWidget(strict);
    row->addWidget(m_value);

    m_telling.setSingleShot(true);
    m_telling.setInterval(betweenTellings);
    connect(&m_telling, &QTimer::timeout, this,
            [this] { m_changed(static_cast<float>(100 - m_slider->value()) / 100); });
    connect(m_slider, &QSlider::valueChanged, this, [this] {
        showValue();
        m_telling.start();
    });
    showValue();
}

void SimilarityRow::showValue()
{
    m_value->setText(tr("%1 %").arg(QLocale().toString(m_slider->value())));
}

} // namespace MenuExtension::SimilarPhotos
