#pragma once

#include "Edits.h"
#include "Merged.h"
#include "SavePhoto.h"

#include <QPointer>
#include <QWidget>

#include <map>
#include <optional>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

namespace MenuExtension::Exif {

/// The form in which a person changes photos. What is not touched is not changed.
class EditForm : public QWidget {
    Q_OBJECT

public:
    explicit EditForm(QWidget* parent = nullptr);

    /// What the photos say; what was typed and not saved is forgotten.
    void showFields(const Merged& merged);
    /// While something runs nothing can be typed; after that the keyboard is where it was, unless the person has
    /// taken it elsewhere.
    void setBusy(bool busy);

    [[nodiscard]] SaveOptions options() const;
    /// Whether there is something to save that is not being saved.
    [[nodiscard]] bool isChanged() const;

signals:
    void saved(const MenuExtension::Exif::Edits& edits);
    /// With what was typed.
    void removalAsked(const MenuExtension::Exif::Edits& edits);

private:
    void addLine(QFormLayout& form, Field field, const QString& name);
    void addShift(QFormLayout& form);
    void addOrientation(QFormLayout& form);
    void addPlace(QFormLayout& form);
    void save();
    void askForRemoval();
    /// As it is written, and no place for what is none.
    [[nodiscard]] Edits written() const;
    /// Nothing where something typed is not to be understood; then it is said.
    [[nodiscard]] std::optional<Edits> edits();
    void refuse(QWidget* typed, const QString& why);

    std::map<Field, QLineEdit*> m_lines;
    QPlainTextEdit* m_description;
    std::vector<std::pair<QSpinBox*, std::chrono::seconds>> m_shift;
    QComboBox* m_orientation;
    QLineEdit* m_place;
    QCheckBox* m_keepsOriginal;
    QCheckBox* m_keepsTime;
    QLabel* m_refusal;
    QPushButton* m_remove;
    QPushButton* m_save;
    QWidget* m_fields;
    /// What had the keyboard before it was busy.
    QWidget* m_focused = nullptr;
    /// Where the toolkit put it then.
    QPointer<QWidget> m_focusedWhileBusy;
};

} // namespace MenuExtension::Exif
