#pragma once

#include "extension/actions/transfer/Conflict.h"

#include <QLabel>

#include <memory>

class QProcess;
class QTemporaryDir;

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
    void makeImage(const Conflict::Side& side);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QProcess> m_maker;
};

} // namespace MenuExtension::Transfers
