#pragma once

#include "platform/TableView.h"
#include "platform/linux/scenes/TypeAhead.h"

#include <QAbstractScrollArea>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace LinuxDesktop {

class RowWidget;

/// A list of a scene. It has row views for the rows in sight alone and uses those that leave sight again, so that
/// a long list costs what a short one does. One row is current: Tab reaches its controls, the arrow keys, Home,
/// End, the page keys and the first letters of a title move it. Where no row can be selected, a click on a row is one
/// on its checkbox. The list is as high as its rows where there is room, and a sheet with round corners. Main thread.
class RowList : public QAbstractScrollArea, public NS::TableView {
    Q_OBJECT
    /// The name of the widget that shows in the place of an empty list, and of those that show with its rows only.
    /// They lie beside the list.
    Q_PROPERTY(QString emptyState MEMBER m_emptyState)
    Q_PROPERTY(QString hiddenWhenEmpty MEMBER m_hiddenWhenEmpty)
    /// Whether the rows are folders: each shows its name, its path below, and that it is not there.
    Q_PROPERTY(bool showsFolders MEMBER m_showsFolders)
    /// Whether a row can be selected: it is whenever the user comes to it, by pointer or by keyboard.
    Q_PROPERTY(bool selectable MEMBER m_selectable)

public:
    /// Makes a row for an identifier; null where there is no such scene.
    using RowMaker = std::function<std::unique_ptr<RowWidget>(std::string_view identifier)>;

    explicit RowList(QWidget* parent = nullptr);
    ~RowList() override;

    void setRowMaker(RowMaker maker) { m_makeRow = std::move(maker); }
    /// Both must outlive the list.
    void setDataSource(NS::TableViewDataSource* source) { m_dataSource = source; }
    void setDelegate(NS::TableViewDelegate* delegate) { m_delegate = delegate; }

    void reloadData() override;
    std::ptrdiff_t selectedRow() const override { return m_selectedRow; }
    NS::TableCellView* makeViewWithIdentifier_owner(std::string_view identifier, NS::SceneObject* owner) override;

    /// The rows in sight, from the top.
    [[nodiscard]] QList<RowWidget*> rowsInSight() const;

    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// Another row is selected, or none.
    void selectionChanged(bool isSelected);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum class Refill { NewRows, AllRows };

    void layOutRows(Refill refill);
    void retireRow(int row);
    void makeSpareRow(int last);
    void fillRow(int row);
    RowWidget* newRow(std::string_view identifier);
    void updateScrollRange();
    void fitHeight();
    void showWhatThereIs();
    void tellAdded();
    void setCurrentRow(int row);
    void selectRow(int row);
    void setSelectedRow(int row);
    [[nodiscard]] bool selects(const QFocusEvent& event) const;
    void comeToRow(int row, const QEvent& event);
    bool handlePointer(RowWidget& row, const QMouseEvent& event);
    void showState(RowWidget& widget, int row) const;
    void moveTo(int row, qsizetype control, Qt::FocusReason reason = Qt::TabFocusReason);
    bool handleKey(const QKeyEvent& pressed, qsizetype control);
    [[nodiscard]] std::optional<int> rowThatKeyLeadsTo(const QKeyEvent& pressed);
    [[nodiscard]] QString typedTitleOf(int row);
    [[nodiscard]] int rowHeight();
    [[nodiscard]] int rowOf(const RowWidget& widget) const;

    RowMaker m_makeRow;
    NS::TableViewDataSource* m_dataSource = nullptr;
    NS::TableViewDelegate* m_delegate = nullptr;

    int m_rowCount = 0;
    bool m_loaded = false;
    bool m_wasInSight = false;
    /// Reloaded while out of sight: every row is to be filled anew when it comes into sight.
    bool m_stale = false;
    int m_rowHeight = 0;
    int m_currentRow = 0;
    bool m_selectable = false;
    int m_selectedRow = -1;
    /// The one that the pointer's button went down on; -1 for none.
    int m_pressedRow = -1;
    /// The first of those that were added and have not been seen yet; -1 for none.
    int m_firstNewRow = -1;
    TypeAhead m_typeAhead;
    std::map<int, RowWidget*> m_rows;
    std::vector<RowWidget*> m_spareRows;
    /// Row views handed out while a row is being filled.
    std::vector<RowWidget*> m_handedOut;
    QString m_emptyState;
    QString m_hiddenWhenEmpty;
    bool m_showsFolders = false;
    /// What is to be said of the row that was added last.
    QString m_added;
};

} // namespace LinuxDesktop
