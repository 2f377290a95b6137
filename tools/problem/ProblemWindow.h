#pragma once

#include "problem/StoppedPanel.h"
#include "settings/Repair.h"

#include <QDialog>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

#include <vector>

namespace ProblemTool {

/// Tells why the panel has stopped, and offers what mends it. Main thread.
class ProblemWindow : public QDialog {
    Q_OBJECT

public:
    /// `panel` must outlive the window.
    ProblemWindow(const StoppedPanel& panel, const QIcon& icon);

private:
    void layOut(QLabel* picture, const std::vector<QLabel*>& texts, const std::vector<QPushButton*>& buttons);
    void repair();
    void openAgain(const QString& tab);
    void allow(bool remedies);
    void tell(const QString& trouble);

    const StoppedPanel& m_panel;
    const std::vector<Mend> m_mends;
    QLabel* m_trouble = nullptr;
    std::vector<QPushButton*> m_remedies;
};

} // namespace ProblemTool
