#include "extension/actions/window/WindowParts.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace MenuExtension {

namespace {

QString toolTipOf(QLabel& label)
{
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent event(QEvent::ToolTip, {1, 1}, label.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&label, &event);
    return QToolTip::text();
}

TEST(NameNote, ShowsTheBeginningAndTheEndOfALongName)
{
    const QString name = "Holiday <b>in</b> the mountains with everybody-1920x1280.jpg";
    QWidget parent;
    QLabel* const note = makeNameNote(&parent);
    QLabel* const expected = makeNote(&parent);
    parent.resize(1000, 40);
    parent.show();
    for (QLabel* label : {note, expected})
        label->resize(200, 20);
    note->setText(name);
    expected->setText(note->fontMetrics().elidedText(name, Qt::ElideMiddle, 200));
    EXPECT_EQ(note->grab().toImage(), expected->grab().toImage());
    EXPECT_EQ(note->text(), name) << "which is what a reader of the screen says";
    EXPECT_EQ(toolTipOf(*note), "<qt>" + name.toHtmlEscaped() + "</qt>");

    for (QLabel* label : {note, expected})
        label->resize(900, 20);
    expected->setText(name);
    EXPECT_EQ(note->grab().toImage(), expected->grab().toImage());
    EXPECT_EQ(toolTipOf(*note), QString());
}

} // namespace

} // namespace MenuExtension
