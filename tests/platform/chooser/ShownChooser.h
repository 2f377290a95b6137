#pragma once

#include "platform/linux/chooser/FileChooser.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <functional>
#include <ostream>
#include <string>

/// How GoogleTest prints a text.
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

/// A chooser's window while it is shown, and what a user does in it.
class ShownChooser {
public:
    explicit ShownChooser(QDialog& dialog) : m_dialog(dialog) {}

    [[nodiscard]] QDialog& dialog() const { return m_dialog; }
    [[nodiscard]] QTreeView& list() const { return part<QTreeView>("fileList"); }
    [[nodiscard]] QPushButton& confirmButton() const { return part<QPushButton>("confirmButton"); }
    [[nodiscard]] QPushButton& cancelButton() const { return part<QPushButton>("cancelButton"); }
    [[nodiscard]] QLineEdit& pathField() const { return part<QLineEdit>("pathField"); }
    [[nodiscard]] QListWidget& places() const { return part<QListWidget>("placesList"); }
    [[nodiscard]] QLabel& message() const { return part<QLabel>("messageLabel"); }
    [[nodiscard]] QLabel& notice() const { return part<QLabel>("noticeLabel"); }
    [[nodiscard]] QLabel& listWords() const { return part<QLabel>("listWords"); }
    [[nodiscard]] QToolButton& tool(const char* name) const { return part<QToolButton>(name); }

    /// The names as shown, from the top.
    [[nodiscard]] QStringList names() const;
    /// The selected row's name as shown; null when nothing is selected.
    [[nodiscard]] QString selected() const;
    /// The first cell of the row that shows this name; invalid when none does.
    [[nodiscard]] QModelIndex rowNamed(const QString& name) const;

    void click(const QString& name) const;
    void doubleClick(const QString& name) const;
    /// A click on the place of that title.
    void goToPlace(const QString& title) const;
    void press(QAbstractButton& button) const { QTest::mouseClick(&button, Qt::LeftButton); }
    /// A key, to where the keyboard focus is.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void type(const QString& text) const;
    /// Takes the path field by its shortcut and replaces its text.
    void typePath(const QString& path) const;
    void cancel() const { m_dialog.reject(); }

private:
    template<class T>
    T& part(const char* name) const
    {
        auto* widget = m_dialog.findChild<T*>(QString::fromLatin1(name));
        if (!widget)
            qFatal("the chooser has no %s", name);
        return *widget;
    }

    QDialog& m_dialog;
};

/// Runs the panel and, once its window shows, the user's steps, which must end it. Returns runModal's answer.
int runChooser(NS::OpenPanel& panel, const std::function<void(const ShownChooser&)>& steps);
