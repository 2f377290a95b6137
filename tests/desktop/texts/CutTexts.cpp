// Tells of texts that are cut on the screen, from within the program that shows them.
#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QGenericPlugin>
#include <QHeaderView>
#include <QLabel>
#include <QLayoutItem>
#include <QLineEdit>
#include <QPointer>
#include <QSaveFile>
#include <QStyleOptionFrame>
#include <QTimer>
#include <QToolButton>

#include <chrono>

namespace {

using namespace std::chrono_literals;

int widthOf(const QWidget& widget, const QString& text)
{
    int width = 0;
    for (const QString& line : text.split(u'\n'))
        width = std::max(width, widget.fontMetrics().horizontalAdvance(line));
    return width;
}

/// Where layouts take a control to be: without the room for its ring.
QRect bodyOf(const QWidget& widget)
{
    return QWidgetItem(const_cast<QWidget*>(&widget)).geometry().translated(-widget.pos());
}

/// Whether a window's edge, or that of a part that does not scroll sideways, lies across the widget.
bool isCutByParent(const QWidget& widget)
{
    for (const QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        const auto* area = qobject_cast<const QAbstractScrollArea*>(parent);
        if (area && area->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff)
            return false;
        const QRect body = bodyOf(widget).translated(widget.mapTo(parent, QPoint()));
        if (body.left() < 0 || body.right() >= parent->width())
            return true;
        if (parent->isWindow())
            break;
    }
    return false;
}

class Findings {
public:
    void look(QWidget& window)
    {
        lookAt(window);
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->window() == &window)
                lookAt(*widget);
        }
    }

    [[nodiscard]] const QStringList& lines() const { return m_lines; }

private:
    void lookAt(QWidget& widget)
    {
        if (const auto* label = qobject_cast<QLabel*>(&widget))
            lookAtLabel(*label);
        else if (const auto* button = qobject_cast<QAbstractButton*>(&widget))
            lookAtButton(*button);
        else if (const auto* field = qobject_cast<QLineEdit*>(&widget))
            lookAtField(*field);
        else if (const auto* box = qobject_cast<QComboBox*>(&widget))
            expect(widget, box->currentText(), box->minimumSizeHint());
        else if (const auto* header = qobject_cast<QHeaderView*>(&widget))
            lookAtHeader(*header);
    }

    void lookAtLabel(const QLabel& label)
    {
        if (label.text().isEmpty())
            return;
        if (label.wordWrap())
            expect(label, label.text(), {0, label.heightForWidth(label.width())});
        else
            expect(label, label.text(),
                   {widthOf(label, label.text()) + label.width() - label.contentsRect().width(), 0});
    }

    void lookAtButton(const QAbstractButton& button)
    {
        if (!button.text().isEmpty())
            expect(button, button.text(), button.minimumSizeHint() - button.size() + bodyOf(button).size());
    }

    void lookAtField(const QLineEdit& field)
    {
        constexpr int aroundText = 8;
        if (field.text().isEmpty() && field.isEnabled())
            expect(field, field.placeholderText(), {widthOf(field, field.placeholderText()) + aroundText, 0});
    }

    void lookAtHeader(const QHeaderView& header)
    {
        for (int section = 0; section < header.count(); ++section) {
            const QString title = header.model()->headerData(section, header.orientation()).toString();
            if (!header.isSectionHidden(section) && widthOf(header, title) > header.sectionSize(section))
                add(header, title, "is cut");
        }
    }

    void expect(const QWidget& widget, const QString& text, QSize needed)
    {
        if (widget.width() < needed.width() || widget.height() < needed.height())
            add(widget, text,
                QStringLiteral("has %1×%2 and needs %3×%4")
                    .arg(widget.width())
                    .arg(widget.height())
                    .arg(needed.width())
                    .arg(needed.height()));
        else if (!text.isEmpty() && isCutByParent(widget))
            add(widget, text, QStringLiteral("is cut by the window"));
    }

    void add(const QWidget& widget, QString text, const QString& what)
    {
        m_lines.append(QStringLiteral("%1 %2 “%3” %4")
                           .arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName(),
                                text.replace(u'\n', u' '), what));
    }

    QStringList m_lines;
};

/// Writes what is cut at the moment to the file that the environment names, again and again. Its first line counts.
class Reporter : public QObject {
public:
    Reporter()
    {
        m_timer.callOnTimeout(this, &Reporter::report);
        m_timer.start(100ms);
    }

private:
    void report()
    {
        Findings findings;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->windowType() != Qt::ToolTip)
                findings.look(*window);
        }
        QSaveFile file(qEnvironmentVariable("ORVIK_CUT_TEXTS"));
        if (!file.open(QIODevice::WriteOnly))
            return;
        file.write(QByteArray::number(++m_count) + '\n' + findings.lines().join(u'\n').toUtf8());
        file.commit();
    }

    QTimer m_timer;
    int m_count = 0;
};

class Plugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "cut-texts.json")

public:
    QObject* create(const QString&, const QString&) override { return new Reporter; }
};

} // namespace

#include "CutTexts.moc"
