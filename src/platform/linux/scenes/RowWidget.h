#pragma once

#include "platform/TableCellView.h"

#include <QAbstractButton>
#include <QList>
#include <QWidget>

#include <memory>
#include <optional>

namespace LinuxDesktop {

class Label;
class Movement;

/// A row of a list: the widgets of the row's scene, and the cell that the list's screen fills. Main thread.
class RowWidget : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool current READ isCurrent)

public:
    explicit RowWidget(QWidget* parent = nullptr);
    ~RowWidget() override;

    void setCell(std::unique_ptr<NS::TableCellView> cell) { m_cell = std::move(cell); }
    [[nodiscard]] NS::TableCellView* cell() const { return m_cell.get(); }

    /// Call once the row's widgets exist and those that its list does not use are hidden: finds the controls, and
    /// gives each the row's title as its accessible name from now on, after the text that it shows, and the title's
    /// tool tip as its description.
    void prepare();
    /// What the keyboard stops at in the row, in its order: its controls, and before them the row itself where it has
    /// no checkbox, so that nobody who comes to it is on a button that does something at once.
    [[nodiscard]] const QList<QWidget*>& stops() const { return m_stops; }
    /// What switches the row on and off; null where nothing does.
    [[nodiscard]] QAbstractButton* checkBox() const { return m_checkBox; }

    /// Call when the row has been filled in a list of folders: shows the folder's name, and its path below.
    void showFolder();
    /// Nothing divides the last row from what follows.
    void setLast(bool last);

    /// The row that the keyboard is on: its stops alone are reached with Tab.
    void setCurrent(bool current);
    [[nodiscard]] bool isCurrent() const { return m_current; }

    /// Call when the row has come into a list that is on view: it comes into sight little by little.
    void appear();
    /// Whether the pointer is held down on the row.
    void setPressed(bool pressed);

    /// Nothing in a list whose rows cannot be selected.
    void setSelected(std::optional<bool> selected);
    [[nodiscard]] std::optional<bool> isSelected() const { return m_selected; }

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showMissing(bool missing);
    void colorMissing();
    void showAppearing();
    void drawState(QPainter& painter) const;
    void drawStrongState(QPainter& painter) const;
    void fill(QPainter& painter, int width, const QColor& color) const;

    std::unique_ptr<NS::TableCellView> m_cell;
    QList<QWidget*> m_stops;
    QAbstractButton* m_checkBox = nullptr;
    Label* m_title = nullptr;
    bool m_isLast = false;
    bool m_current = false;
    bool m_pressed = false;
    std::unique_ptr<Movement> m_appearing;
    std::optional<bool> m_selected;
};

} // namespace LinuxDesktop
