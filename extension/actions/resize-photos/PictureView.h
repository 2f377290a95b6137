#pragma once

#include <QFrame>
#include <QImage>

namespace MenuExtension::Resizing {

/// Shows a picture as large as there is room.
class PictureView : public QFrame {
public:
    explicit PictureView(QWidget* parent = nullptr);

    void show(const QImage& picture);
    /// The longest side that it has room for, in pixels of the screen.
    [[nodiscard]] int room() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_picture;
};

} // namespace MenuExtension::Resizing
