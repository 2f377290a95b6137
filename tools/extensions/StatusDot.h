#pragma once

#include <QWidget>

namespace ExtensionsTool {

/// A small dot whose colour goes with the words beside it. It says nothing that they do not.
class StatusDot : public QWidget {
    Q_OBJECT

public:
    enum class Tone { Quiet, Good, Attention };

    explicit StatusDot(QWidget* parent = nullptr);

    void setTone(Tone tone);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Tone m_tone = Tone::Quiet;
};

} // namespace ExtensionsTool
