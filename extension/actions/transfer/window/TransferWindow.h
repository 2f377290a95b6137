#pragma once

#include "extension/actions/transfer/Conflict.h"
#include "extension/actions/window/ProgressRow.h"

#include <QDeadlineTimer>
#include <QStringList>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QScrollArea;
class QStackedLayout;

namespace MenuExtension::Transfers {

class ItemCard;
struct Progress;

/// What a person sees of a transfer: how far it has come, a question, or how it ended. Main thread.
class TransferWindow : public QWidget {
    Q_OBJECT

public:
    TransferWindow();

    /// `what` is being done: "Moving 40 items to “Photos”".
    void showProgress(const QString& what);
    void advance(const Progress& progress);
    /// Asks what becomes of an item whose name is taken.
    void ask(const Conflict& conflict);
    /// Says what cannot be done, and asks whether the rest is.
    void askToGoOn(const QStringList& problems);
    /// Says how it ended.
    void showEnd(const QString& words, const QStringList& problems, bool canBeUndone, bool canBeShown);

signals:
    void decided(const Decision& decision);
    void wentOn();
    /// What is not done is to be left: the button, Escape, or the window was closed.
    void cancelled();
    void undoAsked();
    void showAsked();
    /// The window was closed at the end.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeProgressPage();
    QWidget* makeConflictPage();
    QWidget* makeWordsPage();
    void showDetails(const QStringList& problems);
    void decide(Resolution resolution);
    void turnTo(QWidget* page);
    void open(QWidget* page, QWidget* focused);

    QStackedLayout* m_pages;
    QWidget* m_progressPage;
    QWidget* m_conflictPage;
    QWidget* m_wordsPage;

    QLabel* m_what;
    ProgressRow* m_progress;

    QLabel* m_question;
    ItemCard* m_existing;
    ItemCard* m_coming;
    QCheckBox* m_forAll;
    QPushButton* m_skip;
    QPushButton* m_keepBoth;
    QPushButton* m_replace;
    QPushButton* m_merge;

    QLabel* m_words;
    QLabel* m_details;
    QScrollArea* m_detailsArea;
    QPushButton* m_goOn;
    QPushButton* m_undo;
    QPushButton* m_showItem;
    QPushButton* m_close;
    bool m_isAtEnd = false;
    /// Until then nobody can have seen what the page in front asks.
    QDeadlineTimer m_unseen;
};

} // namespace MenuExtension::Transfers
