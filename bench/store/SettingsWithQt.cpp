#include "Settings.h"

#include <QSettings>
#include <QString>

namespace StoreBench {

namespace {

class QtSettings : public Settings {
public:
    explicit QtSettings(const std::string& folder)
        : m_settings(QString::fromStdString(folder + "/qt.ini"), QSettings::IniFormat)
    {
        m_settings.setValue("text", QString(fileSize, 'x'));
        m_settings.sync();
    }

    void store(int number) override
    {
        m_settings.setValue("number", number);
        m_settings.sync();
    }

private:
    QSettings m_settings;
};

} // namespace

std::unique_ptr<Settings> withQt(const std::string& folder)
{
    return std::make_unique<QtSettings>(folder);
}

} // namespace StoreBench
