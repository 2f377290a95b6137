#include "ShownChooser.h"

#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

QDialog* shownDialog()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == "fileChooser" && widget->isVisible())
            return qobject_cast<QDialog*>(widget);
    }
    return nullptr;
}

} // namespace

QStringList ShownChooser::names() const
{
    QStringList names;
    for (int row = 0; row < list().model()->rowCount(); ++row)
        names.push_back(list().model()->index(row, 0).data().toString());
    return names;
}

QString ShownChooser::selected() const
{
    const QModelIndexList rows = list().selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.front().data().toString();
}

QModelIndex ShownChooser::rowNamed(const QString& name) const
{
    const qsizetype row = names().indexOf(name);
    return row < 0 ? QModelIndex() : list().model()->index(static_cast<int>(row), 0);
}

void ShownChooser::click(const QString& name) const
{
    const QModelIndex row = rowNamed(name);
    ASSERT_TRUE(row.isValid()) << name.toStdString();
    list().scrollTo(row);
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(row).center());
}

void ShownChooser::doubleClick(const QString& name) const
{
    click(name);
    const QPoint at = list().visualRect(rowNamed(name)).center();
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, at);
}

void ShownChooser::goToPlace(const QString& title) const
{
    const QList<QListWidgetItem*> found = places().findItems(title, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << title.toStdString();
    places().scrollToItem(found.front());
    QTest::mouseClick(places().viewport(), Qt::LeftButton, {}, places().visualItemRect(found.front()).center());
}

void ShownChooser::key(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_dialog.windowHandle(), key, modifiers);
}

void ShownChooser::type(const QString& text) const
{
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, QString(c), Qt::NoModifier);
}

void ShownChooser::typePath(const QString& path) const
{
    // Off screen, a list of completions stays the active window when it has closed.
    m_dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_dialog));
    key(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(pathField().hasFocus());
    type(path);
}

int runChooser(NS::OpenPanel& panel, const std::function<void(const ShownChooser&)>& steps)
{
    QTimer::singleShot(0, [&steps] {
        QDialog* dialog = shownDialog();
        ASSERT_TRUE(dialog);
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        steps(ShownChooser(*dialog));
        if (QDialog* left = shownDialog()) {
            ADD_FAILURE() << "the steps did not end the panel";
            left->reject();
        }
    });
    return panel.runModal();
}
