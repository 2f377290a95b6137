#include "EditForm.h"

#include "TagView.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace MenuExtension::Exif {

namespace {

/// In the order of the Exif standard's numbers, from 1.
constexpr std::array orientationNames{
    QT_TRANSLATE_NOOP("EditForm", "As it is stored"),
    QT_TRANSLATE_NOOP("EditForm", "Mirrored"),
    QT_TRANSLATE_NOOP("EditForm", "Upside down"),
    QT_TRANSLATE_NOOP("EditForm", "Upside down and mirrored"),
    QT_TRANSLATE_NOOP("EditForm", "Turned left and mirrored"),
    QT_TRANSLATE_NOOP("EditForm", "Turned right"),
    QT_TRANSLATE_NOOP("EditForm", "Turned right and mirrored"),
    QT_TRANSLATE_NOOP("EditForm", "Turned left"),
};

/// Dates as people write them here.
QString shownDate(const std::string& text)
{
    const auto time = photoTime(text);
    if (!time)
        return QString::fromStdString(text);
    QString shown = QString::fromStdString(textOf(*time));
    shown[4] = u'-';
    shown[7] = u'-';
    return shown;
}

/// The property of a field that has what was read.
constexpr const char* stored = "stored";

void setStored(QWidget& field, const QString& text)
{
    field.setProperty(stored, text.trimmed());
}

/// Whether it says something else than what is stored. For values that differ that is nothing.
bool saysElse(const QWidget& field, const QString& text)
{
    const QVariant before = field.property(stored);
    return !before.isValid() || text.trimmed() != before.toString();
}

QHBoxLayout* makeRow()
{
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    return row;
}

} // namespace

EditForm::EditForm(QWidget* parent)
    : QWidget(parent), m_description(new QPlainTextEdit), m_orientation(new QComboBox), m_place(new QLineEdit),
      m_keepsOriginal(new QCheckBox(tr("Keep the original file beside it, with “_original” after its name"))),
      m_keepsTime(new QCheckBox(tr("Keep the file's date of change"))), m_refusal(makeParagraph(this)),
      m_remove(makeButton(tr("Remove Location and Personal Data…"), this)),
      m_save(makeButton(tr("Save"), this, true)), m_fields(new QWidget)
{
    auto* const form = new QFormLayout(m_fields);
    form->setContentsMargins(12, 12, 12, 12);
    form->setSpacing(10);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    addLine(*form, Field::Title, tr("Title"));
    m_description->setTabChangesFocus(true);
    m_description->setAccessibleName(tr("Description"));
    m_description->setFixedHeight(4 * fontMetrics().lineSpacing());
    form->addRow(tr("Description"), m_description);
    addLine(*form, Field::Author, tr("Author"));
    addLine(*form, Field::Copyright, tr("Copyright"));
    addLine(*form, Field::Date, tr("Date taken"));
    addShift(*form);
    addOrientation(*form);
    addPlace(*form);
    form->addRow(QString(), m_keepsOriginal);
    form->addRow(QString(), m_keepsTime);

    auto* const area = new QScrollArea(this);
    area->setWidget(m_fields);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    // The page's own shows.
    area->viewport()->setAutoFillBackground(false);
    m_fields->setAutoFillBackground(false);
    m_refusal->hide();

    QHBoxLayout* const buttons = makeRow();
    buttons->addWidget(m_remove);
    buttons->addStretch(1);
    buttons->addWidget(m_save);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 0, 12, 12);
    layout->setSpacing(10);
    layout->addWidget(area, 1);
    layout->addWidget(m_refusal);
    layout->addLayout(buttons);
    readInOrder({area, m_refusal, m_remove, m_save});
    setTabOrder(m_keepsTime, m_remove);
    setTabOrder(m_remove, m_save);

    connect(m_save, &QPushButton::clicked, this, &EditForm::save);
    connect(m_remove, &QPushButton::clicked, this, &EditForm::askForRemoval);
}

void EditForm::addLine(QFormLayout& form, Field field, const QString& name)
{
    auto* const line = new QLineEdit;
    line->setAccessibleName(name);
    m_lines[field] = line;
    form.addRow(name, line);
    connect(line, &QLineEdit::returnPressed, this, &EditForm::save);
}

void EditForm::addShift(QFormLayout& form)
{
    using namespace std::chrono_literals;
    struct Unit {
        QString name;
        QString suffix;
        std::chrono::seconds length;
    };
    const std::array units{Unit{tr("Move date by days"), tr(" d"), 24h}, Unit{tr("Move date by hours"), tr(" h"), 1h},
                           Unit{tr("Move date by minutes"), tr(" min"), 1min},
                           Unit{tr("Move date by seconds"), tr(" s"), 1s}};
    QHBoxLayout* const row = makeRow();
    for (const Unit& unit : units) {
        auto* const box = new QSpinBox;
        box->setRange(-99999, 99999);
        box->setSuffix(unit.suffix);
        box->setAccessibleName(unit.name);
        m_shift.emplace_back(box, unit.length);
        row->addWidget(box, 1);
    }
    form.addRow(tr("Move date by"), row);
    static_cast<QLabel*>(form.labelForField(row))->setBuddy(m_shift.front().first);
}

void EditForm::addOrientation(QFormLayout& form)
{
    m_orientation->setAccessibleName(tr("Orientation"));
    m_orientation->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    form.addRow(tr("Orientation"), m_orientation);
}

void EditForm::addPlace(QFormLayout& form)
{
    m_place->setAccessibleName(tr("Place"));
    QPushButton* const remove = makeButton(tr("Remove Place"), nullptr);
    QHBoxLayout* const row = makeRow();
    row->addWidget(m_place, 1);
    row->addWidget(remove);
    form.addRow(tr("Place"), row);
    static_cast<QLabel*>(form.labelForField(row))->setBuddy(m_place);
    connect(m_place, &QLineEdit::returnPressed, this, &EditForm::save);
    connect(remove, &QPushButton::clicked, this, [this] {
        m_place->clear();
        m_place->setPlaceholderText(tr("Is removed when it is saved"));
        // Even where there is nothing to be seen of it.
        m_place->setProperty(stored, QVariant());
    });
}

void EditForm::showFields(const Merged& merged)
{
    // What is chosen later is not what it was in.
    if (merged.photos() == 0)
        m_focused = nullptr;
    const QString different = tr("Different values");
    for (const auto& [field, line] : m_lines) {
        const Merged::Value& value = merged.field(field);
        const bool differs = merged.differs(value);
        const QString text = field == Field::Date ? shownDate(value.text) : QString::fromStdString(value.text);
        line->setText(differs ? QString() : text);
        line->setPlaceholderText(differs ? different : field == Field::Date ? tr("2026-12-31 23:59:59") : QString());
        setStored(*line, line->text());
    }
    const Merged::Value& description = merged.field(Field::Description);
    m_description->setPlainText(merged.differs(description) ? QString() : QString::fromStdString(description.text));
    m_description->setPlaceholderText(merged.differs(description) ? different : QString());
    setStored(*m_description, m_description->toPlainText());
    for (const auto& [box, length] : m_shift)
        box->setValue(0);

    const Merged::Value& orientation = merged.field(Field::Orientation);
    m_orientation->clear();
    m_orientation->addItem(merged.differs(orientation) ? different
                           : orientation.text.empty()  ? tr("None is stored")
                                                       : tr("Stays as it is"));
    for (const char* name : orientationNames)
        m_orientation->addItem(QCoreApplication::translate("EditForm", name));
    const auto number = orientationOf(Tags({{"EXIF", "IFD0", "Orientation", orientation.text}}));
    m_orientation->setCurrentIndex(merged.differs(orientation) ? 0 : number.value_or(0));

    const Merged::Value& place = merged.field(Field::Place);
    m_place->setText(merged.differs(place) ? QString() : QString::fromStdString(place.text));
    m_place->setPlaceholderText(merged.differs(place) ? different : tr("48.858370, 2.294481"));
    setStored(*m_place, m_place->text());
    m_refusal->hide();
    m_orientation->setProperty(stored, m_orientation->currentIndex());
}

void EditForm::setBusy(bool busy)
{
    QWidget* const focused = window()->focusWidget();
    // Wherever else it is, the person has taken it there.
    if (focused && focused != m_focusedWhileBusy)
        m_focused = isAncestorOf(focused) ? focused : nullptr;
    m_fields->setEnabled(!busy);
    m_remove->setEnabled(!busy);
    m_save->setEnabled(!busy);
    m_focusedWhileBusy = busy ? window()->focusWidget() : nullptr;
    QWidget* const before = busy ? nullptr : std::exchange(m_focused, nullptr);
    if (before && before->isVisible())
        before->setFocus();
}

SaveOptions EditForm::options() const
{
    return {.keepsOriginal = m_keepsOriginal->isChecked(), .keepsTime = m_keepsTime->isChecked()};
}

void EditForm::refuse(QWidget* typed, const QString& why)
{
    m_refusal->setText(why);
    m_refusal->show();
    LinuxDesktop::announce(*m_refusal, why);
    typed->setFocus();
}

bool EditForm::isChanged() const
{
    return m_fields->isEnabled() && !written().empty();
}

Edits EditForm::written() const
{
    Edits edits;
    for (const auto& [field, line] : m_lines) {
        if (saysElse(*line, line->text()))
            edits.texts[field] = line->text().trimmed().toStdString();
    }
    const QString description = m_description->toPlainText();
    if (saysElse(*m_description, description))
        edits.texts[Field::Description] = description.toStdString();
    for (const auto& [box, length] : m_shift)
        edits.shift += box->value() * length;
    const int orientation = m_orientation->currentIndex();
    if (orientation > 0 && orientation != m_orientation->property(stored).toInt())
        edits.orientation = orientation;
    if (saysElse(*m_place, m_place->text()))
        edits.place = Edits::NewPlace{placeFrom(m_place->text().toStdString())};
    return edits;
}

std::optional<Edits> EditForm::edits()
{
    Edits edits = written();
    if (const auto date = edits.texts.find(Field::Date); date != edits.texts.end() && !date->second.empty()) {
        const auto time = typedTime(date->second);
        if (!time) {
            refuse(m_lines[Field::Date], tr("The date is to be written as 2026-12-31 23:59:59."));
            return std::nullopt;
        }
        date->second = textOf(*time);
    }
    if (edits.shift.count() != 0 && edits.texts.contains(Field::Date)) {
        refuse(m_shift.front().first, tr("Write a new date or move the one that is there, not both."));
        return std::nullopt;
    }
    if (edits.place && !edits.place->place && !m_place->text().trimmed().isEmpty()) {
        refuse(m_place, tr("The place is to be written as latitude and longitude in degrees: 48.858370, 2.294481."));
        return std::nullopt;
    }
    return edits;
}

void EditForm::save()
{
    m_refusal->hide();
    const auto made = edits();
    if (!made)
        return;
    if (made->empty())
        refuse(m_lines[Field::Title], tr("Nothing has been changed yet."));
    else
        emit saved(*made);
}

void EditForm::askForRemoval()
{
    m_refusal->hide();
    if (const auto made = edits())
        emit removalAsked(*made);
}

} // namespace MenuExtension::Exif
