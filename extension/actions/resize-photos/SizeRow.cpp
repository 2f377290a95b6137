#include "SizeRow.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSpinBox>

namespace MenuExtension::Resizing {

namespace {

constexpr std::uint64_t kilobyte = 1000;

/// In what a size is said.
struct Unit {
    const char* name;
    const char* suffix;
    Goal::Kind kind;
    bool isForAll;
    int least;
    int most;
    int usual;
    int step;
};
constexpr std::array units{
    Unit{QT_TRANSLATE_NOOP("SizeRow", "Longest side"), QT_TRANSLATE_NOOP("SizeRow", " pixels"), Goal::Kind::Length,
         false, 16, 60'000, 1920, 100},
    Unit{QT_TRANSLATE_NOOP("SizeRow", "Percentage"), QT_TRANSLATE_NOOP("SizeRow", " %"), Goal::Kind::Percent, false,
         1, 99, 50, 5},
    Unit{QT_TRANSLATE_NOOP("SizeRow", "Each file at most"), QT_TRANSLATE_NOOP("SizeRow", " kB"), Goal::Kind::Bytes,
         false, 10, 1'000'000, 500, 100},
    Unit{QT_TRANSLATE_NOOP("SizeRow", "All together at most"), QT_TRANSLATE_NOOP("SizeRow", " kB"), Goal::Kind::Bytes,
         true, 10, 1'000'000, 5000, 500},
};

/// A usual size, by its unit; its value is the unit's.
struct Preset {
    const char* name;
    std::size_t unit;
    bool isValueFree;
    /// Larger than that nobody looks at a photo that was sent.
    std::uint32_t longest;
};
constexpr std::array presets{
    Preset{QT_TRANSLATE_NOOP("SizeRow", "For a screen"), 0, false, 0},
    Preset{QT_TRANSLATE_NOOP("SizeRow", "For mail"), 3, true, 2048},
    Preset{QT_TRANSLATE_NOOP("SizeRow", "Half"), 1, false, 0},
};

} // namespace

SizeRow::SizeRow(QWidget* parent)
    : QWidget(parent), m_preset(new QComboBox(this)), m_unit(new QComboBox(this)), m_value(new QSpinBox(this))
{
    for (const Preset& preset : presets)
        m_preset->addItem(QCoreApplication::translate("SizeRow", preset.name));
    m_preset->addItem(tr("Free"));
    for (const Unit& unit : units)
        m_unit->addItem(QCoreApplication::translate("SizeRow", unit.name));
    // A box is called what is chosen in it.
    m_unit->setAccessibleDescription(tr("What the size is measured by"));
    m_value->setAccessibleName(tr("Value"));
    setFocusProxy(m_preset);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    row->addWidget(m_preset, 1);
    row->addWidget(m_unit, 1);
    row->addWidget(m_value, 1);

    connect(m_preset, &QComboBox::currentIndexChanged, this, &SizeRow::takePreset);
    connect(m_unit, &QComboBox::currentIndexChanged, this, &SizeRow::takeUnit);
    connect(m_value, &QSpinBox::valueChanged, this, &SizeRow::changed);
    takePreset();
}

void SizeRow::takePreset()
{
    const auto index = static_cast<std::size_t>(m_preset->currentIndex());
    const bool isFree = index >= presets.size();
    m_unit->setEnabled(isFree);
    m_value->setEnabled(isFree || presets[index].isValueFree);
    if (isFree)
        return;
    {
        const QSignalBlocker quiet(m_unit);
        m_unit->setCurrentIndex(static_cast<int>(presets[index].unit));
    }
    takeUnit();
}

void SizeRow::takeUnit()
{
    const Unit& unit = units[static_cast<std::size_t>(m_unit->currentIndex())];
    {
        const QSignalBlocker quiet(m_value);
        m_value->setSuffix(QCoreApplication::translate("SizeRow", unit.suffix));
        m_value->setRange(unit.least, unit.most);
        m_value->setSingleStep(unit.step);
        m_value->setValue(unit.usual);
    }
    emit changed();
}

Wish SizeRow::wish() const
{
    const Unit& unit = units[static_cast<std::size_t>(m_unit->currentIndex())];
    const auto value = static_cast<std::uint64_t>(m_value->value());
    const auto preset = static_cast<std::size_t>(m_preset->currentIndex());
    return {{.kind = unit.kind,
             .value = unit.kind == Goal::Kind::Bytes ? value * kilobyte : value,
             .longest = preset < presets.size() ? presets[preset].longest : 0},
            unit.isForAll};
}

} // namespace MenuExtension::Resizing
