#pragma once

#include "extension/actions/find-duplicate-files/Choices.h"

#include <QWidget>

#include <functional>

class QCheckBox;

namespace MenuExtension {

/// Lets a person choose which files are looked at. Main thread.
class ChoicesRow : public QWidget {
    Q_OBJECT

public:
    ChoicesRow(Choices choices, std::function<void(Choices)> changed, QWidget* parent = nullptr);

private:
    void tell();

    const std::function<void(Choices)> m_changed;
    QCheckBox* m_hidden;
    QCheckBox* m_empty;
    QCheckBox* m_system;
};

} // namespace MenuExtension
