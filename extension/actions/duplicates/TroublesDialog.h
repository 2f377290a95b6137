#pragma once

#include <QDialog>
#include <QStringList>

namespace MenuExtension::Duplicates {

/// Lists what was left out, and why.
class TroublesDialog : public QDialog {
    Q_OBJECT

public:
    explicit TroublesDialog(const QStringList& sentences, QWidget* parent = nullptr);
};

} // namespace MenuExtension::Duplicates
