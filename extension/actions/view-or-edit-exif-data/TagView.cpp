#include "TagView.h"

#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace MenuExtension::Exif {

namespace {

/// What people look for first: its name, and where it is, the first of which counts.
struct Usual {
    const char* name;
    std::array<std::string_view, 3> keys;
};

constexpr std::array usual{
    Usual{QT_TRANSLATE_NOOP("TagView", "Title"), {"XMP-dc:Title", "IPTC:ObjectName", "PNG:Title"}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Description"),
          {"XMP-dc:Description", "IFD0:ImageDescription", "IPTC:Caption-Abstract"}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Author"), {"XMP-dc:Creator", "IFD0:Artist", "IPTC:By-line"}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Copyright"), {"XMP-dc:Rights", "IFD0:Copyright", "IPTC:CopyrightNotice"}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Date taken"),
          {"ExifIFD:DateTimeOriginal", "XMP-photoshop:DateCreated", "ExifIFD:CreateDate"}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Place"), {"Composite:GPSPosition", "", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Keywords"), {"XMP-dc:Subject", "IPTC:Keywords", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Camera"), {"IFD0:Model", "XMP-tiff:Model", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Lens"), {"Composite:LensID", "ExifIFD:LensModel", "XMP-aux:Lens"}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Exposure time"), {"ExifIFD:ExposureTime", "XMP-exif:ExposureTime", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Aperture"), {"ExifIFD:FNumber", "XMP-exif:FNumber", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "ISO"), {"ExifIFD:ISO", "XMP-exif:ISO", "Composite:ISO"}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Focal length"), {"Composite:FocalLength35efl", "ExifIFD:FocalLength", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Flash"), {"ExifIFD:Flash", "", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Orientation"), {"IFD0:Orientation", "XMP-tiff:Orientation", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Size in pixels"), {"Composite:ImageSize", "", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Kind of file"), {"File:FileType", "", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Colour profile"),
          {"ICC_Profile:ProfileDescription", "ExifIFD:ColorSpace", ""}},
    Usual{QT_TRANSLATE_NOOP("TagView", "Software"), {"IFD0:Software", "XMP-xmp:CreatorTool", ""}},
};

const Merged::Line* lineOf(const Merged& merged, std::string_view key)
{
    const auto& lines = merged.lines();
    const auto found = std::ranges::find_if(lines, [&](const Merged::Line& line) {
        return matches(key, {line.family, line.group, line.name, {}});
    });
    return found == lines.end() ? nullptr : &*found;
}

QStandardItem* makeItem(const QString& text)
{
    auto* const item = new QStandardItem(text);
    item->setEditable(false);
    return item;
}

void addRow(QStandardItem& group, const QString& name, const QString& value)
{
    auto* const shown = makeItem(value);
    shown->setToolTip(value);
    shown->setData(spokenValue(value), Qt::AccessibleTextRole);
    group.appendRow({makeItem(name), shown});
}

QStandardItem* addGroup(QStandardItemModel& model, const QString& name)
{
    QStandardItem* const group = makeItem(name);
    QFont font = group->font();
    font.setWeight(QFont::DemiBold);
    group->setFont(font);
    model.appendRow({group, makeItem({})});
    return group;
}

QString groupName(const Merged::Line& line)
{
    return QString::fromStdString(line.family == line.group ? line.family : line.family + " · " + line.group);
}

} // namespace

QString readableName(const std::string& tag)
{
    const QString text = QString::fromStdString(tag);
    QString name;
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QChar each = text[place];
        const bool begins = place > 0 && each.isUpper() &&
                            (text[place - 1].isLower() ||
                             (place + 1 < text.size() && text[place + 1].isLower() && text[place - 1].isUpper()));
        if (begins)
            name += u' ';
        name += each;
    }
    return name;
}

QString shownValue(const Merged& merged, const Merged::Value& value)
{
    if (merged.differs(value))
        return QCoreApplication::translate("TagView", "Different values");
    // One line, as tables have it.
    return QString::fromStdString(value.text).simplified();
}

QString spokenValue(const QString& shown)
{
    return shown.isEmpty() ? TagView::tr("Empty") : shown;
}

QString countedValues(int count)
{
    return count == 1 ? TagView::tr("1 value") : TagView::tr("%n values", nullptr, count);
}

TagView::TagView(QWidget* parent)
    : QWidget(parent), m_search(makeSearch(tr("Search"), tr("Search names and values"), this)),
      m_tree(new QTreeView(this)), m_nothing(makeNote(this))
{
    m_found.setSourceModel(&m_model);
    m_found.setRecursiveFilteringEnabled(true);
    m_found.setAutoAcceptChildRows(true);
    m_found.setFilterKeyColumn(-1);
    m_found.setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_tree->setModel(&m_found);
    m_tree->setAccessibleName(tr("Data"));
    m_tree->setAlternatingRowColors(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setTabKeyNavigation(false);
    m_nothing->setText(tr("Nothing is found."));
    LinuxDesktop::tieWords(*m_nothing, *m_search);
    m_nothing->hide();

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(10);
    layout->addWidget(m_search);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_nothing);
    connect(m_search, &QLineEdit::textChanged, this, &TagView::search);
}

void TagView::showTags(const Merged& merged)
{
    m_model.clear();
    m_model.setHorizontalHeaderLabels({tr("Name"), tr("Value")});
    QStandardItem* const first = addGroup(m_model, tr("Summary"));
    for (const Usual& each : usual) {
        for (const std::string_view key : each.keys) {
            if (const Merged::Line* const line = key.empty() ? nullptr : lineOf(merged, key)) {
                addRow(*first, QCoreApplication::translate("TagView", each.name), shownValue(merged, line->value));
                break;
            }
        }
    }
    std::map<QString, QStandardItem*> groups;
    for (const Merged::Line& line : merged.lines()) {
        if (line.family == "ExifTool")
            continue;
        QStandardItem*& group = groups[groupName(line)];
        if (!group)
            group = addGroup(m_model, groupName(line));
        addRow(*group, readableName(line.name), shownValue(merged, line.value));
    }
    for (int row = 0; row < m_model.rowCount(); ++row)
        m_model.item(row, 1)->setData(countedValues(m_model.item(row)->rowCount()), Qt::AccessibleTextRole);
    m_tree->expandAll();
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Interactive);
    m_tree->header()->resizeSection(0, 240);
    m_tree->header()->setStretchLastSection(true);
    search(m_search->text());
}

void TagView::search(const QString& text)
{
    m_found.setFilterFixedString(text);
    m_tree->expandAll();
    m_nothing->setVisible(m_found.rowCount() == 0 && !text.isEmpty());
    LinuxDesktop::describeByWords(*m_search);
    if (m_nothing->isVisible())
        LinuxDesktop::announce(*m_nothing, m_nothing->text());
}

} // namespace MenuExtension::Exif
