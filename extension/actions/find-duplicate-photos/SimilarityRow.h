#pragma once

#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class QSlider;

namespace MenuExtension::SimilarPhotos {

/// Lets a person say how much alike photos have to be. Main thread.
class SimilarityRow : public QWidget {
    Q_OBJECT

public:
    /// `changed` hears how much they may differ, at once, and no more often than can be followed.
    SimilarityRow(float limit, std::function<void(float limit)> changed, QWidget* parent = nullptr);

private:
    void showValue();

    const std::function<void(float limit)> m_changed;
    QSlider* m_slider;
    QLabel* m_value;
    QTimer m_telling;
};

} // namespace MenuExtension::SimilarPhotos
