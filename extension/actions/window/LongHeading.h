#pragma once

#include <QLabel>

class QTextLayout;

namespace MenuExtension {

/// A heading with the names of items, in as many lines as it needs: a name that no line can hold is broken anywhere,
/// and any width will do. Main thread.
class LongHeading : public QLabel {
    Q_OBJECT

public:
    explicit LongHeading(QWidget* parent = nullptr);

    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Gives the height of all lines.
    int layOut(QTextLayout& layout, int width) const;
};

} // namespace MenuExtension
