#include "problem/ProblemWindow.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/store/Store.h"
#include "repair/RepairDomain.h"
#include "settings/Deployment.h"
#include "settings/Settings.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <string>

namespace ProblemTool {

namespace {

constexpr int iconExtent = 64;
constexpr int textWidth = 420;

std::vector<Mend> findMends()
{
    LinuxDesktop::Store store;
    const auto suite = store.open(Deployment::suiteName);
    return mendsOf(suite ? suite->contents().value_or(NS::Value::Dictionary{}) : NS::Value::Dictionary{});
}

/// The tab whose screen shows what a key holds, by its title in English.
QString tabOf(const Mend& mend)
{
    return mend.key == Settings::save14.key ? QStringLiteral("Menu Items") : QStringLiteral("Folders");
}

QString quotationOf(const QString& words)
{
    // They are short, but for names.
    constexpr qsizetype longest = 400;
    if (words.isEmpty())
        return {};
    return ProblemWindow::tr("What it said: %1").arg(words.size() > longest ? words.left(longest) + u'…' : words);
}

QString reasonFor(const std::vector<Mend>& mends, const QString& words)
{
    QStringList reasons;
    for (const Mend& mend : mends)
        reasons.append(QString::fromStdString(mend.wrong));
    if (words.isEmpty() && mends.empty())
        reasons.append(ProblemWindow::tr("There is nothing to repair in the settings."));
    return reasons.join(QLatin1Char('\n'));
}

/// It names the key of settings that it cannot work with.
bool explains(const std::vector<Mend>& mends, const QString& words)
{
    const QStringList said = words.split(QLatin1Char(' '));
    return std::ranges::any_of(mends, [&](const Mend& mend) { return said.contains(QString::fromUtf8(mend.key)); });
}

QString adviceFor(const std::vector<Mend>& mends, const QString& words)
{
    if (mends.empty())
        return words.isEmpty() ? QString()
                               : ProblemWindow::tr("Nothing in the settings explains it. They are as they were.");
    QStringList remedies;
    for (const Mend& mend : mends) {
        if (const auto remedy = QString::fromStdString(mend.remedy); !remedies.contains(remedy))
            remedies.append(remedy);
    }
    return (words.isEmpty() || explains(mends, words)
                ? ProblemWindow::tr("Repair Settings mends this.")
                : ProblemWindow::tr("That may not be why it stopped. Repair Settings mends the settings.")) +
           u' ' + remedies.join(u' ') + u' ' + ProblemWindow::tr("A copy of the settings as they are now is kept.");
}

QString headingFor(const QString& words)
{
    return words.isEmpty() ? ProblemWindow::tr("The settings of Orvik Menu")
                           : ProblemWindow::tr("Orvik Menu had to stop");
}

} // namespace

ProblemWindow::ProblemWindow(const StoppedPanel& panel, const QIcon& icon) : m_panel(panel), m_mends(findMends())
{
    setWindowTitle(QStringLiteral("Orvik Menu"));
    auto* picture = new QLabel(this);
    LinuxDesktop::setAccessibleRole(*this, QAccessible::AlertMessage);
    LinuxDesktop::setAccessibleRole(*picture, QAccessible::NoRole);
    picture->setPixmap(icon.pixmap(QSize(iconExtent, iconExtent), devicePixelRatioF()));
    auto* heading = new QLabel(headingFor(panel.words()), this);
    LinuxDesktop::setAccessibleRole(*heading, QAccessible::Heading);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.25);
    font.setWeight(QFont::DemiBold);
    heading->setFont(font);
    // Made in the order in which they are read.
    auto* reason = new QLabel(reasonFor(m_mends, panel.words()), this);
    auto* advice = new QLabel(adviceFor(m_mends, panel.words()), this);
    advice->setForegroundRole(QPalette::PlaceholderText);
    auto* quotation = new QLabel(quotationOf(panel.words()), this);
    m_trouble = new QLabel(this);
    for (QLabel* text : {reason, advice, quotation, m_trouble}) {
        text->setHidden(text->text().isEmpty());
        LinuxDesktop::tieWords(*text, *this);
    }

    auto* close = new QPushButton(tr("Close"), this);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* open = new QPushButton(tr("Open Again"), this);
    connect(open, &QPushButton::clicked, this, [this] { openAgain({}); });
    m_remedies = {open};
    if (!m_mends.empty()) {
        m_remedies.push_back(new QPushButton(tr("Repair Settings"), this));
        connect(m_remedies.back(), &QPushButton::clicked, this, [this] { repair(); });
    }
    std::vector<QPushButton*> buttons = m_remedies;
    buttons.insert(buttons.begin(), close);
    layOut(picture, {heading, reason, advice, quotation, m_trouble}, buttons);
    buttons.back()->setDefault(true);
    buttons.back()->setFocus();
}

void ProblemWindow::layOut(QLabel* picture, const std::vector<QLabel*>& texts,
                           const std::vector<QPushButton*>& buttons)
{
    auto* words = new QVBoxLayout;
    words->setSpacing(8);
    for (QLabel* text : texts) {
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        text->setFixedWidth(textWidth);
        // It may be wanted in a report.
        text->setTextInteractionFlags(Qt::TextSelectableByMouse);
        words->addWidget(text);
    }
    words->addStretch(1);

    auto* above = new QHBoxLayout;
    above->setSpacing(18);
    above->addWidget(picture, 0, Qt::AlignTop);
    above->addLayout(words);

    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addStretch(1);
    for (QPushButton* button : buttons)
        row->addWidget(button);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 18);
    layout->setSpacing(18);
    layout->addLayout(above);
    layout->addLayout(row);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void ProblemWindow::repair()
{
    LinuxDesktop::Store store;
    const auto suite = store.open(Deployment::suiteName);
    if (!suite) {
        tell(tr("The settings could not be repaired: they cannot be read."));
        return;
    }
    if (const auto repaired = RepairTool::repairSuite(*suite))
        openAgain(tabOf(m_mends.front()));
    else
        tell(tr("The settings could not be repaired: %1.").arg(QString::fromStdString(repaired.error())));
}

void ProblemWindow::openAgain(const QString& tab)
{
    allow(false);
    const bool hasEnded = m_panel.whenEnded(*this, [this, tab] {
        if (StoppedPanel::openAgain(tab)) {
            accept();
            return;
        }
        tell(tr("Orvik Menu could not be started."));
        allow(true);
    });
    if (!hasEnded)
        tell(tr("Orvik Menu is still ending. It opens again right after."));
}

void ProblemWindow::allow(bool remedies)
{
    for (QPushButton* remedy : m_remedies)
        remedy->setEnabled(remedies);
}

void ProblemWindow::tell(const QString& trouble)
{
    m_trouble->setText(trouble);
    m_trouble->show();
    LinuxDesktop::describeByWords(*this);
    LinuxDesktop::announce(*this, trouble);
}

} // namespace ProblemTool
