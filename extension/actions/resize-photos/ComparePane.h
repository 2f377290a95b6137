#pragma once

#include "ResizeJob.h"

#include <QWidget>

class QLabel;

namespace MenuExtension::Resizing {

class PictureView;

/// A photo as it is and as it will be, side by side, with its sizes.
class ComparePane : public QWidget {
    Q_OBJECT

public:
    explicit ComparePane(QWidget* parent = nullptr);

    void showBefore(const QString& name, const Result& result);
    void showAfter(const Result& result);
    /// What will be is being found out.
    void showThatItIsWorkedOn();
    /// The longest side that there is room for, in pixels of the screen.
    [[nodiscard]] std::uint32_t room() const;

signals:
    void roomChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Side {
        PictureView* picture;
        QLabel* words;
    };
    [[nodiscard]] Side makeSide(const QString& title);
    void show(const Side& side, const Pixels& pixels, const QString& words);
    void refuse(const Side& side, const QString& words);
    void say(const Side& side, const QString& words);

    Side m_before;
    Side m_after;
    QString m_name;
};

} // namespace MenuExtension::Resizing
