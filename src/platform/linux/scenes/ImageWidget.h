#pragma once

#include "platform/ImageView.h"

#include <QString>
#include <QWidget>

namespace LinuxDesktop {

class ImageStore;

/// A picture of a scene, drawn when it is painted. Main thread.
class ImageWidget : public QWidget, public NS::ImageView {
    Q_OBJECT
    /// The picture that the scene itself gives, by its name.
    Q_PROPERTY(QString imageName MEMBER m_name)

public:
    explicit ImageWidget(QWidget* parent = nullptr);

    /// Where the pictures are drawn; must outlive the widget.
    void setStore(ImageStore& store) { m_store = &store; }
    void setImage(const std::optional<NS::Image>& image) override;
    [[nodiscard]] bool shows(const NS::Image& image) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ImageStore* m_store = nullptr;
    QString m_name;
};

} // namespace LinuxDesktop
