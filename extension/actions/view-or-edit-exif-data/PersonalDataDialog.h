#pragma once

#include "Merged.h"

#include <QDialog>

namespace MenuExtension::Exif {

/// Says what of photos goes with "Remove Location and Personal Data", and asks whether it may.
class PersonalDataDialog : public QDialog {
    Q_OBJECT

public:
    explicit PersonalDataDialog(const Merged& merged, QWidget* parent = nullptr);
};

} // namespace MenuExtension::Exif
