#pragma once

#include "platform/TextField.h"

#include <QLabel>

namespace LinuxDesktop {

/// A text of a scene, shown as it is: nothing in it is taken for markup. Main thread.
class Label : public QLabel, public NS::TextField {
    Q_OBJECT

public:
    explicit Label(QWidget* parent = nullptr);

    void setStringValue(std::string_view text) override;

signals:
    void textChanged(const QString& text);
};

} // namespace LinuxDesktop
