#pragma once

#include <QWidget>

namespace LinuxDesktop {

class ImageWidget;
class Label;
class PushButton;

/// What a screen shows in the place of a list without rows: a picture, what is the matter, what to do about it, and
/// the button that does it. Main thread.
class EmptyState : public QWidget {
    Q_OBJECT

public:
    explicit EmptyState(QWidget* parent = nullptr);

    void setImageName(const QString& name);
    void setHeading(const QString& text);
    void setSentence(const QString& text);
    /// Where there is nothing to press, neither of these is called.
    void setButtonText(const QString& text);
    void setButtonAction(const QString& selector);

private:
    PushButton& button();

    ImageWidget* m_image;
    Label* m_heading;
    Label* m_sentence;
    PushButton* m_button = nullptr;
};

} // namespace LinuxDesktop
