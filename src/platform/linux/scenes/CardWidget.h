#pragma once

#include "platform/linux/look/Card.h"

namespace LinuxDesktop {

/// A card of a grid: a sheet with the widgets of its scene. Assistive programs know it and its buttons by the title
/// that it shows. Main thread.
class CardWidget : public Card {
    Q_OBJECT
    /// The name of the label with the card's title. It lies in the same scene.
    Q_PROPERTY(QString titleLabel MEMBER m_titleLabel)

public:
    explicit CardWidget(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void tellTitle(const QString& title);

    QString m_titleLabel;
    bool m_followsTitle = false;
};

} // namespace LinuxDesktop
