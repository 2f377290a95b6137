#pragma once

#include <QWidget>

namespace LinuxDesktop {

/// The number of a step, or a tick once the step is done: when the button that does it is disabled. Main thread.
class StepBadge : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int number MEMBER m_number)
    /// The button's name. It lies in the same scene.
    Q_PROPERTY(QString button READ button WRITE setButton)

public:
    explicit StepBadge(QWidget* parent = nullptr);

    [[nodiscard]] const QString& button() const { return m_buttonName; }
    void setButton(const QString& name) { m_buttonName = name; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void tellState();

    int m_number = 0;
    QString m_buttonName;
    QWidget* m_button = nullptr;
};

} // namespace LinuxDesktop
