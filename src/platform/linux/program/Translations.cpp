#include "platform/linux/program/Translations.h"

#include "platform/LocalizedString.h"
#include "platform/linux/language/WantedLanguages.h"
#include "platform/linux/program/Resources.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace LinuxDesktop {

namespace {

std::string translated(std::string_view table, std::string_view text)
{
    return QCoreApplication::translate(std::string(table).c_str(), std::string(text).c_str()).toStdString();
}

} // namespace

Translations::Translations(const QString& programs)
{
    for (const std::string& wanted : wantedLanguages()) {
        const QString language = QString::fromStdString(wanted);
        const QString folder = installedResources(programs) + QStringLiteral("/translations");
        if (m_product.load(QStringLiteral("orvik-menu_") + language, folder)) {
            install(language);
            return;
        }
    }
}

Translations::~Translations()
{
    NS::setLocalizer(nullptr);
}

void Translations::install(const QString& language)
{
    if (m_toolkit.load(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_toolkit);
    QCoreApplication::installTranslator(&m_product);
    NS::setLocalizer(translated);
    // The toolkit knows it of its own texts, which may not be installed.
    if (QLocale(language).textDirection() == Qt::RightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
}

} // namespace LinuxDesktop
