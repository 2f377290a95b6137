#pragma once

#include "ResizePhoto.h"

#include <QObject>

#include <optional>
#include <string>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace MenuExtension::Resizing {

/// The rows of a form in which a person says where the resized photos go.
class TargetRows : public QObject {
    Q_OBJECT

public:
    /// `folder` is where the choice of another begins.
    TargetRows(QFormLayout& form, std::string folder, QWidget* parent);

    /// Nothing where the choice is not whole; complaint() says why then, and the keyboard is at what lacks.
    [[nodiscard]] std::optional<Target> target();
    [[nodiscard]] QString complaint() const { return m_complaint; }
    /// What a photo would be called, for the person to see.
    void showExample(const std::string& photo, const Size& size);

signals:
    void confirmed();

private:
    void chooseFolder();
    void showWhatApplies();
    [[nodiscard]] Target::Kind kind() const;

    QWidget* m_parent;
    QFormLayout& m_form;
    QComboBox* m_where;
    QWidget* m_folderRow;
    QPushButton* m_choose;
    QLabel* m_folderName;
    QWidget* m_patternRow;
    QLineEdit* m_pattern;
    QLabel* m_example;
    std::string m_start;
    std::string m_folder;
    std::string m_photo;
    Size m_size;
    QString m_complaint;
};

} // namespace MenuExtension::Resizing
