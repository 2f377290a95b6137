#pragma once

#include "support/Files.h"

#include <QTemporaryDir>

#include <string>

/// Data folders of the test's own in the environment: the user's and two of the system's.
class DataFolders {
public:
    DataFolders()
    {
        qputenv("XDG_DATA_HOME", path("home").c_str());
        qputenv("XDG_DATA_DIRS", (path("local") + ':' + path("system")).c_str());
        qunsetenv("XDG_CURRENT_DESKTOP");
    }

    /// The path of a name below all of them.
    [[nodiscard]] std::string path(const std::string& name) const
    {
        return m_folder.path().toStdString() + '/' + name;
    }
    /// Writes a desktop entry; `name` is the way to it, as in "home/applications/org.example.A.desktop".
    void write(const std::string& name, const std::string& lines) const
    {
        std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
        Files::write(path(name), "[Desktop Entry]\nType=Application\nName=A program\n" + lines);
    }

private:
    QTemporaryDir m_folder;
};
