#pragma once

#include "extension/actions/duplicates/Groups.h"
#include "extension/actions/duplicates/Presentation.h"

#include <QAbstractListModel>

#include <vector>

namespace MenuExtension::Duplicates {

/// The groups that are on view, a row each; more of them as somebody scrolls. Main thread.
class GroupListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        /// How many items, and of what size.
        ExplanationRole = Qt::UserRole,
        /// What could be saved.
        SavingRole,
        /// How many items are chosen; an empty text for none.
        ChosenRole,
    };

    /// Both must outlive it.
    GroupListModel(const Groups& groups, const Presentation& presentation, QObject* parent);

    /// All that are to be shown, the first first.
    void setGroups(std::vector<GroupNumber> groups);
    [[nodiscard]] const std::vector<GroupNumber>& groups() const { return m_shown; }
    /// Something about them is other than before.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    [[nodiscard]] QString explanationOf(GroupNumber group) const;
    [[nodiscard]] QString chosenText(GroupNumber group) const;

    const Groups& m_groups;
    const Presentation& m_presentation;
    std::vector<GroupNumber> m_shown;
    int m_rows = 0;
};

} // namespace MenuExtension::Duplicates
