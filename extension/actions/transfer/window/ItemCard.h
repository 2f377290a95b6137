#pragma once

#include "extension/actions/transfer/Conflict.h"
#include "platform/linux/look/Card.h"

class QLabel;

namespace MenuExtension::Transfers {

class ItemPicture;

/// One of two items of the same name: its picture, size and date.
class ItemCard : public LinuxDesktop::Card {
    Q_OBJECT

public:
    explicit ItemCard(QWidget* parent = nullptr);

    /// `which` says which of the two it is.
    void show(const QString& which, const Conflict::Side& side);
    using QWidget::show;

private:
    ItemPicture* m_picture;
    QLabel* m_which;
    QLabel* m_facts;
};

} // namespace MenuExtension::Transfers
