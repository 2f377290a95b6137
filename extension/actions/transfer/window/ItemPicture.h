#pragma once

#include "extension/actions/transfer/Conflict.h"
#include "extension/actions/window/PictureReading.h"

#include <QLabel>

#include <memory>
#include <optional>

class QSocketNotifier;

namespace MenuExtension::Transfers {

/// What an item looks like: the icon of its kind, or what is in a picture. Main thread.
class ItemPicture : public QLabel {
    Q_OBJECT

public:
    explicit ItemPicture(QWidget* parent = nullptr);
    ~ItemPicture() override;

    void show(const Conflict::Side& side);
    using QWidget::show;

private:
    void showImage(const QImage& image);
    void read(const Conflict::Side& side);

    std::optional<PictureReading> m_reading;
    std::unique_ptr<QSocketNotifier> m_ended;
};

} // namespace MenuExtension::Transfers
