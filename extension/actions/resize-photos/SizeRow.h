#pragma once

#include "Wish.h"

#include <QWidget>

#include <array>
#include <cstddef>

class QComboBox;
class QSpinBox;

namespace MenuExtension::Resizing {

/// Where a person says how large photos are to become: a usual size, or a free one.
class SizeRow : public QWidget {
    Q_OBJECT

public:
    explicit SizeRow(QWidget* parent = nullptr);

    [[nodiscard]] Wish wish() const;

signals:
    void changed();

private:
    void takePreset();
    void takeUnit();

    QComboBox* m_preset;
    QComboBox* m_unit;
    QSpinBox* m_value;
};

} // namespace MenuExtension::Resizing
