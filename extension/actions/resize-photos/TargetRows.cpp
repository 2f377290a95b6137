#include "TargetRows.h"

#include "ResizedName.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/chooser/FileChooserDialog.h"
#include "platform/linux/text/FileNameText.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace MenuExtension::Resizing {

namespace {

QHBoxLayout* makeRow(QWidget* widget)
{
    auto* const row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    return row;
}

/// Words beside a control, which they tell of.
QLabel* makeNoteOn(QWidget& control)
{
    QLabel* const note = makeNameNote(control.parentWidget());
    note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    LinuxDesktop::tieWords(*note, control);
    return note;
}

void say(QLabel& note, QWidget& control, const QString& words)
{
    note.setText(words);
    LinuxDesktop::describeByWords(control);
}

} // namespace

TargetRows::TargetRows(QFormLayout& form, std::string folder, QWidget* parent)
    : QObject(parent), m_parent(parent), m_form(form), m_where(new QComboBox(parent)),
      m_folderRow(new QWidget(parent)), m_choose(makeButton(tr("Choose Folder…"), m_folderRow)),
      m_folderName(makeNoteOn(*m_choose)), m_patternRow(new QWidget(parent)), m_pattern(new QLineEdit(m_patternRow)),
      m_example(makeNoteOn(*m_pattern)), m_start(std::move(folder))
{
    // In the order of Target::Kind.
    m_where->addItems(
        {tr("Beside the originals"), tr("In a folder"), tr("In their place; the originals go to the trash")});
    say(*m_folderName, *m_choose, tr("None is chosen yet"));
    m_pattern->setText(QString::fromStdString(Target().pattern));
    m_pattern->setAccessibleName(tr("Name"));
    m_pattern->setToolTip(tr("{name} is the photo's own name, {width} and {height} are its new size in pixels."));

    m_folderRow->setFocusProxy(m_choose);
    m_patternRow->setFocusProxy(m_pattern);
    QHBoxLayout* const folderRow = makeRow(m_folderRow);
    folderRow->addWidget(m_choose);
    folderRow->addWidget(m_folderName, 1);
    QHBoxLayout* const patternRow = makeRow(m_patternRow);
    patternRow->addWidget(m_pattern, 1);
    patternRow->addWidget(m_example, 1);
    m_form.addRow(tr("Save"), m_where);
    m_form.addRow(tr("Folder"), m_folderRow);
    m_form.addRow(tr("Name"), m_patternRow);
    // Who cannot see the labels hears them with what they are for.
    for (const auto& [row, control] :
         {std::pair<QWidget*, QWidget*>(m_folderRow, m_choose), {m_patternRow, m_pattern}})
        static_cast<QLabel*>(m_form.labelForField(row))->setBuddy(control);

    connect(m_where, &QComboBox::currentIndexChanged, this, &TargetRows::showWhatApplies);
    connect(m_choose, &QPushButton::clicked, this, &TargetRows::chooseFolder);
    connect(m_pattern, &QLineEdit::textChanged, this, &TargetRows::showWhatApplies);
    connect(m_pattern, &QLineEdit::returnPressed, this, &TargetRows::confirmed);
    showWhatApplies();
}

Target::Kind TargetRows::kind() const
{
    return static_cast<Target::Kind>(m_where->currentIndex());
}

void TargetRows::showExample(const std::string& photo, const Size& size)
{
    m_photo = photo;
    m_size = size;
    showWhatApplies();
}

void TargetRows::showWhatApplies()
{
    // A row's label goes with it.
    for (const auto& [row, applies] : {std::pair(m_folderRow, kind() == Target::Kind::Folder),
                                       std::pair(m_patternRow, kind() != Target::Kind::InPlace)}) {
        row->setVisible(applies);
        m_form.labelForField(row)->setVisible(applies);
    }
    const std::string pattern = m_pattern->text().toStdString();
    if (!isNamePattern(pattern))
        say(*m_example, *m_pattern, tr("This is no name yet"));
    else if (!m_photo.empty())
        say(*m_example, *m_pattern, LinuxDesktop::fileNameText(resizedName(pattern, m_photo, m_size, 1)));
}

void TargetRows::chooseFolder()
{
    LinuxDesktop::FileChooserSettings settings;
    settings.message = tr("Choose the folder that the resized photos go to.");
    settings.prompt = tr("Choose");
    settings.canChooseFiles = false;
    settings.canChooseDirectories = true;
    settings.directory = m_folder.empty() ? m_start : m_folder;
    LinuxDesktop::FileChooserDialog chooser(std::move(settings), m_parent->window());
    if (chooser.exec() != QDialog::Accepted)
        return;
    m_folder = chooser.chosen().front();
    say(*m_folderName, *m_choose, LinuxDesktop::fileNameText(m_folder));
}

std::optional<Target> TargetRows::target()
{
    m_complaint.clear();
    Target target{.kind = kind(), .folder = m_folder, .pattern = m_pattern->text().toStdString()};
    if (target.kind == Target::Kind::Folder && m_folder.empty()) {
        m_complaint = tr("Choose the folder first.");
        m_choose->setFocus();
        return std::nullopt;
    }
    // One that is not to be seen is no matter of the person's.
    if (target.kind == Target::Kind::InPlace) {
        target.pattern = Target().pattern;
    } else if (!isNamePattern(target.pattern)) {
        m_complaint = tr("The name needs {name} in it, which is the photo's own name, and no slash.");
        m_pattern->setFocus();
        return std::nullopt;
    }
    return target;
}

} // namespace MenuExtension::Resizing
