#include "Bus.h"

#include <QApplication>
#include <QByteArray>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // A host of the module, without a display with a home and a bus of its own.
    const QTemporaryDir home;
    for (const char* const variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "minimal");
    qputenv("QT_PLUGIN_PATH", ORVIK_MODULES);
    // The toolkit connects to it once.
    const Bus sessionBus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", sessionBus.address().toLatin1());
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
