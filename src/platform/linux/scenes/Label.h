#pragma once

#include "platform/TextField.h"

#include <QLabel>

namespace LinuxDesktop {

/// A text of a scene, shown as it is: nothing in it is taken for markup. One on a single line is cut in its middle
/// where the room is short, and then the whole of it is its tool tip. Main thread.
class Label : public QLabel, public NS::TextField {
    Q_OBJECT
    /// Whether the text is a file's name or path: one line, with a sign in the place of what cannot be shown.
    Q_PROPERTY(bool fileName MEMBER m_isFileName)
    /// "title", "heading" or "secondary"; any other is plain text.
    Q_PROPERTY(QString textStyle READ textStyle WRITE setTextStyle)
    /// What it is about, by the name of a widget of the same scene, which assistive programs are told of it.
    Q_PROPERTY(QString subject MEMBER m_subject)
    /// Whether a change is said to those who do not see it.
    Q_PROPERTY(bool announced MEMBER m_isAnnounced)

public:
    explicit Label(QWidget* parent = nullptr);

    void setStringValue(std::string_view text) override;
    void setToolTip(std::string_view text) override;

    /// The tool tip that was set, as it is shown.
    [[nodiscard]] const QString& givenToolTip() const { return m_toolTip; }
    /// Shows of a path that it is given the last name alone from now on.
    void setShowsLastName(bool showsLastName) { m_showsLastName = showsLastName; }
    [[nodiscard]] const QString& givenText() const { return m_givenText; }
    /// What the text is a part of: the tool tip where none is set.
    void setWholeText(const QString& text) { m_wholeText = text; }

    [[nodiscard]] const QString& textStyle() const { return m_textStyle; }
    void setTextStyle(const QString& style);

    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void textChanged(const QString& text);
    void toolTipChanged(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

    /// Whether the text has more than its room.
    [[nodiscard]] virtual bool isCut() const;
    virtual void paintCut(QPainter& painter);

private:
    QString m_textStyle;
    QString m_toolTip;
    QString m_subject;
    bool m_isAnnounced = false;
    QString m_wholeText;
    QString m_givenText;
    bool m_isFileName = false;
    bool m_showsLastName = false;
};

} // namespace LinuxDesktop
